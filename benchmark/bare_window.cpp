// The floor of start, end and memory: a Qt program with an empty window of the main window's size, that opens both
// files of the folder once, and at its end compacts them, all by the engine's plain calls: bare_window PASSWORD

#include "plain_engine.h"

#include <QApplication>
#include <QCloseEvent>
#include <QWidget>

#include <cstdlib>
#include <memory>

namespace {

const char* const DrawFile = "drawdata.tv3";
const char* const UserFile = "userdata.tv3";

class BareWindow : public QWidget
{
public:
    explicit BareWindow(const std::string& password)
        : key(KeyOf(DrawFile, password)),
          draws(std::make_unique<PlainFile>(DrawFile, key)),
          users(std::make_unique<PlainFile>(UserFile, std::string()))
    {
        resize(1024, 720);
    }

protected:
    void closeEvent(QCloseEvent* /*event*/) override
    {
        draws.reset();
        users.reset();
        CompactPlainly(DrawFile, key);
        CompactPlainly(UserFile, {});
        std::quick_exit(0);
    }

private:
    std::string key;
    std::unique_ptr<PlainFile> draws;
    std::unique_ptr<PlainFile> users;
};

} // namespace

int main(int count, char** arguments)
{
    const QApplication application(count, arguments);
    BareWindow window(count > 1 ? arguments[1] : "");
    window.show();
    return QApplication::exec();
}
