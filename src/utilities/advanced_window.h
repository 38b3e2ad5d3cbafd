#pragma once

#include <QDialog>

class Button;
class QVBoxLayout;
struct DatabaseFile;

/// The database utilities, frmadvanced: backup and import of either database file.
class AdvancedWindow : public QDialog
{
    Q_OBJECT

public:
    explicit AdvancedWindow(QWidget* parent);

private:
    QWidget* BuildGroup(int index, const QString& heading, Button* backup, Button* import);
    void Export_Click(const DatabaseFile& file);
    void Import_Click(const DatabaseFile& file);
};
