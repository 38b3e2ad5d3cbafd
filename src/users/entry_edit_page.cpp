#include "users/entry_edit_page.h"

#include "balls/ball_edit.h"
#include "balls/ball_fields.h"
#include "controls/guard.h"
#include "controls/message_box.h"
#include "game/game.h"
#include "look/button.h"
#include "store/entry_changes.h"
#include "store/open_databases.h"
#include "users/day_boxes.h"

#include <QPushButton>

using namespace Qt::StringLiterals;

EntryEditPage::EntryEditPage()
    : EntryPage(20),
      F20num(new BallFields(BallNames())),
      F20day(new DayBoxes({u"F20day"_s, {}, {}}, QString())),
      F20store(AddFooterDefault(u"Store Changes"_s, u"F20store"_s))
{
    Build(F20num, F20day);
    // The page is shown without an entry where another copy has deleted the chosen one.
    F20num->SetRule(EntryEditingRule(ShownGame()));
    F20num->Clear();
    ConnectGuarded(F20num, &BallFields::Completed, this, [this] { F20store->setFocus(Qt::TabFocusReason); });
    ConnectGuarded(F20store, &QPushButton::clicked, this, [this] { F20store_Click(); });
    ConnectGuarded(Back(), &QPushButton::clicked, this, [this] { F20back_Click(); });
}

void EntryEditPage::Prepare()
{
    constexpr int last = EntryBalls - 1;
    const EntryRow entry = ShowHead();
    shown = entries.Mark();
    F20num->SetRule(EntryEditingRule(ShownGame()));
    F20num->Show(entry.numbers);
    F20num->Field(last)->setAccessibleName(ShownGame().BallCaption(last));
    F20day->SetDays(entry.days);
    F20num->FocusField(0);
}

bool EntryEditPage::HasEqualMainBalls() const
{
    QStringList texts;
    for (int slot = 0; slot < ShownGame().mainBalls; ++slot)
        texts.append(F20num->Text(slot));
    return texts.removeDuplicates() > 0;
}

void EntryEditPage::F20store_Click()
{
    if (!F20num->AreAccepted())
        return;
    F20num->Sort(ShownGame().mainBalls);
    if (HasEqualMainBalls()) {
        ShowMessage((ShownGame().IsMain() ? u"Two or more balls have the same value,"_s
                                          : u"Two or more main balls have the same value,"_s) +
                    Crlf + u"please retry."_s);
        return;
    }
    StoreEntryChanges(shown, F20num->Typed<EntryNumbers>(), F20day->Days());
    Q_EMIT Stored();
    ShowMessage(u"The changes have been stored."_s);
    hide();
}

void EntryEditPage::F20back_Click()
{
    const Answer answer = AskYesNoCancel(u"Do you want to save the changes to this entry"_s);
    if (answer == Answer::Yes)
        F20store_Click();
    else if (answer == Answer::No)
        hide();
}
