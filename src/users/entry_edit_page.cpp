#include "users/entry_edit_page.h"

#include "balls/ball_edit.h"
#include "balls/ball_fields.h"
#include "balls/ball_names.h"
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
      game(&MainGame),
      head(new EntryHead(u"F20"_s)),
      F20num(new BallFields(EntryBallNames(u"F20num"_s, u"F20ball"_s), EntryBallCaptions())),
      F20day(new DayBoxes({u"F20day"_s, {}, {}}, QString())),
      F20back(AddFooterButton(u"BACK"_s, u"F20back"_s)),
      F20store(AddFooterDefault(u"Store Changes"_s, u"F20store"_s))
{
    F20num->LastCaption()->setObjectName(u"F20thunderlabel"_s);
    F20num->LastCaption()->setText(ThunderballGame.extraBallName);
    // The page is shown without an entry where another copy has deleted the chosen one.
    F20num->SetRule(EntryEditingRule(*game));
    F20num->Clear();
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
    constexpr int last = EntryBalls - 1;
    const EntryRow entry = ReadEntry(entries);
    shown = entries.Mark();
    game = &GameOfDrawType(entry.drawType);
    head->Show(ReadUser(users).name, *game);
    F20num->SetRule(EntryEditingRule(*game));
    F20num->Show(entry.numbers);
    F20num->SetLastApart(!game->IsMain());
    F20num->LastCaption()->setVisible(!game->IsMain());
    F20num->Field(last)->setAccessibleName(game->BallCaption(last));
    F20day->SetDays(entry.days);
    ShowInFront();
    F20num->FocusField(0);
}

bool EntryEditPage::HasEqualMainBalls() const
{
    QStringList texts;
    for (int slot = 0; slot < game->mainBalls; ++slot)
        texts.append(F20num->Text(slot));
    return texts.removeDuplicates() > 0;
}

void EntryEditPage::F20store_Click()
{
    if (!F20num->AreAccepted())
        return;
    F20num->Sort(game->mainBalls);
    if (HasEqualMainBalls()) {
        ShowMessage((game->IsMain() ? u"Two or more balls have the same value,"_s
                                    : u"Two or more main balls have the same value,"_s) +
                    Crlf + u"please retry."_s);
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
