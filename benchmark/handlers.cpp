#include "rows.h"

#include "bench_data.h"
#include "player.h"
#include "shell/main_window.h"
#include "store/open_databases.h"

#include <QApplication>

#include <algorithm>
#include <cstdio>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

constexpr double FrameMilliseconds = 16;
constexpr size_t ShownSteps = 10;

struct TimedStep
{
    QString what;
    std::vector<double> waits;
    std::vector<double> processor;
};

/// One way through all steps, on files as they were and in a window that has shown nothing yet.
void TakeAll(std::vector<TimedStep>& timed, const std::filesystem::path& data, const std::filesystem::path& folder)
{
    std::filesystem::remove_all(folder);
    std::filesystem::copy(data, folder);
    SetProgramDir(folder);
    OpenDatabaseFiles();
    {
        MainWindow window;
        window.show();
        window.activateWindow();
        QApplication::processEvents();
        Player player(window);
        const int entriesBefore = entries.Count();
        size_t place = 0;
        QString group;
        for (const auto& [when, steps] :
             {std::pair("first", Openings()), std::pair("again", Openings()), std::pair("then", Handlers())}) {
            for (const Step& step : steps) {
                if (step.control.startsWith(u"Button"_s))
                    group = step.control;
                if (place == timed.size())
                    timed.push_back({u"%1: %2 > %3"_s.arg(QLatin1String(when), group, step.control), {}, {}});
                const Wait wait = player.Take(step);
                timed[place].waits.push_back(wait.whole);
                timed[place++].processor.push_back(wait.processor);
            }
        }
        // One entry was typed and one deleted; what is more are the built lines.
        if (entries.Count() - entriesBefore != BuiltLines)
            throw std::runtime_error("The handlers did not store what they were given");
    }
    CloseDatabaseFiles();
}

} // namespace

void MeasureHandlers(const std::filesystem::path& data, const std::filesystem::path& work, int runs)
{
    std::vector<TimedStep> timed;
    for (int run = 0; run <= runs; ++run) {
        TakeAll(timed, data, work / "handlers");
        // What Qt and the engine load once a process is no handler's own.
        if (run == 0)
            for (TimedStep& step : timed)
                step = {step.what, {}, {}};
    }
    std::sort(timed.begin(), timed.end(),
              [](const TimedStep& a, const TimedStep& b) { return Median(a.processor) > Median(b.processor); });
    const auto late = [&timed](std::vector<double> TimedStep::*times) {
        return static_cast<int>(std::count_if(timed.begin(), timed.end(), [times](const TimedStep& step) {
            return Median(step.*times) >= FrameMilliseconds;
        }));
    };
    std::printf(
        "\nOf %d handlers, %d kept the player waiting for a frame of %.0f ms or longer, and %d kept the processor "
        "busy for so long. The slowest:\n%-70s %10s %10s\n",
        static_cast<int>(timed.size()), late(&TimedStep::waits), FrameMilliseconds, late(&TimedStep::processor), "",
        "wait", "processor");
    for (size_t i = 0; i < std::min(timed.size(), ShownSteps); ++i)
        std::printf("%-70s %10.3f %10.3f ms\n", qPrintable(timed[i].what), Median(timed[i].waits),
                    Median(timed[i].processor));
    std::fflush(stdout);
}
