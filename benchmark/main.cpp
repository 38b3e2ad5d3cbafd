// Measures what a player waits for, each beside a floor: bench [--runs N] [--rows TEXT] [--size N]

#include "bench_data.h"
#include "look/style.h"
#include "rows.h"
#include "shell/main_window.h"
#include "store/open_databases.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

const QString HandlersRow = u"handlers"_s;

struct Wishes
{
    int runs;
    QString rows;
    bool counted;
};

bool Wanted(const Wishes& wishes, const QString& row)
{
    return row.contains(wishes.rows, Qt::CaseInsensitive);
}

void Measure(const std::vector<Row>& rows, const Wishes& wishes, bool onLong)
{
    for (const Row& row : rows) {
        if (!Wanted(wishes, row.name))
            continue;
        if (wishes.counted)
            CountRow(row);
        else
            MeasureRow(row, wishes.runs, onLong);
    }
}

void MeasureHistory(const DataSize& size, const std::filesystem::path& folder, const Wishes& wishes)
{
    const auto data = folder / "data";
    const auto work = folder / "work";
    const bool onLong = size.draws != 0;
    MakeData(size, BENCH_STARTER, data);
    std::filesystem::copy(data, work);
    PrintHeading(QLatin1String(size.name));
    if (!wishes.counted)
        Measure(ProcessRows(data, work), wishes, onLong);
    const auto shown = folder / "shown";
    std::filesystem::copy(data, shown);
    SetProgramDir(shown);
    OpenDatabaseFiles();
    {
        MainWindow window;
        window.show();
        window.activateWindow();
        Measure(PageRows(window), wishes, onLong);
        Measure(RecordRows(work), wishes, onLong);
    }
    CloseDatabaseFiles();
    if (!wishes.counted && Wanted(wishes, HandlersRow))
        MeasureHandlers(data, work, wishes.runs);
}

} // namespace

int main(int count, char** arguments)
{
    QApplication application(count, arguments);
    QApplication::setStyle(new Style);
    QCommandLineParser options;
    options.addHelpOption();
    options.addOptions({{"runs", "How often each row is measured.", "N", "11"},
                        {"rows", "Only the rows whose names contain the text; 'handlers' for the handlers.", "TEXT"},
                        {"size", "How many draws and entries the second history has.", "N", "100000"},
                        {"once", "Runs the program's part of the rows once, for a count of its instructions."}});
    options.process(application);
    const Wishes wishes{std::max(1, options.value("runs").toInt()), options.value("rows"), options.isSet("once")};
    const int large = std::max(1, options.value("size").toInt());
    try {
        const QTemporaryDir folder;
        const std::filesystem::path root = folder.path().toStdString();
        MeasureHistory({"The starter history, 200 users, 10,000 entries", 0, 200, std::min(10000, large), 10000},
                       root / "starter", wishes);
        if (!wishes.counted)
            MeasureHistory({"A long history: as many Main draws, Thunderball draws and entries as were asked for",
                            large, 200, large, 10000},
                           root / "long", wishes);
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "bench: %s\n", failure.what());
        return 1;
    }
    return 0;
}
