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

/// What of a field can be shown: its beginning, without the characters that would steer the drawing.
QString ShownField(int field)
{
    QString shown = links.IsEmpty() ? QString() : ShownText(links.Text(field));
    for (QChar& character : shown)
        if (character.category() == QChar::Other_Control || character.category() == QChar::Other_Format)
            character = u' ';
    return shown;
}

QString AddressIn(int field)
{
    const QString text = FromUtf8(links.Text(field));
    return field == MailAddress ? u"mailto:"_s + text : text;
}

QLabel* MakeFieldLabel(int field, TextRole role)
{
    return MakeStoredTextLabel({}, role, ElementName(u"F25link"_s, field));
}

QLabel* MakeHeading(const QString& caption, int index)
{
    QLabel* label = MakeLabel(caption, TextRole::Caption, ElementName(u"F25label"_s, index));
    // The caption's first line stands level with the text beside it, which is larger and has room around it.
    label->setContentsMargins(0, Spacing::Inside / 2 + 1, 0, 0);
    label->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    return label;
}

} // namespace

LinksPage::LinksPage() : PageFrame(25, u"Internet Links"_s)
{
    Body()->addWidget(BuildCard());
    MakeForm();
    Button* F25prev = AddFooterButton(u"< Previous Link"_s, u"F25prev"_s);
    Button* F25next = AddFooterButton(u"Next Link >"_s, u"F25next"_s);
    Button* F25back = AddFooterButton(u"BACK"_s, u"F25back"_s);
    SetBackButton(F25back);
    ConnectGuarded(F25prev, &QPushButton::clicked, this, [this] { F25prev_Click(); });
    ConnectGuarded(F25next, &QPushButton::clicked, this, [this] { F25next_Click(); });
    ConnectGuarded(F25back, &QPushButton::clicked, this, [this] { hide(); });
    for (const int field : {WebAddress, MailAddress})
        ConnectGuarded(addresses.at(static_cast<size_t>(field - WebAddress)), &QAbstractButton::clicked, this,
                       [this, field] { F25link_Click(field); });
}

QWidget* LinksPage::BuildCard()
{
    siteName = MakeFieldLabel(SiteName, TextRole::Heading);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(Spacing::Cards);
    grid->setVerticalSpacing(Spacing::Inside);
    grid->setColumnStretch(1, 1);
    const QStringList headings{u"Web Site:"_s, u"E-Mail:"_s, u"Description:"_s};
    for (int row = 0; row < headings.size(); ++row)
        grid->addWidget(MakeHeading(headings[row], row), row, 0);
    for (int row = 0; row < 2; ++row) {
        auto& address = addresses.at(static_cast<size_t>(row));
        address = new LinkLabel(ElementName(u"F25link"_s, WebAddress + row));
        grid->addWidget(address, row, 1, Qt::AlignLeft);
        auto& description = descriptions.at(static_cast<size_t>(row));
        description = MakeFieldLabel(FirstDescription + row, TextRole::Body);
        description->setContentsMargins(Spacing::Inside, Spacing::Inside / 2, 0, 0);
        grid->addWidget(description, 2 + row, 1);
    }
    auto* card = new Card;
    card->Content()->addWidget(siteName);
    card->Content()->addLayout(grid);
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
    siteName->setText(ShownField(SiteName));
    ShowAddress(WebAddress, u"Web Site:"_s);
    ShowAddress(MailAddress, u"E-Mail:"_s);
    descriptions[0]->setText(ShownField(FirstDescription));
    descriptions[1]->setText(ShownField(FirstDescription + 1));
}

void LinksPage::ShowAddress(int field, const QString& caption)
{
    QString text = ShownField(field);
    if (text.isEmpty() && !links.IsEmpty())
        text = NotSpecified;
    const bool isPlaceholder = text.isEmpty() || text == NotSpecified || (field == WebAddress && text == PlaceForASite);
    addresses.at(static_cast<size_t>(field - WebAddress))
        ->ShowText(text, !isPlaceholder && CanBeOpened(AddressIn(field)), caption);
}

void LinksPage::F25link_Click(int field)
{
    if (addresses.at(static_cast<size_t>(field - WebAddress))->IsLink())
        OpenAddress(AddressIn(field));
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
