#include "player.h"

#include "stops.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>
#include <chrono>
#include <ctime>
#include <stdexcept>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

Wait Now()
{
    timespec processor{};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &processor);
    const auto whole = std::chrono::steady_clock::now().time_since_epoch();
    return {std::chrono::duration<double, std::milli>(whole).count(),
            static_cast<double>(processor.tv_sec) * 1e3 + static_cast<double>(processor.tv_nsec) / 1e6};
}

void OpenPage(std::vector<Step>& steps, int group, int suboption)
{
    if (group == 0)
        steps.push_back({u"Logo"_s});
    else
        steps.push_back({u"Button%1"_s.arg(group)});
    if (suboption > 0)
        steps.push_back({u"Suboption%1"_s.arg(suboption)});
}

/// The button by which a modal window of the program's own is left.
const char* LeavingButton(const QDialog& dialog)
{
    constexpr std::pair<const char*, const char*> buttons[] = {
        {"frmmsgbox1", "Command1"}, {"frmday", "store"}, {"frmnumsel", "nostore"}};
    for (const auto& [name, button] : buttons)
        if (dialog.objectName() == QLatin1String(name))
            return button;
    return "back";
}

} // namespace

std::vector<Step> Openings()
{
    std::vector<Step> steps;
    for (const Stop& stop : Stops()) {
        OpenPage(steps, stop.group, stop.suboption);
        for (const char* button : {stop.press, stop.thenPress})
            if (button != nullptr)
                steps.push_back({QLatin1String(button)});
        const bool isAnalysis = stop.group == 5 && stop.suboption > 0 && stop.press == nullptr;
        const auto [page, charts] = stop.suboption == 1 ? std::pair(21, 6) : std::pair(22, 4);
        for (int chart = 1; isAnalysis && chart <= charts; ++chart)
            steps.push_back({u"F%1screen_%2"_s.arg(page).arg(chart)});
    }
    OpenPage(steps, 0, 0);
    steps.insert(steps.end(), {{u"about"_s}, {u"advanced"_s}});
    return steps;
}

std::vector<Step> Handlers()
{
    std::vector<Step> steps;
    const auto on = [&steps](int group, int suboption, std::initializer_list<Step> used) {
        OpenPage(steps, group, suboption);
        steps.insert(steps.end(), used);
    };
    const auto fill = [&steps](const QString& field, std::initializer_list<int> indices) {
        int number = 11;
        for (const int index : indices)
            steps.push_back({u"%1_%2"_s.arg(field).arg(index), QString::number(++number), Qt::Key_Return});
    };
    on(1, 1, {});
    fill(u"F6MBall1"_s, {1, 2, 3, 4, 5, 6, 0});
    steps.push_back({u"F6Store"_s});
    on(1, 2, {});
    fill(u"F7TBall1"_s, {1, 2, 3, 4, 5, 0});
    steps.push_back({u"F7Store"_s});
    on(2, 2, {{u"F9Cal"_s, {}, Qt::Key_Left}});
    on(2, 3, {{u"F10Grid1"_s, {}, Qt::Key_Down}, {u"F10Grid1"_s, {}, Qt::Key_End}, {u"F10maineditbutton"_s}});
    fill(u"F16number"_s, {1});
    // Whether the page stays depends on the draw: the ball may be among its others.
    steps.push_back({u"F16save"_s});
    on(2, 3, {{u"F10maindeletebutton"_s}, {u"F10thunderdeletebutton"_s}});
    on(3, 1,
       {{u"F11list"_s, {}, Qt::Key_Down},
        {u"F11edituser"_s},
        {u"F11spend"_s, u"9"_s},
        {u"F11storech"_s},
        {u"F11adduser"_s},
        {u"F11seluser"_s, u"A new player"_s},
        {u"F11spend"_s, u"100"_s},
        {u"F11storenu"_s},
        {u"F11list"_s, {}, Qt::Key_End},
        {u"F11deleteuser"_s}});
    on(3, 2, {{u"F18user"_s, {}, Qt::Key_Down}, {u"F18type"_s, {}, Qt::Key_Down}, {u"F18type"_s, {}, Qt::Key_Up}});
    fill(u"F18ent"_s, {1, 2, 3, 4, 5, 6});
    steps.insert(steps.end(), {{u"F18selallday"_s}, {u"F18store"_s}});
    on(3, 3,
       {{u"F13user"_s, {}, Qt::Key_Down},
        {u"F13typethunder"_s},
        {u"F13typemain"_s},
        {u"F13grid"_s, {}, Qt::Key_Down},
        {u"F13edit"_s}});
    fill(u"F20num"_s, {1});
    steps.push_back({u"F20store"_s});
    on(3, 3, {{u"F13grid"_s, {}, Qt::Key_Down}, {u"F13delete"_s}});
    on(3, 4,
       {{u"F12dateselect"_s},
        {u"F12datelatest"_s},
        {u"F12user"_s, {}, Qt::Key_Down},
        {u"F12check"_s},
        {u"F12clear"_s}});
    on(4, 1,
       {{u"F26combo_0"_s, {}, Qt::Key_Down},
        {u"F26combo_1"_s, {}, Qt::Key_Down},
        {u"F26text"_s, u"200"_s, Qt::Key_Return},
        {u"F26go"_s},
        {u"F26store"_s}});
    on(5, 1, {{u"F21screen_7"_s}, {u"F23enter"_s, u"49"_s, Qt::Key_Return}});
    on(0, 0, {{u"F0links"_s}, {u"F25next"_s}, {u"F25prev"_s}});
    return steps;
}

Player::Player(QWidget& mainWindow) : window(mainWindow)
{
    qApp->installEventFilter(this);
}

Player::~Player()
{
    qApp->removeEventFilter(this);
}

Wait Player::Take(const Step& step)
{
    auto* control = window.findChild<QWidget*>(step.control);
    if (control == nullptr || !control->isVisible() || !control->isEnabled())
        throw std::runtime_error("There is nothing to use under the name " + step.control.toStdString());
    window.activateWindow();
    QApplication::processEvents();
    longest = {};
    if (auto* button = qobject_cast<QAbstractButton*>(control)) {
        Begin();
        button->click();
        QApplication::processEvents();
        End();
        return longest;
    }
    control->setFocus();
    QApplication::processEvents();
    for (const QChar letter : step.text)
        Type(*control, Qt::Key(letter.toUpper().unicode()), letter);
    if (step.key != Qt::Key())
        Type(*control, step.key, {});
    return longest;
}

void Player::Type(QWidget& control, Qt::Key key, const QString& text)
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
    Begin();
    QApplication::sendEvent(&control, &press);
    QApplication::sendEvent(&control, &release);
    QApplication::processEvents();
    End();
}

bool Player::eventFilter(QObject* watched, QEvent* event)
{
    auto* dialog = event->type() == QEvent::Paint ? qobject_cast<QDialog*>(watched) : nullptr;
    if (dialog != nullptr && dialog->isModal() && dialog != seen) {
        seen = dialog;
        // The window is still to be painted; it is answered afterwards.
        QMetaObject::invokeMethod(
            dialog, [this, dialog] { Answer(*dialog); }, Qt::QueuedConnection);
    }
    return false;
}

void Player::Answer(QDialog& dialog)
{
    End();
    Begin();
    if (auto* box = qobject_cast<QMessageBox*>(&dialog)) {
        QAbstractButton* yes = box->button(QMessageBox::Yes);
        (yes != nullptr ? yes : static_cast<QAbstractButton*>(box->defaultButton()))->click();
    } else if (auto* button = dialog.findChild<QAbstractButton*>(QLatin1String(LeavingButton(dialog)))) {
        button->click();
    }
}

void Player::Begin()
{
    begun = Now();
}

void Player::End()
{
    const Wait now = Now();
    longest.whole = std::max(longest.whole, now.whole - begun.whole);
    longest.processor = std::max(longest.processor, now.processor - begun.processor);
}
