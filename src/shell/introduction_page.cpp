#include "shell/introduction_page.h"

#include "controls/card.h"
#include "controls/click_label.h"
#include "controls/label.h"
#include "look/theme.h"
#include "shell/menu_table.h"

#include <QGridLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

QLabel* Description(int label, const QString& text)
{
    QLabel* description = MakeLabel(text, TextRole::Body, ElementName(u"lab"_s, label));
    description->setWordWrap(true);
    description->setForegroundRole(QPalette::PlaceholderText);
    description->setAlignment(Qt::AlignTop);
    return description;
}

} // namespace

IntroductionPage::IntroductionPage(int group) : PageFrame(group, IntroductionOf(group).title)
{
    const Introduction& introduction = IntroductionOf(group);
    Body()->addWidget(Description(introduction.aboutLabel, introduction.about));
    auto* card = new Card;
    auto* rows = new QGridLayout;
    rows->setHorizontalSpacing(Spacing::Page);
    rows->setVerticalSpacing(Spacing::Cards);
    rows->setColumnStretch(1, 1);
    for (const IntroductionOption& option : introduction.options) {
        auto* label = new ClickLabel(FindSuboption(group, option.suboption)->caption);
        label->setObjectName(ElementName(u"lab"_s, option.label));
        label->setFont(FontFor(TextRole::Strong));
        label->setForegroundRole(QPalette::Highlight);
        label->setAccessibleDescription(option.description);
        connect(label, &QAbstractButton::clicked, this, [this, &option] { Q_EMIT SuboptionClicked(option.suboption); });
        const int row = rows->rowCount();
        rows->addWidget(label, row, 0, Qt::AlignTop);
        QLabel* description = Description(option.descriptionLabel, option.description);
        // Its first line stands level with the name, which has room around it.
        description->setContentsMargins(0, Spacing::Inside / 2, 0, 0);
        rows->addWidget(description, row, 1);
    }
    card->Content()->setContentsMargins(Spacing::Cards - Spacing::Inside, Spacing::Cards, Spacing::Cards,
                                        Spacing::Cards);
    card->Content()->addLayout(rows);
    Body()->addWidget(card);
    auto* start = new ClickLabel(u"Go to Start Screen"_s);
    start->setForegroundRole(QPalette::Highlight);
    start->setObjectName(ElementName(u"main"_s, group));
    connect(start, &QAbstractButton::clicked, this, &IntroductionPage::StartScreenClicked);
    Body()->addWidget(start);
    MakeForm();
}
