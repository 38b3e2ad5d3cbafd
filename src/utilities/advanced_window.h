#pragma once

#include "controls/small_window.h"

class Button;
class QLabel;
struct DatabaseFile;

/// The database utilities, frmadvanced: backup and import of either database file.
class AdvancedWindow : public SmallWindow
{
    Q_OBJECT

public:
    explicit AdvancedWindow(QWidget* parent);

private:
    QWidget* BuildGroup(QLabel* heading, Button* backup, Button* import, DatabaseFile (*file)());
    void Export_Click(const DatabaseFile& file);
    void Import_Click(const DatabaseFile& file);
};
