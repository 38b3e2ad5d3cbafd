#include "users/entry_head.h"

#include "controls/label.h"
#include "game/game.h"
#include "look/theme.h"

#include <QGridLayout>
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

EntryHead::EntryHead(const QString& prefix, QWidget* parent)
    : Card(parent),
      user(MakeReadOnlyBox(prefix + u"user"_s, u"User"_s)),
      type(MakeReadOnlyBox(prefix + u"type"_s, u"Draw Type"_s))
{
    auto* form = new QGridLayout;
    form->setHorizontalSpacing(Spacing::Cards);
    form->setVerticalSpacing(Spacing::Inside);
    form->addWidget(MakeLabel(u"User"_s, TextRole::Caption, prefix + u"label1"_s), 0, 0);
    form->addWidget(user, 1, 0);
    form->addWidget(MakeLabel(u"Draw Type"_s, TextRole::Caption, prefix + u"label2"_s), 0, 1);
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
