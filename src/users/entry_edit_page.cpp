#include "users/entry_edit_page.h"

#include "balls/ball_edit.h"
#include "balls/ball_fields.h"
#include "base/numbers.h"
#include "controls/guard.h"
#include "controls/message_box.h"
#include "game/game.h"
#include "look/button.h"
#include "store/entry_changes.h"
#include "store/open_databases.h"
#include "store/user_records.h"
#include "users/day_boxes.h"
#include "users/entry_head.h"

#include <QPushButton>

using namespace Qt::StringLiterals;

EntryEditPage::EntryEditPage()
    : PageFrame(20, u"View Entry in Detail"_s),
      head(new EntryHead(u"F20"_s)),
      F20num(new BallFields({u"F20num"_s, u"F20ball"_s, u"F20caption"_s, {1, 2, 3, 4, 5, 6}}, EntryBallCaptions())),
      F20day(new DayBoxes({u"F20day"_s, {}, {}}, QString())),
      F20back(AddFooterButton(u"BACK"_s, u"F20back"_s)),
      F20store(AddFooterDefault(u"Store Changes"_s, u"F20store"_s))
{
    KeepThunderballCaptionOnly(F20num, u"F20thunderlabel"_s);
    // The page is shown without an entry where another copy has deleted the chosen one.
    F20num->SetRule(EntryEditingRule(MainGame));
    F20num->Recolour();
    auto* ballCard = new Card;
    ballCard->Content()->addWidget(F20num);
    auto* dayCard = new Card;
    dayCard->Content()->addWidget(F20day);
    for (Card* card : {static_cast<Card*>(head), ballCard, dayCard})
        Body()->addWidget(card);
    MakeForm();
    SetBackButton(F20back);
    ConnectGuarded(F20num, &BallFields::Completed, this, [this] { F20store->setFocus(Qt::TabFocusReason); });
    ConnectGuarded(F20store, &QPushButton::clicked, this, [this] { F20store_Click(); });
    ConnectGuarded(F20back, &QPushButton::clicked, this, [this] { F20back_Click(); });
}

void EntryEditPage::Prepare()
{
    const EntryRow entry = ReadEntry(entries);
    const Game& game = GameOfDrawType(entry.drawType);
    const bool isMain = &game == &MainGame;
    shown = entries.Mark();
    head->Show(ReadUser(users).name, game);
    F20num->SetRule(EntryEditingRule(game));
    for (int slot = 0; slot < F20num->Count(); ++slot)
        F20num->SetText(slot, PlainNumber(entry.numbers.at(static_cast<size_t>(slot))));
    F20num->Recolour();
    F20num->SetLastApart(!isMain);
    F20num->Caption(5)->setVisible(!isMain);
    F20num->Field(5)->setAccessibleName(isMain ? MainGame.BallCaption(5) : ThunderballGame.extraBallName);
    F20day->SetDays(entry.days);
    ShowInFront();
    F20num->FocusField(0);
}

bool EntryEditPage::HasEqualTexts() const
{
    QStringList texts;
    for (int slot = 0; slot < head->ShownGame().mainBalls; ++slot)
        texts.append(F20num->Text(slot));
    return texts.removeDuplicates() > 0;
}

void EntryEditPage::F20store_Click()
{
    const Game& game = head->ShownGame();
    F20num->Sort(game.mainBalls);
    F20num->Recolour();
    if (HasEqualTexts()) {
        const QString first = &game == &MainGame ? u"Two or more balls have the same value,"_s
                                                 : u"Two or more main balls have the same value,"_s;
        ShowMessage(first + Crlf + u"please retry."_s);
        return;
    }
    StoreEntryChanges(shown, F20num->TypedEntry(), F20day->Days());
    Q_EMIT Stored();
    ShowMessage(u"The changes have been stored."_s);
    hide();
}

void EntryEditPage::F20back_Click()
{
    switch (AskYesNoCancel(u"Do you want to save the changes to this entry"_s)) {
    case Answer::Yes:
        F20store_Click();
        break;
    case Answer::No:
        hide();
        break;
    case Answer::Cancel:
        break;
    }
}
