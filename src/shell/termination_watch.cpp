#include "shell/termination_watch.h"

#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

// A signal handler may do little more than write into a pipe.
std::array<int, 2> signalPipe{-1, -1};

extern "C" void NoteSignal(int /*signal*/)
{
    const char note = 1;
    [[maybe_unused]] const ssize_t written = ::write(signalPipe[1], &note, 1);
}

} // namespace

TerminationWatch::TerminationWatch(QObject* parent) : QObject(parent)
{
    if (::pipe2(signalPipe.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    auto* notifier = new QSocketNotifier(signalPipe[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        char note = 0;
        if (::read(signalPipe[0], &note, 1) == 1)
            Q_EMIT TerminationAsked();
    });
    struct sigaction action = {};
    action.sa_handler = NoteSignal;
    action.sa_flags = SA_RESTART;
    for (const int number : {SIGTERM, SIGINT, SIGHUP})
        ::sigaction(number, &action, nullptr);
}
