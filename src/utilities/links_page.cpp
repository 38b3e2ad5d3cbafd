#include "utilities/links_page.h"

#include "base/texts.h"
#include "controls/card.h"
#include "controls/guard.h"
#include "controls/label.h"
#include "look/button.h"
#include "look/theme.h"
#include "store/open_databases.h"
#include "utilities/link_label.h"
#include "utilities/open_address.h"

#include <QGridLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int SiteName = 0;
constexpr int WebAddress = 1;
constexpr int MailAddress = 2;
constexpr int FirstDescription = 3;

const QString NotSpecified = u"Not Specified."_s;
const QString PlaceForASite = u"Your web site HERE."_s;

} // namespace

LinksPage::LinksPage() : PageFrame(25, u"Internet Links"_s)
{
    Body()->addWidget(BuildCard());
    Body()->addStretch(1);
    Button* F25prev = AddFooterButton(u"< Previous Link"_s, u"F25prev"_s);
    Button* F25next = AddFooterButton(u"Next Link >"_s, u"F25next"_s);
    Button* F25back = AddFooterButton(u"BACK"_s, u"F25back"_s);
    SetBackButton(F25back);
    ConnectGuarded(F25prev, &QPushButton::clicked, this, [this] { F25prev_Click(); });
    ConnectGuarded(F25next, &QPushButton::clicked, this, [this] { F25next_Click(); });
    ConnectGuarded(F25back, &QPushButton::clicked, this, [this] { hide(); });
    for (const int index : {WebAddress, MailAddress})
        ConnectGuarded(F25link.at(static_cast<size_t>(index)), &QAbstractButton::clicked, this,
                       [this, index] { F25link_Click(index); });
}

QWidget* LinksPage::BuildCard()
{
    for (int index = 0; index < static_cast<int>(F25link.size()); ++index) {
        const int mostLines = index < FirstDescription ? 1 : 3;
        F25link.at(static_cast<size_t>(index)) = new LinkLabel(
            ElementName(u"F25link"_s, index), index == SiteName ? TextRole::Heading : TextRole::Body, mostLines);
    }
    const auto heading = [](const QString& caption, int index) {
        QLabel* label = MakeLabel(caption, TextRole::Caption, ElementName(u"F25label"_s, index));
        // The caption's first line stands level with the text beside it, which is larger and has room around it.
        label->setContentsMargins(0, Spacing::Inside / 2 + 1, 0, 0);
        label->setAlignment(Qt::AlignTop | Qt::AlignLeft);
        return label;
    };
    auto* card = new Card;
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(Spacing::Cards);
    grid->setVerticalSpacing(Spacing::Inside);
    grid->setColumnStretch(1, 1);
    card->Content()->addWidget(F25link[SiteName]);
    card->Content()->addLayout(grid);
    grid->addWidget(heading(u"Web Site:"_s, 0), 0, 0);
    grid->addWidget(F25link[WebAddress], 0, 1);
    grid->addWidget(heading(u"E-Mail:"_s, 1), 1, 0);
    grid->addWidget(F25link[MailAddress], 1, 1);
    grid->addWidget(heading(u"Description:"_s, 2), 2, 0);
    grid->addWidget(F25link[FirstDescription], 2, 1);
    grid->addWidget(F25link[FirstDescription + 1], 3, 1);
    return card;
}

void LinksPage::Prepare()
{
    ShowInFront();
    links.MoveFirst();
    ShowLink();
}

void LinksPage::ShowLink()
{
    static const std::array<QString, 5> captions{u"Site"_s, u"Web Site:"_s, u"E-Mail:"_s, u"Description:"_s,
                                                 u"Description:"_s};
    const bool empty = links.IsEmpty();
    for (int index = 0; index < static_cast<int>(F25link.size()); ++index) {
        QString text = empty ? QString() : FromUtf8(links.Text(index));
        const bool address = index == WebAddress || index == MailAddress;
        if (address && text.isEmpty() && !empty)
            text = NotSpecified;
        const bool placeholder = text == NotSpecified || (index == WebAddress && text == PlaceForASite);
        const auto place = static_cast<size_t>(index);
        F25link.at(place)->ShowText(text,
                                    address && !empty && !placeholder ? LinkLabel::Look::Link : LinkLabel::Look::Plain,
                                    captions.at(place));
    }
}

void LinksPage::F25link_Click(int index)
{
    const LinkLabel* label = F25link.at(static_cast<size_t>(index));
    if (label->IsLink())
        OpenAddress((index == MailAddress ? u"mailto:"_s : QString()) + label->text());
}

void LinksPage::F25next_Click()
{
    links.MoveNext();
    if (links.Eof())
        links.MoveFirst();
    ShowLink();
}

void LinksPage::F25prev_Click()
{
    links.MovePrevious();
    if (links.Bof())
        links.MoveLast();
    ShowLink();
}
