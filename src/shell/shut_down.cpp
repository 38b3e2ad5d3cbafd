#include "shell/shut_down.h"

#include "platform/message_box.h"
#include "shell/open_databases.h"

#include <cstdlib>

std::function<void()> EndProcess = [] { std::quick_exit(0); };

void CloseAndCompact()
{
    const QString failures = CloseAndCompactFiles();
    if (!failures.isEmpty())
        ShowMessage(failures + Crlf + QStringLiteral("Nothing that you stored is lost."));
    EndProcess();
}
