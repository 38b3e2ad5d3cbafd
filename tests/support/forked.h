#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QStringList>

#include <cstdio>
#include <functional>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

/// Keeps a forked process from painting: it has none of the threads that painting counts on.
class NoPainting : public QObject
{
public:
    NoPainting() { QCoreApplication::instance()->installEventFilter(this); }

protected:
    bool eventFilter(QObject* /*receiver*/, QEvent* event) override
    {
        return event->type() == QEvent::UpdateRequest || event->type() == QEvent::Expose;
    }
};

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

/// A process that runs steps of a test. What it says has arrived even when it is killed right afterwards.
class ForkedProcess
{
public:
    using Say = std::function<void(const QString&)>;

    explicit ForkedProcess(const std::function<void(const Say&)>& steps)
    {
        if (::pipe(ends) != 0)
            qFatal("There is no pipe");
        std::fflush(nullptr);
        child = ::fork();
        if (child != 0) {
            ::close(ends[1]);
            return;
        }
        // Whatever hangs is killed.
        ::alarm(60);
        const Say say = [this](const QString& line) {
            const QByteArray bytes = line.toUtf8() + '\n';
            (void)!::write(ends[1], bytes.constData(), static_cast<size_t>(bytes.size()));
        };
        try {
            steps(say);
        } catch (const std::exception& failure) {
            say(u"thrown: "_s + QString::fromUtf8(failure.what()));
            ::_exit(2);
        }
        ::_exit(0);
    }
    ForkedProcess(const ForkedProcess&) = delete;
    ForkedProcess& operator=(const ForkedProcess&) = delete;

    Forked Wait()
    {
        QByteArray said;
        char buffer[4096];
        for (ssize_t got = 0; (got = ::read(ends[0], buffer, sizeof buffer)) > 0;)
            said.append(buffer, got);
        ::close(ends[0]);
        int status = 0;
        rusage usage{};
        ::wait4(child, &status, 0, &usage);
        return {WIFSIGNALED(status) ? WTERMSIG(status) : 0, WIFEXITED(status) ? WEXITSTATUS(status) : 0,
                usage.ru_maxrss, QString::fromUtf8(said).split(u'\n', Qt::SkipEmptyParts)};
    }

private:
    int ends[2]{};
    pid_t child = 0;
};

/// Runs steps in a process of their own and waits for its end.
inline Forked RunForked(const std::function<void(const ForkedProcess::Say&)>& steps)
{
    return ForkedProcess(steps).Wait();
}
