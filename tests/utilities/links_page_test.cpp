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
        for (const QString& scheme : schemes)
            QDesktopServices::setUrlHandler(scheme, this, "Take");
    }
    ~Opener() override
    {
        for (const QString& scheme : schemes)
            QDesktopServices::unsetUrlHandler(scheme);
    }

    const QStringList schemes{"http", "https", "mailto", "file", "javascript"};
    QStringList opened;

public Q_SLOTS:
    void Take(const QUrl& url) { opened.append(url.toString()); }
};

namespace {

void AddLink(const QStringList& fields)
{
    links.AddNew();
    for (int position = 0; position < fields.size(); ++position) {
        const std::string text = fields[position].toStdString();
        if (!fields[position].isNull())
            links.SetField(position, std::string_view(text));
    }
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
        struct Row
        {
            int records;
            QStringList steps;
            QString shown;
        };
        for (const Row& row : {Row{3, {"F25next", "F25next", "F25next"}, "site 1"}, Row{3, {"F25prev"}, "site 3"},
                               Row{3, {"F25next"}, "site 2"}, Row{3, {"F25next", "F25back", "F0links"}, "site 1"},
                               Row{1, {"F25next"}, "site 1"}, Row{1, {"F25prev"}, "site 1"}, Row{0, {"F25next"}, ""},
                               Row{0, {"F25prev", "F25prev"}, ""}}) {
            TestWindow window;
            for (int number = 1; number <= row.records; ++number)
                AddLink({QString("site %1").arg(number), "web", "mail", "one", "two"});
            window.Click("F0links");
            for (const QString& step : row.steps)
                window.Click(step);
            QCOMPARE(window.TextsOf("F25link", "01234"),
                     row.records == 0 ? QString(4, u' ') : row.shown + " web mail one two");
            QVERIFY(window.IsShown("Frame_25") && !window.Find("Frame_0")->isEnabled() && window.modals.AllCame());
            window.Press("F25next", Qt::Key_Escape);
            QVERIFY(!window.IsShown("Frame_25") && window.Find("Frame_0")->isEnabled());
        }
    }

    void OpensWebAndMailOnly()
    {
        const QString nothing;
        const QString query = "https://a.example/?x=1&y=2#part";
        const QString placeholder = "Your web site HERE.";
        struct Row
        {
            int index;
            QString web;
            QString mail;
            QString shown;
            bool isLink;
            QStringList opened = {};
        };
        for (const Row& row :
             {Row{1, query, nothing, query, true, {query}},
              Row{2, nothing, "me@a.example", "me@a.example", true, {"mailto:me@a.example"}},
              Row{1, "MAILTO:me@a.example", nothing, "MAILTO:me@a.example", true, {"mailto:me@a.example"}},
              Row{2,
                  nothing,
                  "me@a.example?attach=/etc/passwd#x",
                  "me@a.example?attach=/etc/passwd#x",
                  true,
                  {"mailto:me@a.example"}},
              Row{1, "www.a.example/b", nothing, "www.a.example/b", true, {"http://www.a.example/b"}},
              Row{1, "a.example:8080/b", nothing, "a.example:8080/b", true, {"http://a.example:8080/b"}},
              Row{1, "file:///etc/passwd", nothing, "file:///etc/passwd", false},
              Row{1, "javascript:alert(1)", nothing, "javascript:alert(1)", false},
              Row{1, "", "m", "Not Specified.", false}, Row{2, "w", "", "Not Specified.", false},
              Row{1, nothing, "m", "Not Specified.", false}, Row{1, placeholder, nothing, placeholder, false},
              Row{2, nothing, placeholder, placeholder, true, {"mailto:" + placeholder}}}) {
            TestWindow window;
            opener.opened.clear();
            AddLink({"site", row.web, row.mail, "http://d.example", QString()});
            window.Click("F0links");
            const QString name = QString("F25link_%1").arg(row.index);
            auto* label = window.Find<LinkLabel>(name);
            QCOMPARE(label->text(), row.shown);
            QCOMPARE(label->fontMetrics().elidedText(row.shown, Qt::ElideRight, label->width() - 2 * Spacing::Inside),
                     row.shown);
            QCOMPARE(label->font().underline(), row.isLink);
            QCOMPARE(window.ColourOf(name, QPalette::WindowText), QColor(row.isLink ? "#0000FF" : "#000000"));
            QCOMPARE(label->cursor().shape(), row.isLink ? Qt::PointingHandCursor : Qt::ArrowCursor);
            QCOMPARE(label->focusPolicy(), row.isLink ? Qt::StrongFocus : Qt::NoFocus);
            QTest::mouseClick(label, Qt::LeftButton, {}, QPoint(8, label->height() / 2));
            QCOMPARE(opener.opened, row.opened);
            // Right of the address there is no link.
            QTest::mouseClick(label->parentWidget(), Qt::LeftButton, {},
                              label->geometry().center() + QPoint(label->sizeHint().width() / 2 + 9, 0));
            QVERIFY(label->width() <= label->sizeHint().width() && opener.opened == row.opened);
            label->setFocus();
            window.PressFocused(Qt::Key_Return);
            QCOMPARE(opener.opened, row.opened + row.opened);
        }
    }

    void LongAndOddTextsAreShownAsPlainText()
    {
        for (const QString& text : {QString(150'000, u'W'), QString("a\n").repeated(75'000),
                                    QString("a\x01\r\n\t") + QChar(0x202E) + "b" + QChar(0),
                                    QString("<img src='/etc/passwd'><h1>Big</h1>&amp;")}) {
            TestWindow window;
            const QSize size = window.Window().size();
            AddLink({text, text, text, text, text});
            window.Click("F0links");
            window.Click("F25next");
            const QString shown = window.TextsOf("F25link", "01234");
            QVERIFY(!shown.contains('\n') && shown.size() < 1250);
            QCOMPARE(window.Window().size(), size);
            QVERIFY(window.Find("F25back")->geometry().bottom() < window.Find("Frame_25")->height());
            QVERIFY(window.Find("Frame_25")->minimumSizeHint().width() < 800);
        }
    }
};

TAVENOR_TEST(LinksPageTest)
#include "links_page_test.moc"
