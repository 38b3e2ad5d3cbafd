#include "controls/guard.h"

#include "base/failure.h"
#include "controls/message_box.h"

using namespace Qt::StringLiterals;

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
        told = u"This could not be done.\r\n(%1)"_s.arg(QString::fromLocal8Bit(failure.what()));
    }
    ShowMessage(told);
}
