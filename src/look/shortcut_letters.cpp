#include "look/shortcut_letters.h"

#include "look/button.h"

#include <QApplication>
#include <QLabel>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

bool lettersAreShown = false;

QChar LetterOf(const QAbstractButton& button)
{
    const QKeySequence keys = button.shortcut();
    return keys.isEmpty() ? QChar() : QChar(keys[0].key());
}

bool IsDefaultAction(const Button& button)
{
    return button.isDefault() || button.property(AccentProperty).toBool();
}

QString FreeLetters(const Button& button, const QString& taken)
{
    QString letters;
    for (const QChar letter : button.text().toUpper())
        if (letter >= u'A' && letter <= u'Z' && !taken.contains(letter) && !letters.contains(letter))
            letters += letter;
    return letters;
}

} // namespace

bool AltIsHeld()
{
    return lettersAreShown;
}

void SetShortcutLetter(QAbstractButton& button, QChar letter)
{
    const QKeySequence keys =
        letter.isNull() ? QKeySequence() : QKeySequence(Qt::ALT | static_cast<Qt::Key>(letter.toUpper().unicode()));
    if (button.shortcut() != keys)
        button.setShortcut(keys);
}

void GiveShortcutLetters(const QWidget& window)
{
    QList<Button*> waiting;
    QString taken;
    QString awaited;
    for (auto* button : window.findChildren<QAbstractButton*>()) {
        auto* pushed = qobject_cast<Button*>(button);
        // Where a default action may yet appear, its key must not do anything else meanwhile.
        if (pushed != nullptr && pushed->isHidden() && pushed->parentWidget()->isVisible() && IsDefaultAction(*pushed))
            awaited += pushed->text().left(1).toUpper();
        if (!button->isVisible() || !button->isEnabled())
            continue;
        if (pushed != nullptr)
            waiting.insert(IsDefaultAction(*pushed) ? 0 : waiting.size(), pushed);
        else if (const QChar letter = LetterOf(*button); !letter.isNull())
            taken += letter;
    }
    for (Button* button : QList<Button*>(waiting)) {
        const QString letters = FreeLetters(*button, taken + (IsDefaultAction(*button) ? QString() : awaited));
        if (!letters.startsWith(button->text().left(1).toUpper()) || letters.isEmpty())
            continue;
        SetShortcutLetter(*button, letters[0]);
        taken += letters[0];
        waiting.removeOne(button);
    }
    taken += awaited;
    while (!waiting.isEmpty()) {
        // Whoever has fewest letters left to choose from goes first.
        const auto next =
            std::min_element(waiting.begin(), waiting.end(), [&](const Button* first, const Button* second) {
                return FreeLetters(*first, taken).size() < FreeLetters(*second, taken).size();
            });
        const QString letters = FreeLetters(**next, taken);
        SetShortcutLetter(**next, letters.isEmpty() ? QChar() : letters[0]);
        taken += letters.left(1);
        waiting.erase(next);
    }
}

void ShowShortcutLetters(bool shown)
{
    if (shown == lettersAreShown)
        return;
    lettersAreShown = shown;
    // The toolkit's own labels have letters too.
    for (QWidget* widget : QApplication::allWidgets())
        if (qobject_cast<QAbstractButton*>(widget) != nullptr || qobject_cast<QLabel*>(widget) != nullptr)
            widget->update();
}

QString DrawnCaption(const QAbstractButton& button)
{
    const QChar letter = LetterOf(button);
    const qsizetype place = letter.isNull() ? -1 : button.text().indexOf(letter, 0, Qt::CaseInsensitive);
    // An ampersand of the caption itself stands for no mark.
    const auto plain = [](QString part) { return part.replace(u'&', u"&&"_s); };
    if (!lettersAreShown || place < 0 || !button.isActiveWindow())
        return plain(button.text());
    return plain(button.text().left(place)) + u'&' + plain(button.text().mid(place));
}
