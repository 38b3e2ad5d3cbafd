#include "utilities/shut_down.h"

#include "controls/message_box.h"
#include "store/open_databases.h"

#include <cstdlib>

using namespace Qt::StringLiterals;

std::function<void()> EndProcess = [] { std::quick_exit(0); };

void CloseAndCompact()
{
    const QString failures = CloseAndCompactFiles();
    // Somebody may have taken the files away meanwhile.
    std::error_code missing;
    const bool there = std::filesystem::exists(DrawDataPath, missing) && std::filesystem::exists(UserDataPath, missing);
    if (!failures.isEmpty())
        ShowMessage(there ? failures + Crlf + u"Nothing that you stored is lost."_s : failures);
    EndProcess();
}
