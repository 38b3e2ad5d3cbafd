#include "users/entry_head.h"

#include "draws/game.h"
#include "platform/page_frame.h"

#include <QGridLayout>
#include <QLineEdit>

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

EntryHead::EntryHead(const QString& prefix, QWidget* parent)
    : Card(parent),
      user(MakeReadOnlyBox(prefix + QStringLiteral("user"), QStringLiteral("User"))),
      type(MakeReadOnlyBox(prefix + QStringLiteral("type"), QStringLiteral("Draw Type")))
{
    auto* form = new QGridLayout;
    form->setHorizontalSpacing(Spacing::Cards);
    form->setVerticalSpacing(Spacing::Inside);
    form->addWidget(MakeLabel(QStringLiteral("User"), TextRole::Caption, prefix + QStringLiteral("label1")), 0, 0);
    form->addWidget(user, 1, 0);
    form->addWidget(MakeLabel(QStringLiteral("Draw Type"), TextRole::Caption, prefix + QStringLiteral("label2")), 0, 1);
    form->addWidget(type, 1, 1);
    form->setColumnStretch(0, 1);
    form->setColumnStretch(1, 1);
    Content()->addLayout(form);
}

void EntryHead::Show(const QString& userName, const Game& game)
{
    user->setText(userName);
    user->setCursorPosition(0);
    type->setText(game.name);
}

const Game& EntryHead::ShownGame() const
{
    return type->text() == ThunderballGame.name ? ThunderballGame : MainGame;
}

QStringList EntryBallCaptions()
{
    QStringList captions;
    for (int slot = 0; slot < 6; ++slot)
        captions.append(MainGame.BallCaption(slot));
    return captions;
}
