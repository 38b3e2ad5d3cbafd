#include "platform/guard.h"

#include "platform/failure.h"
#include "platform/message_box.h"

void Guard(const std::function<void()>& handler)
{
    QString told;
    try {
        handler();
        return;
    } catch (const Failure& failure) {
        told = QString::fromStdString(failure.Doing() + ", because " + failure.Reason() + ".\r\n(" + failure.Detail() +
                                      ")");
    } catch (const std::exception& failure) {
        told = QStringLiteral("This could not be done.\r\n(%1)").arg(QString::fromLocal8Bit(failure.what()));
    }
    ShowMessage(told);
}
