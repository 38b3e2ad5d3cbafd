#include "utilities/import.h"

#include "base/failure.h"
#include "records/journals.h"
#include "store/open_databases.h"

Import::Import(const DatabaseFile& imported, const std::filesystem::path& chosen) : file(imported)
{
    const std::string doing = "The file " + file.live.filename().string() + " could not be replaced";
    RefuseWorkingFile(chosen, doing);
    RefuseUnfinished(chosen, doing);
    live.emplace(file.live, file.connect, doing);
    if (!live->Alone())
        throw Failure(doing, "another copy of the program is using it, or it may not be changed", file.live.string());
    live->Settle();
    copy.emplace(TemporaryFile::Beside(file.live, file.live.filename().string()));
    copy->CopyFrom(OpenToRead(chosen).Number());
}

void Import::Prove()
{
    try {
        OpenDatabaseFilesWith(copy->Path(), file.live);
        ReadEveryRow();
        CloseDatabaseFiles();
    } catch (...) {
        CloseDatabaseFiles();
        copy.reset();
        live.reset();
        throw;
    }
}

void Import::Complete()
{
    live->ReplaceBy(std::move(*copy));
}
