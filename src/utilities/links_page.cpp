#include "utilities/links_page.h"

#include "platform/card.h"
#include "platform/guard.h"
#include "platform/open_address.h"
#include "platform/texts.h"
#include "shell/open_databases.h"
#include "utilities/link_label.h"

#include <QGridLayout>

namespace {

constexpr int SiteName = 0;
constexpr int WebAddress = 1;
constexpr int MailAddress = 2;
constexpr int FirstDescription = 3;

const QString NotSpecified = QStringLiteral("Not Specified.");
const QString PlaceForASite = QStringLiteral("Your web site HERE.");

} // namespace

LinksPage::LinksPage() : PageFrame(25, QStringLiteral("Internet Links"))
{
    Body()->addWidget(BuildCard());
    Body()->addStretch(1);
    Button* F25prev = AddFooterButton(QStringLiteral("< Previous Link"), QStringLiteral("F25prev"));
    Button* F25next = AddFooterButton(QStringLiteral("Next Link >"), QStringLiteral("F25next"));
    Button* F25back = AddFooterButton(QStringLiteral("BACK"), QStringLiteral("F25back"));
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
        F25link.at(static_cast<size_t>(index)) =
            new LinkLabel(ElementName(QStringLiteral("F25link"), index),
                          index == SiteName ? TextRole::Heading : TextRole::Body, mostLines);
    }
    const auto heading = [](const QString& caption, int index) {
        QLabel* label = MakeLabel(caption, TextRole::Caption, ElementName(QStringLiteral("F25label"), index));
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
    grid->addWidget(heading(QStringLiteral("Web Site:"), 0), 0, 0);
    grid->addWidget(F25link[WebAddress], 0, 1);
    grid->addWidget(heading(QStringLiteral("E-Mail:"), 1), 1, 0);
    grid->addWidget(F25link[MailAddress], 1, 1);
    grid->addWidget(heading(QStringLiteral("Description:"), 2), 2, 0);
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
    static const std::array<QString, 5> captions{QStringLiteral("Site"), QStringLiteral("Web Site:"),
                                                 QStringLiteral("E-Mail:"), QStringLiteral("Description:"),
                                                 QStringLiteral("Description:")};
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
        OpenAddress((index == MailAddress ? QStringLiteral("mailto:") : QString()) + label->text());
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
