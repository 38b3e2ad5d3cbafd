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

void ReportView::Show(const CheckReport& report)
{
    QTextCharFormat emphasised;
    emphasised.setFontWeight(QFont::Bold);
    // A new text takes on the format at the cursor, which may stand in an emphasised line of the old one.
    setTextCursor(QTextCursor(document()));
    setCurrentCharFormat(QTextCharFormat());
    // The text goes in at once and is laid out once; line by line it would take several times as long.
    setPlainText(report.text);
    QTextCursor caret(document());
    caret.beginEditBlock();
    qsizetype counted = 0;
    qsizetype lineBreaks = 0;
    // A line break is two characters of the report, but one place in the document.
    const auto placeOf = [&](qsizetype position) {
        lineBreaks += QStringView(report.text).mid(counted, position - counted).count(u'\r');
        counted = position;
        return static_cast<int>(position - lineBreaks);
    };
    for (const CheckReport::Span& span : report.emphasised) {
        caret.setPosition(placeOf(span.start));
        caret.setPosition(placeOf(span.start + span.length), QTextCursor::KeepAnchor);
        caret.setCharFormat(emphasised);
    }
    caret.endEditBlock();
}

void ReportView::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy) && !textCursor().hasSelection())
        QApplication::clipboard()->setText(toPlainText());
    else
        QTextEdit::keyPressEvent(event);
}
