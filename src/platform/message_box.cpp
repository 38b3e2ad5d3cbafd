#include "platform/message_box.h"

#include <QApplication>
#include <QMessageBox>

const QString ApplicationTitle = QStringLiteral("Tavenor 3");

namespace {

QMessageBox::StandardButton Show(QMessageBox::Icon icon, const QString& title, const QString& text,
                                 QMessageBox::StandardButtons buttons, QMessageBox::StandardButton quietButton)
{
    QMessageBox box(icon, title, QString(), buttons, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
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
