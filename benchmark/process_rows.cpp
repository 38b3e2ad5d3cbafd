#include "rows.h"

#include "bench_data.h"
#include "records/engine.h"
#include "store/open_databases.h"

#include <array>
#include <chrono>
#include <fcntl.h>
#include <fstream>
#include <memory>
#include <spawn.h>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

double NowInMilliseconds()
{
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

/// A program that runs under the observer plugin in a folder.
class Child
{
public:
    Child(const std::string& program, const std::filesystem::path& folder, const std::string& task)
    {
        std::array<int, 2> ends{};
        if (::pipe2(ends.data(), O_CLOEXEC) != 0)
            throw std::runtime_error("No pipe to a child process");
        const std::string plugin = "QT_QPA_GENERIC_PLUGINS=observer:" + task;
        std::vector<char*> environment{const_cast<char*>(plugin.c_str()),
                                       const_cast<char*>("QT_PLUGIN_PATH=" BENCH_PLUGINS)};
        for (char** variable = environ; *variable != nullptr; ++variable)
            environment.push_back(*variable);
        environment.push_back(nullptr);
        // The program itself would take an argument for its folder.
        char* const argument = program == BENCH_PROGRAM ? nullptr : password.data();
        const std::array<char*, 3> arguments{const_cast<char*>(program.c_str()), argument, nullptr};
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_addchdir_np(&actions, folder.c_str());
        posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
        started = NowInMilliseconds();
        const int failed =
            ::posix_spawn(&process, program.c_str(), &actions, nullptr, arguments.data(), environment.data());
        posix_spawn_file_actions_destroy(&actions);
        ::close(ends[1]);
        output = ends[0];
        if (failed != 0)
            throw std::runtime_error(program + " could not be started");
    }
    ~Child()
    {
        ::close(output);
        if (process != 0) {
            ::kill(process, SIGKILL);
            ::waitpid(process, nullptr, 0);
        }
    }
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    double Started() const { return started; }

    /// The time at which the observer saw what it tells by this word.
    double TimeOf(const std::string& word)
    {
        std::string line;
        for (char letter = 0; ::read(output, &letter, 1) == 1;) {
            if (letter != '\n') {
                line += letter;
                continue;
            }
            if (line.starts_with(word + ' '))
                return std::stod(line.substr(word.size() + 1)) / 1e6;
            line.clear();
        }
        throw std::runtime_error("A child process ended before it had " + word);
    }

    double WaitForEnd()
    {
        int status = 0;
        ::waitpid(process, &status, 0);
        const double ended = NowInMilliseconds();
        process = 0;
        if (status != 0)
            throw std::runtime_error("A child process failed");
        return ended;
    }

    double ResidentMebibytes() const
    {
        std::ifstream sizes("/proc/" + std::to_string(process) + "/statm");
        double whole = 0;
        double resident = 0;
        sizes >> whole >> resident;
        return resident * static_cast<double>(::sysconf(_SC_PAGESIZE)) / (1 << 20);
    }

private:
    std::string password = PasswordOf(DrawConnect);
    pid_t process = 0;
    int output = -1;
    double started = 0;
};

double Start(const std::string& program, const std::filesystem::path& folder)
{
    Child child(program, folder, "start");
    const double painted = child.TimeOf("painted");
    return painted - child.Started();
}

double End(const std::string& program, const std::filesystem::path& folder)
{
    Child child(program, folder, "end");
    const double closing = child.TimeOf("closing");
    return child.WaitForEnd() - closing;
}

double Memory(const std::string& program, const std::filesystem::path& folder, const std::string& task)
{
    Child child(program, folder, task);
    child.TimeOf("settled");
    return child.ResidentMebibytes();
}

} // namespace

std::vector<Row> ProcessRows(const std::filesystem::path& data, const std::filesystem::path& work)
{
    const std::string program = BENCH_PROGRAM;
    for (const char* folder : {"program", "floor"})
        std::filesystem::copy(data, work / folder);
    const auto own = work / "program";
    const auto other = work / "floor";
    return {{u"start: process start to first paint"_s,
             {1.2, 1.2},
             [=] { return Start(program, own); },
             [=] { return Start(BENCH_BARE_WINDOW, other); }},
            {u"end: close to process end"_s,
             {1.3, 1.3},
             [=] { return End(program, own); },
             [=] { return End(BENCH_BARE_WINDOW, other); }},
            {u"memory at the start page"_s,
             {1.3, 1.3},
             [=] { return Memory(program, own, "rest"); },
             [=] { return Memory(BENCH_BARE_WINDOW, other, "rest"); },
             "MiB"},
            {u"memory after visiting every page"_s,
             {1.6, 2.0},
             [=] { return Memory(program, own, "visit"); },
             [=] { return Memory(BENCH_BARE_WINDOW, other, "rest"); },
             "MiB"}};
}
