// A plugin that any Qt program can be started with, so that nothing in the program itself has to serve the measuring.
// It watches for the first painting of the main window, and then does what the word behind its name says. What it sees
// it tells on the standard output: a word, and the time in nanoseconds.

#include "player.h"

#include <QApplication>
#include <QEvent>
#include <QGenericPlugin>
#include <QTimer>
#include <QWidget>

#include <chrono>
#include <cstdio>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int SettlingMilliseconds = 200;

void Tell(const char* what)
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch() / std::chrono::nanoseconds(1);
    std::printf("%s %lld\n", what, static_cast<long long>(now));
    std::fflush(stdout);
}

class Observer : public QObject
{
    Q_OBJECT

public:
    explicit Observer(QString observerTask) : task(std::move(observerTask)) { qApp->installEventFilter(this); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const bool paints = event->type() == QEvent::Paint && watched->isWidgetType();
        auto* window = paints ? static_cast<QWidget*>(watched)->window() : nullptr;
        if (window != nullptr && window->windowType() == Qt::Window) {
            qApp->removeEventFilter(this);
            // The painting is going on; what is queued comes after it.
            QMetaObject::invokeMethod(
                this, [this, window] { Painted(*window); }, Qt::QueuedConnection);
        }
        return false;
    }

private:
    void Painted(QWidget& window)
    {
        Tell("painted");
        if (task == "start"_L1)
            ::_exit(0);
        QTimer::singleShot(SettlingMilliseconds, this, [this, &window] { GoOn(window); });
    }

    void GoOn(QWidget& window)
    {
        if (task == "end"_L1) {
            Tell("closing");
            window.close();
            return;
        }
        if (task == "visit"_L1) {
            Player player(window);
            for (const Step& step : Openings())
                player.Take(step);
        }
        QTimer::singleShot(SettlingMilliseconds, this, [] { Tell("settled"); });
    }

    QString task;
};

} // namespace

class ObserverPlugin : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "observer.json")

public:
    QObject* create(const QString& /*name*/, const QString& task) override { return new Observer(task); }
};

#include "observer.moc"
