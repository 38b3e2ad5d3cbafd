#pragma once

#include <QDateEdit>

/// A field for a date, typed with all digits of its year or chosen in a calendar that folds out by the mouse or by the
/// keys that fold out a list.
class DateField : public QDateEdit
{
    Q_OBJECT

public:
    DateField(const QString& name, const QString& accessibleName);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void FoldOut();
};
