#include "shell/start_up.h"

#include "platform/message_box.h"
#include "shell/open_databases.h"
#include "shell/shut_down.h"
#include "utilities/import.h"

#include <QStringList>

#include <exception>
#include <functional>

namespace {

bool OpenOrEnd(const std::function<void()>& open)
{
    try {
        open();
        return true;
    } catch (const std::exception&) {
        ShowCritical(
            QStringList{QStringLiteral("There is a problem with the database files."),
                        QStringLiteral("If the problem persists, download with database files"),
                        QStringLiteral("from https://www.tavenor.example and put them in the Tavenor 3 directory"),
                        QStringLiteral("or contact us at support@tavenor.example")}
                .join(Crlf));
        EndProcess();
        return false;
    }
}

} // namespace

void OpenDatabases()
{
    OpenOrEnd(OpenDatabaseFiles);
}

void OpenDatabasesAtStart()
{
    OpenOrEnd([] {
        PutBackKeptFiles();
        OpenDatabaseFiles();
    });
}

bool OpenImportedDatabases(Import& import)
{
    return OpenOrEnd([&] {
        OpenDatabaseFiles();
        ReadEveryRow();
        import.Complete();
    });
}
