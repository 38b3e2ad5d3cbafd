#include "support/file_bytes.h"
#include "support/test_window.h"

#include <QProcess>

namespace {

/// What the tool says of lists with these draws, in a folder of its own; nothing where it makes the databases of them.
QString ComplaintOf(const QTemporaryDir& folder, const QByteArray& mainRows, const QByteArray& thunderballRows)
{
    const auto write = [&folder](const QString& name, const QByteArray& content) {
        WriteBytes(folder.filePath(name), content);
        return folder.filePath(name);
    };
    SetProgramDir(folder.filePath("out").toStdString());
    QProcess process;
    process.start(TAVENOR_MAKE_DATABASES,
                  {write("main.csv", "Date,Ball1,Ball2,Ball3,Ball4,Ball5,Ball6,Bonus,Machine,BallSet\n" + mainRows),
                   write("thunderball.csv", "Date,Ball1,Ball2,Ball3,Ball4,Ball5,Thunderball\n" + thunderballRows),
                   write("links.csv", "SiteName,WebAddress,MailAddress,Description1,Description2\n"
                                      "A site,www.site.example,,One,Two\n"),
                   folder.filePath("out")});
    process.waitForFinished();
    const QString said = QString::fromLocal8Bit(process.readAllStandardError()).trimmed();
    return said.isEmpty() == (process.exitCode() == 0) ? said : "it ended otherwise";
}

} // namespace

class MakeDatabasesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void RowsGoInByDateNumberedFromOne()
    {
        const QTemporaryDir folder;
        QCOMPARE(ComplaintOf(folder, "2015-10-07,1,2,3,4,5,6,7,MERLIN,4\n1994-11-19,3,5,14,22,30,44,10,,\n",
                             "2010-05-08,1,2,3,4,5,1\n"),
                 QString());
        QCOMPARE(TestFolder::StoredRows("ukmain"),
                 (QStringList{"1,1994-11-19,Sat,3,5,14,22,30,44,10,,", "2,2015-10-07,Wed,1,2,3,4,5,6,7,MERLIN,4"}));
        QCOMPARE(TestFolder::StoredNumbers("ukmainlist"), QString("2 1"));
        QCOMPARE(TestFolder::StoredRows("ukthunder"), QStringList{"1,2010-05-08,Sat,1,2,3,4,5,1"});
        QCOMPARE(TestFolder::StoredRows("links"), QStringList{"A site,www.site.example,,One,Two"});
    }

    void ImpossibleRowStopsItWithItsPlace()
    {
        const QString balls = "a ball is out of range or stands twice";
        const std::pair<QByteArray, QString> rows[] = {
            {"2015-02-30,1,2,3,4,5,6,7,,", "2015-02-30 is not a date"},
            {"2015-10-07,1,x,3,4,5,6,7,,", "x is not a ball"},
            {"2015-10-07,1,2,3,4,5,50,7,,", balls},
            {"2015-10-07,1,2,3,4,5,6,6,,", balls},
            {"2015-10-07,2,1,3,4,5,6,7,,", "the main balls are not in ascending order"},
            {"2015-10-07,1,2,3,4,5,6,7,", "9 fields instead of 10"}};
        for (const auto& [row, reason] : rows) {
            const QTemporaryDir folder;
            const QString said = ComplaintOf(folder, "1994-11-19,3,5,14,22,30,44,10,,\n" + row + "\n", "");
            QVERIFY2(said.endsWith("main.csv:3: " + reason), qPrintable(said));
            QVERIFY(!QFile::exists(folder.filePath("out/drawdata.tv3")));
        }
    }
};

TAVENOR_TEST(MakeDatabasesTest)
#include "make_databases_test.moc"
