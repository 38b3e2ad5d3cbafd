#include "users/entry_page.h"

#include "controls/card.h"
#include "game/game.h"
#include "store/open_databases.h"
#include "store/user_records.h"
#include "users/choices.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

QLineEdit* MakeReadOnlyBox(const QString& name, const QString& accessibleName)
{
    auto* box = new QLineEdit;
    box->setObjectName(name);
    box->setAccessibleName(accessibleName);
    box->setReadOnly(true);
    return box;
}

} // namespace

EntryPage::EntryPage(int page)
    : PageFrame(page, u"View Entry in Detail"_s),
      game(&MainGame),
      user(MakeReadOnlyBox(ControlName(u"user"_s), u"User"_s)),
      type(MakeReadOnlyBox(ControlName(u"type"_s), u"Draw Type"_s)),
      back(AddFooterButton(u"BACK"_s, ControlName(u"back"_s)))
{
    SetBackButton(back);
}

BallLine::Names EntryPage::BallNames() const
{
    return {ControlName(u"num"_s), ControlName(u"ball"_s)};
}

void EntryPage::Build(BallLine* entryBalls, QWidget* days)
{
    balls = entryBalls;
    balls->LastCaption()->setObjectName(ControlName(u"thunderlabel"_s));
    balls->LastCaption()->setText(ThunderballGame.extraBallName);
    auto* head = new CaptionedRow;
    head->Add(u"User"_s, ControlName(u"label1"_s), {user});
    head->Add(u"Draw Type"_s, ControlName(u"label2"_s), {type});
    auto* headCard = new Card;
    headCard->Content()->addLayout(head);
    Body()->addWidget(headCard);
    for (QWidget* content : {static_cast<QWidget*>(balls), days}) {
        auto* card = new Card;
        card->Content()->addWidget(content);
        Body()->addWidget(card);
    }
    MakeForm();
}

EntryRow EntryPage::ShowHead()
{
    const EntryRow entry = ReadEntry(entries);
    game = &GameOfDrawType(entry.drawType);
    user->setText(ReadUser(users).name);
    user->setCursorPosition(0);
    type->setText(game->name);
    balls->SetLastApart(!game->IsMain());
    balls->LastCaption()->setVisible(!game->IsMain());
    return entry;
}
