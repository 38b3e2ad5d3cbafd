#include "controls/message_box.h"

#include "look/theme.h"

#include <QApplication>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QScreen>

using namespace Qt::StringLiterals;

const QString ApplicationTitle = u"Tavenor 3"_s;

namespace {

/// The box would break lines that are a little longer than others; lines of a usual length stay whole.
void KeepLinesWhole(QMessageBox& box)
{
    auto* label = box.findChild<QLabel*>(u"qt_msgbox_label"_s);
    if (label == nullptr)
        return;
    const QFontMetrics metrics = label->fontMetrics();
    const int natural = metrics.size(0, label->text()).width() + 2 * metrics.averageCharWidth();
    // Beside the text are the icon and the margins; a screen may be narrower than all of that.
    constexpr int besideText = 160;
    const int room = box.screen()->availableSize().width() - besideText;
    label->setMinimumWidth(qMax(0, qMin(room, qMin(natural, metrics.averageCharWidth() * 90))));
}

QMessageBox::StandardButton Show(QMessageBox::Icon icon, const QString& title, const QString& text,
                                 QMessageBox::StandardButtons buttons, QMessageBox::StandardButton quietButton)
{
    QMessageBox box(icon, title, QString(), buttons, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    KeepLinesWhole(box);
    box.layout()->setContentsMargins(Spacing::Page, Spacing::Page, Spacing::Page, Spacing::Page);
    box.setDefaultButton(quietButton);
    box.setEscapeButton(quietButton);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

} // namespace

void ShowMessage(const QString& text)
{
    Show(QMessageBox::NoIcon, ApplicationTitle, text, QMessageBox::Ok, QMessageBox::Ok);
}

void ShowInformation(const QString& title, const QString& text)
{
    Show(QMessageBox::Information, title, text, QMessageBox::Ok, QMessageBox::Ok);
}

void ShowCritical(const QString& text)
{
    Show(QMessageBox::Critical, ApplicationTitle, text, QMessageBox::Ok, QMessageBox::Ok);
}

bool AskYesNo(const QString& text)
{
    return Show(QMessageBox::NoIcon, ApplicationTitle, text, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) ==
           QMessageBox::Yes;
}

Answer AskYesNoCancel(const QString& text)
{
    switch (Show(QMessageBox::NoIcon, ApplicationTitle, text, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel,
                 QMessageBox::Cancel)) {
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    default:
        return Answer::Cancel;
    }
}
