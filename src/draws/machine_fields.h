#pragma once

#include <QWidget>

class QComboBox;
struct EnteredDraw;

/// The machine and the set of balls of a draw: two lists with their captions. Any text may be typed into them. The
/// focus goes to the first.
class MachineFields : public QWidget
{
    Q_OBJECT

public:
    /// The object names of the two lists; their captions are elements 7 and 8 of the caption array.
    MachineFields(const QString& machineName, const QString& ballSetName, const QString& captionArray,
                  QWidget* parent = nullptr);

    /// Fills both lists anew and puts the texts into them.
    void Show(const QString& machineText, const QString& ballSetText);
    /// Puts the two texts into the draw.
    void Read(EnteredDraw& draw) const;

Q_SIGNALS:
    /// Enter, which leads from the machine to the set of balls, was pressed there.
    void Completed();

private:
    QComboBox* machine;
    QComboBox* ballSet;
};
