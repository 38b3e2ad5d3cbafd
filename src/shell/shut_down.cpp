#include "shell/shut_down.h"

#include "platform/message_box.h"
#include "shell/open_databases.h"

#include <cstdlib>

std::function<void()> EndProcess = [] { std::quick_exit(0); };

void CloseAndCompact()
{
    const QString failures = CloseAndCompactFiles();
    // Somebody may have taken the files away meanwhile.
    std::error_code missing;
    const bool there = std::filesystem::exists(DrawDataPath, missing) && std::filesystem::exists(UserDataPath, missing);
    if (!failures.isEmpty())
        ShowMessage(there ? failures + Crlf + QStringLiteral("Nothing that you stored is lost.") : failures);
    EndProcess();
}
