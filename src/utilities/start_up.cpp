#include "utilities/start_up.h"

#include "controls/message_box.h"
#include "store/open_databases.h"
#include "utilities/shut_down.h"

#include <QStringList>

#include <exception>

using namespace Qt::StringLiterals;

bool OpenOrEnd(const std::function<void()>& open)
{
    try {
        open();
        return true;
    } catch (const std::exception&) {
        ShowCritical(QStringList{u"There is a problem with the database files."_s,
                                 u"If the problem persists, download with database files"_s,
                                 u"from https://www.tavenor.example and put them in the Tavenor 3 directory"_s,
                                 u"or contact us at support@tavenor.example"_s}
                         .join(Crlf));
        EndProcess();
        return false;
    }
}

void OpenDatabases()
{
    OpenOrEnd(OpenDatabaseFiles);
}
