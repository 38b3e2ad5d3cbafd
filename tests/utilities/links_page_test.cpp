#include "support/test_window.h"

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
        for (const auto& [records, expected] : {std::pair(3, "1 2 3 1 3 2 2 1"), {0, "       "}}) {
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
            window.Press("F25next", Qt::Key_Escape);
            QVERIFY(!window.IsShown("Frame_25") && window.Find("Frame_0")->isEnabled());
        }
    }

    void OpensWebAndMailOnly()
    {
        const QString query = "https://a.example/?x=1&y=2#part";
        const QString placeholder = "Your web site HERE.";
        // The label, its address, and what opens.
        const std::tuple<int, QString, QStringList> rows[] = {
            {1, query, {query}},
            {2, "me@a.example", {"mailto:me@a.example"}},
            {1, "MAILTO:me@a.example", {"mailto:me@a.example"}},
            {2, "me@a.example?attach=/etc/passwd#x", {"mailto:me@a.example"}},
            {1, "www.a.example/b", {"http://www.a.example/b"}},
            {1, "a.example:8080/b", {"http://a.example:8080/b"}},
            {1, "file:///etc/passwd", {}},
            {1, "javascript:alert(1)", {}},
            {1, "", {}},
            {1, placeholder, {}},
            {2, placeholder, {"mailto:" + placeholder}}};
        TestWindow window;
        for (const auto& [index, address, opened] : rows)
            AddLink({"site", index == 1 ? address : "w", index == 2 ? address : "m"});
        window.Click("F0links");
        for (const auto& [index, address, opened] : rows) {
            opener.opened.clear();
            auto* label = window.Find<LinkLabel>(QString("F25link_%1").arg(index));
            QCOMPARE(label->text(), address.isEmpty() ? "Not Specified." : address);
            QCOMPARE(label->palette().color(QPalette::WindowText), QColor(opened.isEmpty() ? "#000000" : "#0000FF"));
            QCOMPARE(label->focusPolicy(), opened.isEmpty() ? Qt::NoFocus : Qt::StrongFocus);
            QTest::mouseClick(label, Qt::LeftButton, {}, QPoint(8, label->height() / 2));
            QCOMPARE(opener.opened, opened);
            // Right of the address there is no link.
            QTest::mouseClick(label->parentWidget(), Qt::LeftButton, {},
                              label->geometry().center() + QPoint(label->sizeHint().width() / 2 + 9, 0));
            QVERIFY(label->width() <= label->sizeHint().width() && opener.opened == opened);
            label->setFocus();
            window.PressFocused(Qt::Key_Return);
            QCOMPARE(opener.opened, opened + opened);
            window.Click("F25next");
        }
    }
};

TAVENOR_TEST(LinksPageTest)
#include "links_page_test.moc"
