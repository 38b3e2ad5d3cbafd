#pragma once

#include <QFile>
#include <QStringList>

#include <cstdio>
#include <functional>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

/// How a process of its own ended, and what it said before, line by line.
struct Forked
{
    /// The signal that killed it, or 0.
    int signal = 0;
    int code = 0;
    /// How much memory it took at most, in KiB.
    long memory = 0;
    QStringList lines;

    QString Text() const { return lines.join(u'|') + u" signal %1 code %2"_s.arg(signal).arg(code); }
};

/// What a forked process says has arrived even when it is killed right afterwards.
using Say = std::function<void(const QString&)>;

/// Runs steps of a test in a process of their own and waits for the end of it, and of all that it has forked itself.
inline Forked RunForked(const std::function<void(const Say&)>& steps)
{
    int ends[2]{};
    if (::pipe(ends) != 0)
        qFatal("There is no pipe");
    std::fflush(nullptr);
    const pid_t child = ::fork();
    if (child == 0) {
        // Whatever hangs is killed.
        ::alarm(60);
        const Say say = [&ends](const QString& line) {
            const QByteArray bytes = line.toUtf8() + '\n';
            (void)!::write(ends[1], bytes.constData(), static_cast<size_t>(bytes.size()));
        };
        steps(say);
        ::_exit(0);
    }
    ::close(ends[1]);
    QFile pipe;
    pipe.open(ends[0], QIODevice::ReadOnly, QFileDevice::AutoCloseHandle);
    const QString said = QString::fromUtf8(pipe.readAll());
    int status = 0;
    rusage usage{};
    ::wait4(child, &status, 0, &usage);
    return {WIFSIGNALED(status) ? WTERMSIG(status) : 0, WIFEXITED(status) ? WEXITSTATUS(status) : 0, usage.ru_maxrss,
            said.split(u'\n', Qt::SkipEmptyParts)};
}
