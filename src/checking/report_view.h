#pragma once

#include "checking/check_report.h"

#include <QTextEdit>

/// A report to be read, scrolled and copied, in letters of one width. Ctrl+C copies what is selected, or all of it.
class ReportView : public QTextEdit
{
    Q_OBJECT

public:
    explicit ReportView(QWidget* parent = nullptr);

    /// Shows a report in the place of the one before; what is emphasised is bold.
    void Show(const std::vector<ReportPart>& report);

protected:
    void keyPressEvent(QKeyEvent* event) override;
};
