#include "look/shortcut_letters.h"

#include "look/button.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>

namespace {

bool altIsHeld = false;

QChar LetterOf(const QAbstractButton& button)
{
    const QKeySequence keys = button.shortcut();
    return keys.isEmpty() ? QChar() : QChar(keys[0].key());
}

} // namespace

bool AltIsHeld()
{
    return altIsHeld;
}

void SetShortcutLetter(QAbstractButton& button, QChar letter)
{
    button.setShortcut(QKeySequence(Qt::ALT | static_cast<Qt::Key>(letter.toUpper().unicode())));
}

void GiveShortcutLetters(const QWidget& page, QString taken)
{
    for (auto* button : page.findChildren<Button*>()) {
        for (const QChar letter : button->text().toUpper()) {
            if (letter < u'A' || letter > u'Z' || taken.contains(letter))
                continue;
            taken += letter;
            SetShortcutLetter(*button, letter);
            break;
        }
    }
}

QString DrawnCaption(const QAbstractButton& button)
{
    const QChar letter = LetterOf(button);
    const qsizetype place = letter.isNull() ? -1 : button.text().indexOf(letter, 0, Qt::CaseInsensitive);
    return altIsHeld && place >= 0 ? QString(button.text()).insert(place, u'&') : button.text();
}

bool AltKeyWatch::eventFilter(QObject* watched, QEvent* event)
{
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
    bool held = altIsHeld;
    if (isKey && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Alt)
        held = event->type() == QEvent::KeyPress;
    else if (event->type() == QEvent::WindowDeactivate)
        held = false;
    if (held != altIsHeld) {
        altIsHeld = held;
        for (QWidget* window : QApplication::topLevelWidgets())
            for (auto* button : window->findChildren<QAbstractButton*>())
                button->update();
    }
    return QObject::eventFilter(watched, event);
}
