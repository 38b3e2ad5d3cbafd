#include "support/test_window.h"

#include "utilities/link_label.h"

#include <QDesktopServices>
#include <QElapsedTimer>
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

QStringList Shown(const TestWindow& window)
{
    QStringList texts;
    for (int index = 0; index < 5; ++index)
        texts.append(window.TextOf(QString("F25link_%1").arg(index)));
    return texts;
}

} // namespace

class LinksPageTest : public QObject
{
    Q_OBJECT

    Opener opener;

private Q_SLOTS:
    void init() { opener.opened.clear(); }

    void StepsRoundTheRing_data()
    {
        QTest::addColumn<int>("records");
        QTest::addColumn<QStringList>("steps");
        QTest::addColumn<QString>("shown");
        QTest::newRow("opens on the first") << 3 << QStringList() << "site 1";
        QTest::newRow("next") << 3 << QStringList{"F25next"} << "site 2";
        QTest::newRow("next from the last") << 3 << QStringList{"F25next", "F25next", "F25next"} << "site 1";
        QTest::newRow("previous from the first") << 3 << QStringList{"F25prev"} << "site 3";
        QTest::newRow("opened again on the first") << 3 << QStringList{"F25next", "F25back", "F0links"} << "site 1";
        QTest::newRow("one record, next") << 1 << QStringList{"F25next"} << "site 1";
        QTest::newRow("one record, previous") << 1 << QStringList{"F25prev"} << "site 1";
        QTest::newRow("none, next") << 0 << QStringList{"F25next"} << "";
        QTest::newRow("none, previous twice") << 0 << QStringList{"F25prev", "F25prev"} << "";
    }

    void StepsRoundTheRing()
    {
        QFETCH(int, records);
        QFETCH(QStringList, steps);
        QFETCH(QString, shown);
        TestWindow window;
        for (int number = 1; number <= records; ++number)
            AddLink({QString("site %1").arg(number), "web", "mail", "one", "two"});
        window.Click("F0links");
        for (const QString& step : steps)
            window.Click(step);
        QCOMPARE(Shown(window),
                 shown.isEmpty() ? QStringList(5, QString()) : (QStringList{shown, "web", "mail", "one", "two"}));
        QVERIFY(window.IsShown("Frame_25"));
        QVERIFY(window.modals.AllCame());
    }

    void LiesInFrontOfTheStartPage()
    {
        TestWindow window;
        window.Click("F0links");
        QVERIFY(window.IsShown("Frame_25") && !window.Find("Frame_0")->isEnabled());
        window.Press("F25next", Qt::Key_Escape);
        QVERIFY(!window.IsShown("Frame_25") && window.Find("Frame_0")->isEnabled());
    }

    void OpensWebAndMailOnly_data()
    {
        QTest::addColumn<QString>("web");
        QTest::addColumn<QString>("mail");
        QTest::addColumn<int>("index");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<bool>("isLink");
        QTest::addColumn<QStringList>("opened");
        const QString nothing;
        const auto row = [](const char* name, const QString& web, const QString& mail, int index, const QString& text,
                            bool isLink, const QStringList& opened) {
            QTest::newRow(name) << web << mail << index << text << isLink << opened;
        };
        const QString query = "https://a.example/?x=1&y=2#part";
        row("web", query, nothing, 1, query, true, {query});
        row("mail", nothing, "me@a.example", 2, "me@a.example", true, {"mailto:me@a.example"});
        row("mail written as web", "MAILTO:me@a.example", nothing, 1, "MAILTO:me@a.example", true,
            {"mailto:me@a.example"});
        row("no scheme", "www.a.example/b", nothing, 1, "www.a.example/b", true, {"http://www.a.example/b"});
        row("host and port", "a.example:8080/b", nothing, 1, "a.example:8080/b", true, {"http://a.example:8080/b"});
        row("a file", "file:///etc/passwd", nothing, 1, "file:///etc/passwd", true, {});
        row("a script", "javascript:alert(1)", nothing, 1, "javascript:alert(1)", true, {});
        row("no web", "", "m", 1, "Not Specified.", false, {});
        row("no mail", "w", "", 2, "Not Specified.", false, {});
        row("web is missing", nothing, "m", 1, "Not Specified.", false, {});
        row("place for a site", "Your web site HERE.", nothing, 1, "Your web site HERE.", false, {});
        row("the placeholder's words as mail", nothing, "Your web site HERE.", 2, "Your web site HERE.", true,
            {"mailto:Your web site HERE."});
        row("the name is no link", "w", "m", 0, "site", false, {});
        row("the description is no link", "w", "m", 3, "http://d.example", false, {});
    }

    void OpensWebAndMailOnly()
    {
        QFETCH(QString, web);
        QFETCH(QString, mail);
        QFETCH(int, index);
        QFETCH(QString, shown);
        QFETCH(bool, isLink);
        QFETCH(QStringList, opened);
        TestWindow window;
        AddLink({"site", web, mail, "http://d.example", QString()});
        window.Click("F0links");
        const QString name = QString("F25link_%1").arg(index);
        auto* label = window.Find<LinkLabel>(name);
        QCOMPARE(label->text(), shown);
        QCOMPARE(label->font().underline(), isLink);
        QCOMPARE(window.ColourOf(name, QPalette::WindowText), QColor(isLink ? "#0000FF" : "#000000"));
        QCOMPARE(label->cursor().shape(), isLink ? Qt::PointingHandCursor : Qt::ArrowCursor);
        QTest::mouseClick(label, Qt::LeftButton, {}, QPoint(8, label->height() / 2));
        QCOMPARE(opener.opened, opened);
        if (isLink) {
            label->setFocus();
            window.PressFocused(Qt::Key_Return);
            QCOMPARE(opener.opened.size(), 2 * opened.size());
        } else {
            QCOMPARE(label->focusPolicy(), Qt::NoFocus);
        }
    }

    void LongAndOddTextsAreShownAsPlainText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("ten megabytes") << QString(10'000'000, u'W');
        QTest::newRow("ten megabytes of lines") << QString("a\n").repeated(5'000'000);
        QTest::newRow("control and direction marks") << QString("a\x01\r\n\t") + QChar(0x202E) + "b" + QChar(0);
        QTest::newRow("rich text") << "<img src='/etc/passwd'><h1>Big</h1>&amp;";
    }

    void LongAndOddTextsAreShownAsPlainText()
    {
        QFETCH(QString, text);
        TestWindow window;
        const QSize size = window.Window().size();
        AddLink({text, text, text, text, text});
        QElapsedTimer clock;
        clock.start();
        window.Click("F0links");
        window.Click("F25next");
        QVERIFY(clock.elapsed() < 3000);
        QCOMPARE(Shown(window), QStringList(5, text));
        QCOMPARE(window.Window().size(), size);
        QVERIFY(window.Find("F25back")->geometry().bottom() < window.Find("Frame_25")->height());
        QVERIFY(window.Find("Frame_25")->minimumSizeHint().width() < 800);
    }
};

TAVENOR_TEST_MAIN(LinksPageTest)
#include "links_page_test.moc"
