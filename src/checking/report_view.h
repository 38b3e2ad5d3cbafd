#pragma once

#include "checking/check_report.h"

#include <QTextEdit>

/// A report to be read, scrolled and copied, in letters of one width. Ctrl+C copies what is selected, or all of it.
class ReportView : public QTextEdit
{
    Q_OBJECT

public:
    explicit ReportView(QWidget* parent = nullptr);

    /// Shows a report in the place of the one before; its emphasised stretches are bold.
    void Show(const CheckReport& report);

protected:
    void keyPressEvent(QKeyEvent* event) override;
};
