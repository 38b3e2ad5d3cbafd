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
    setFrameShape(QFrame::NoFrame);
    viewport()->setBackgroundRole(QPalette::AlternateBase);
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSizeF(FontFor(TextRole::Body).pointSizeF());
    setFont(font);
}

void ReportView::Show(const std::vector<ReportPart>& report)
{
    // A new text takes on the format at the cursor, which may stand in an emphasised line of the old one.
    setTextCursor(QTextCursor(document()));
    setCurrentCharFormat(QTextCharFormat());
    QString text;
    for (const ReportPart& part : report)
        text += part.text;
    // The text goes in at once and is laid out once; part by part it would take several times as long.
    setPlainText(text);
    QTextCharFormat emphasised;
    emphasised.setFontWeight(QFont::Bold);
    QTextCursor caret(document());
    caret.beginEditBlock();
    int place = 0;
    for (const ReportPart& part : report) {
        caret.setPosition(place);
        // A line break is two characters of the report, but one place in the document.
        place += static_cast<int>(part.text.size() - part.text.count(u'\r'));
        caret.setPosition(place, QTextCursor::KeepAnchor);
        if (part.emphasised)
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
