#include "utilities/start_and_end.h"

#include "controls/message_box.h"
#include "store/open_databases.h"

#include <cstdlib>
#include <exception>

using namespace Qt::StringLiterals;

std::function<void()> EndProcess = [] { std::quick_exit(0); };

bool OpenOrEnd(const std::function<void()>& open)
{
    try {
        open();
        return true;
    } catch (const std::exception&) {
        ShowCritical(u"There is a problem with the database files.\r\n"
                     "If the problem persists, download with database files\r\n"
                     "from https://www.tavenor.example and put them in the Tavenor 3 directory\r\n"
                     "or contact us at support@tavenor.example"_s);
        EndProcess();
        return false;
    }
}

void OpenDatabases()
{
    OpenOrEnd(OpenDatabaseFiles);
}

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
