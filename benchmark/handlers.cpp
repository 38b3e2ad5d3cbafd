#include "rows.h"

#include "player.h"
#include "shell/main_window.h"
#include "shell/open_databases.h"

#include <QApplication>

#include <algorithm>
#include <cstdio>

namespace {

constexpr double FrameMilliseconds = 16;
constexpr size_t ShownSteps = 10;

struct TimedStep
{
    QString what;
    std::vector<double> waits;
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
        size_t place = 0;
        for (const auto& [when, steps] :
             {std::pair("first", Openings()), std::pair("again", Openings()), std::pair("then", Handlers())}) {
            for (const Step& step : steps) {
                if (place == timed.size())
                    timed.push_back({QLatin1String(when) + QStringLiteral(": ") + step.what + QStringLiteral(" (") +
                                         step.control + u')',
                                     {}});
                timed[place++].waits.push_back(player.Take(step));
            }
        }
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
                step.waits.clear();
    }
    std::sort(timed.begin(), timed.end(),
              [](const TimedStep& a, const TimedStep& b) { return Median(a.waits) > Median(b.waits); });
    const auto late = std::count_if(timed.begin(), timed.end(),
                                    [](const TimedStep& step) { return Median(step.waits) >= FrameMilliseconds; });
    std::printf("\n%d of %d handlers took a frame of %.1f ms or longer until all was seen. The slowest:\n",
                static_cast<int>(late), static_cast<int>(timed.size()), FrameMilliseconds);
    for (size_t i = 0; i < std::min(timed.size(), ShownSteps); ++i)
        std::printf("%-70s %8.3f ms\n", qPrintable(timed[i].what), Median(timed[i].waits));
    std::fflush(stdout);
}
