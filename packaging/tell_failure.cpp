// Shows one message in the program's own box, for the launcher, which may have no terminal: tell_failure MESSAGE

#include "controls/message_box.h"
#include "look/application.h"

int main(int count, char** arguments)
{
    if (count != 2)
        return 2;
    const auto application = MakeApplication(count, arguments);
    ShowCritical(QString::fromLocal8Bit(arguments[1]));
    return 0;
}
