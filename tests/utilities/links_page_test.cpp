#include "support/test_window.h"

#include "look/theme.h"
#include "utilities/link_label.h"

#include <QDesktopServices>
#include <QUrl>

/// Takes the addresses that would go to the default program.
class Opener : public QObject
{
    Q_OBJECT

public:
    Opener()
    {
        for (const char* scheme : {"http", "https", "mailto", "file", "javascript"})
            QDesktopServices::setUrlHandler(scheme, this, "Take");
    }

    QStringList opened;

public Q_SLOTS:
    void Take(const QUrl& url) { opened.append(url.toString()); }
};

namespace {

void AddLink(const QStringList& fields)
{
    links.AddNew();
    for (int position = 0; position < fields.size(); ++position)
        if (!fields[position].isNull())
            links.SetField(position, fields[position].toStdString());
    links.Update();
}

} // namespace

class LinksPageTest : public QObject
{
    Q_OBJECT

    Opener opener;

private Q_SLOTS:
    void StepsRoundTheRing()
    {
        for (const auto& [records, expected] :
             {std::pair(3, "1 2 3 1 3 2 2 1"), {1, "1 1 1 1 1 1 1 1"}, {0, "       "}}) {
            TestWindow window;
            for (int number = 1; number <= records; ++number)
                AddLink({QString::number(number), "web", "mail", "<b>one\n", QString("t") + QChar(0x202E) + "o"});
            QStringList shown;
            for (const char* step :
                 {"F0links", "F25next", "F25next", "F25next", "F25prev", "F25prev", "F25back", "F0links"}) {
                window.Click(step);
                shown.append(window.TextOf("F25link_0"));
            }
            QCOMPARE(shown.join(' '), QString(expected));
            // Plain text, without what would steer the drawing.
            QCOMPARE(window.TextsOf("F25link", "1234"), QString(records == 0 ? "   " : "web mail <b>one  t o"));
            QCOMPARE(window.Find<QLabel>("F25link_3")->textFormat(), Qt::PlainText);
            QVERIFY(window.IsShown("Frame_25") && !window.Find("Frame_0")->isEnabled());
            window.Press("F25next", Qt::Key_Escape);
            QVERIFY(!window.IsShown("Frame_25") && window.Find("Frame_0")->isEnabled());
        }
    }

    void OpensWebAndMailOnly()
    {
        const QString query = "https://a.example/?x=1&y=2#part";
        const QString placeholder = "Your web site HERE.";
        struct Row
        {
            int index;
            QString address;
            QStringList opened = {};
        };
        const Row rows[] = {{1, query, {query}},
                            {2, "me@a.example", {"mailto:me@a.example"}},
                            {1, "MAILTO:me@a.example", {"mailto:me@a.example"}},
                            {2, "me@a.example?attach=/etc/passwd#x", {"mailto:me@a.example"}},
                            {1, "www.a.example/b", {"http://www.a.example/b"}},
                            {1, "a.example:8080/b", {"http://a.example:8080/b"}},
                            {1, "file:///etc/passwd"},
                            {1, "javascript:alert(1)"},
                            {1, ""},
                            {1, QString()},
                            {2, ""},
                            {1, placeholder},
                            {2, placeholder, {"mailto:" + placeholder}}};
        TestWindow window;
        for (const Row& row : rows)
            AddLink({"site", row.index == 1 ? row.address : "w", row.index == 2 ? row.address : "m"});
        window.Click("F0links");
        for (const Row& row : rows) {
            opener.opened.clear();
            const bool isLink = !row.opened.isEmpty();
            const QString name = QString("F25link_%1").arg(row.index);
            auto* label = window.Find<LinkLabel>(name);
            QCOMPARE(label->text(), row.address.isEmpty() ? "Not Specified." : row.address);
            QCOMPARE(
                label->fontMetrics().elidedText(label->text(), Qt::ElideRight, label->width() - 2 * Spacing::Inside),
                label->text());
            QCOMPARE(label->font().underline(), isLink);
            QCOMPARE(window.ColourOf(name, QPalette::WindowText), QColor(isLink ? "#0000FF" : "#000000"));
            QCOMPARE(label->cursor().shape(), isLink ? Qt::PointingHandCursor : Qt::ArrowCursor);
            QCOMPARE(label->focusPolicy(), isLink ? Qt::StrongFocus : Qt::NoFocus);
            QTest::mouseClick(label, Qt::LeftButton, {}, QPoint(8, label->height() / 2));
            QCOMPARE(opener.opened, row.opened);
            // Right of the address there is no link.
            QTest::mouseClick(label->parentWidget(), Qt::LeftButton, {},
                              label->geometry().center() + QPoint(label->sizeHint().width() / 2 + 9, 0));
            QVERIFY(label->width() <= label->sizeHint().width() && opener.opened == row.opened);
            label->setFocus();
            window.PressFocused(Qt::Key_Return);
            QCOMPARE(opener.opened, row.opened + row.opened);
            window.Click("F25next");
        }
    }
};

TAVENOR_TEST(LinksPageTest)
#include "links_page_test.moc"
