#include "checking/report_view.h"

#include "look/theme.h"

#include <QApplication>
#include <QClipboard>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QTextCursor>

ReportView::ReportView(QWidget* parent) : QTextEdit(parent)
{
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setUndoRedoEnabled(false);
    setFrameShape(QFrame::NoFrame);
    viewport()->setBackgroundRole(QPalette::AlternateBase);
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSizeF(FontFor(TextRole::Body).pointSizeF());
    setFont(font);
}

void ReportView::Show(const std::vector<ReportPart>& report)
{
    clear();
    QTextCharFormat emphasised;
    emphasised.setFontWeight(QFont::Bold);
    QTextCursor caret(document());
    caret.beginEditBlock();
    for (const ReportPart& part : report)
        caret.insertText(part.text, part.emphasised ? emphasised : QTextCharFormat());
    caret.endEditBlock();
    moveCursor(QTextCursor::Start);
}

void ReportView::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy) && !textCursor().hasSelection())
        QApplication::clipboard()->setText(toPlainText());
    else
        QTextEdit::keyPressEvent(event);
}
