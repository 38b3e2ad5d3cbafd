#pragma once

#include <QCalendarWidget>

class QSpinBox;

/// A month calendar in the look of the pages, with English names and weeks from Monday, that opens on today.
class MonthCalendar : public QCalendarWidget
{
    Q_OBJECT

public:
    /// `name` is what a screen reader calls it.
    explicit MonthCalendar(const QString& name = QStringLiteral("Draw date"));

Q_SIGNALS:
    /// A day was chosen: clicked, or confirmed with Enter.
    void DateChosen(QDate date);

protected:
    void paintCell(QPainter* painter, const QRect& rect, QDate date) const override;
    void changeEvent(QEvent* event) override;

private:
    void TakeColours();

    /// What the toolkit shows in place of the year while it is typed.
    QSpinBox* year;
};
