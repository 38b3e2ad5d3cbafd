#include "shell/start_up.h"

#include "platform/failure.h"
#include "platform/message_box.h"
#include "shell/open_databases.h"
#include "shell/shut_down.h"

#include <QStringList>

void OpenDatabases()
{
    try {
        OpenDatabaseFiles();
    } catch (const Failure&) {
        ShowCritical(
            QStringList{QStringLiteral("There is a problem with the database files."),
                        QStringLiteral("If the problem persists, download with database files"),
                        QStringLiteral("from https://www.tavenor.example and put them in the Tavenor 3 directory"),
                        QStringLiteral("or contact us at support@tavenor.example")}
                .join(Crlf));
        EndProcess();
    }
}
