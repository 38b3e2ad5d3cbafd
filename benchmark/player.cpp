#include "player.h"

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

void OpenFromMenu(std::vector<Step>& steps, int group, const QStringList& pages)
{
    steps.push_back({u"open the group %1"_s.arg(group), u"Button%1"_s.arg(group)});
    for (int number = 1; number <= pages.size(); ++number)
        steps.push_back({u"open "_s + pages[number - 1], u"Suboption%1"_s.arg(number)});
}

void OpenByButtons(std::vector<Step>& steps, const QStringList& buttons)
{
    for (const QString& button : buttons)
        steps.push_back({u"press "_s + button, button});
}

void FillBalls(std::vector<Step>& steps, const QString& field, const QList<int>& indices)
{
    int number = 11;
    for (const int index : indices)
        steps.push_back({u"type into "_s + field, field + u'_' + QString::number(index), QString::number(--number),
                         Qt::Key_Return});
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
    OpenFromMenu(steps, 1, {"Add Main Draw", "Add Thunderball Draw"});
    OpenFromMenu(steps, 2, {"View Latest Draw", "View Any Single Draw", "View or Edit All Draws"});
    OpenByButtons(steps, {"F10mainviewbutton", "F14back", "F10thunderviewbutton", "F15back", "F10maineditbutton",
                          "F16back", "F10thundereditbutton", "F17back"});
    OpenFromMenu(steps, 3, {"User Details", "Add New Entries", "View or Edit Entries", "Check Your Entries"});
    steps.push_back({"open View or Edit Entries again", "Suboption3"});
    OpenByButtons(steps, {"F13view", "F19back", "F13edit", "F20back"});
    OpenFromMenu(steps, 4, {"Entry Generator"});
    for (const auto& [suboption, page, charts] : {std::tuple(1, 21, 6), std::tuple(2, 22, 4)}) {
        steps.push_back({"open the group 5", "Button5"});
        steps.push_back({"open Draw Analysis", u"Suboption%1"_s.arg(suboption)});
        for (int screen = 1; screen <= charts; ++screen)
            steps.push_back({u"open a chart"_s, u"F%1screen_%2"_s.arg(page).arg(screen)});
        steps.push_back({"open the ball data", u"F%1screen_%2"_s.arg(page).arg(charts + 1)});
        steps.push_back({"leave the ball data", u"F%1back"_s.arg(page + 2)});
    }
    OpenByButtons(steps, {"Logo", "about", "F0links", "F25back", "advanced"});
    return steps;
}

std::vector<Step> Handlers()
{
    std::vector<Step> steps;
    const auto add = [&steps](const char* control, const QString& text = {}, Qt::Key key = {}) {
        const QString name = QLatin1String(control);
        steps.push_back({u"use "_s + name, name, text, key});
    };
    OpenFromMenu(steps, 1, {"Add Main Draw"});
    FillBalls(steps, "F6MBall1", {1, 2, 3, 4, 5, 6, 0});
    add("F6Store");
    OpenFromMenu(steps, 1, {"Add Main Draw", "Add Thunderball Draw"});
    FillBalls(steps, "F7TBall1", {1, 2, 3, 4, 5, 0});
    add("F7Store");
    OpenFromMenu(steps, 2, {"View Latest Draw", "View Any Single Draw"});
    add("F9Cal", {}, Qt::Key_Left);
    OpenFromMenu(steps, 2, {"View Latest Draw", "View Any Single Draw", "View or Edit All Draws"});
    add("F10Grid1", {}, Qt::Key_Down);
    add("F10Grid1", {}, Qt::Key_End);
    add("F10maineditbutton");
    FillBalls(steps, "F16number", {1});
    add("F16save");
    // Whether the page stays depends on the draw: the ball may be among its others.
    OpenFromMenu(steps, 2, {"View Latest Draw", "View Any Single Draw", "View or Edit All Draws"});
    add("F10maindeletebutton");
    add("F10thunderdeletebutton");
    OpenFromMenu(steps, 3, {"User Details"});
    add("F11list", {}, Qt::Key_Down);
    add("F11edituser");
    add("F11spend", "9");
    add("F11storech");
    add("F11adduser");
    add("F11seluser", "A new player");
    add("F11spend", "100");
    add("F11storenu");
    add("F11list", {}, Qt::Key_End);
    add("F11deleteuser");
    OpenFromMenu(steps, 3, {"User Details", "Add New Entries"});
    add("F18user", {}, Qt::Key_Down);
    add("F18type", {}, Qt::Key_Down);
    add("F18type", {}, Qt::Key_Up);
    FillBalls(steps, "F18ent", {1, 2, 3, 4, 5, 6});
    add("F18selallday");
    add("F18store");
    OpenFromMenu(steps, 3, {"User Details", "Add New Entries", "View or Edit Entries"});
    add("F13user", {}, Qt::Key_Down);
    add("F13typethunder");
    add("F13typemain");
    add("F13grid", {}, Qt::Key_Down);
    add("F13edit");
    FillBalls(steps, "F20num", {1});
    add("F20store");
    OpenFromMenu(steps, 3, {"User Details", "Add New Entries", "View or Edit Entries"});
    add("F13grid", {}, Qt::Key_Down);
    add("F13delete");
    OpenFromMenu(steps, 3, {"User Details", "Add New Entries", "View or Edit Entries", "Check Your Entries"});
    add("F12dateselect");
    add("F12datelatest");
    add("F12user", {}, Qt::Key_Down);
    add("F12check");
    add("F12clear");
    OpenFromMenu(steps, 4, {"Entry Generator"});
    add("F26combo_0", {}, Qt::Key_Down);
    add("F26combo_1", {}, Qt::Key_Down);
    add("F26text", "200", Qt::Key_Return);
    add("F26go");
    add("F26store");
    OpenFromMenu(steps, 5, {"Main Draw Analysis"});
    add("F21screen_7");
    add("F23enter", "49", Qt::Key_Return);
    OpenByButtons(steps, {"Logo", "F0links", "F25next", "F25prev"});
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
