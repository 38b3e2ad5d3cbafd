#include "support/file_bytes.h"
#include "support/test_window.h"

#include <QProcess>

namespace {

/// Runs the tool on three lists in a folder of its own.
struct Run
{
    Run(const QByteArray& mainRows, const QByteArray& thunderballRows)
    {
        QStringList arguments;
        const auto write = [&](const QString& name, const QByteArray& content) {
            arguments.append(folder.filePath(name));
            WriteBytes(arguments.last(), content);
        };
        write("main.csv", "Date,Ball1,Ball2,Ball3,Ball4,Ball5,Ball6,Bonus,Machine,BallSet\n" + mainRows);
        write("thunderball.csv", "Date,Ball1,Ball2,Ball3,Ball4,Ball5,Thunderball\n" + thunderballRows);
        write("links.csv",
              "SiteName,WebAddress,MailAddress,Description1,Description2\nA site,www.site.example,,One,Two\n");
        SetProgramDir(folder.filePath("out").toStdString());
        QProcess process;
        process.start(TAVENOR_MAKE_DATABASES, arguments << folder.filePath("out"));
        process.waitForFinished();
        code = process.exitCode();
        said = QString::fromLocal8Bit(process.readAllStandardError());
    }

    int code;
    QString said;
    QTemporaryDir folder;
};

} // namespace

class MakeDatabasesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void RowsGoInByDateNumberedFromOne()
    {
        const Run run("2015-10-07,1,2,3,4,5,6,7,MERLIN,4\n1994-11-19,3,5,14,22,30,44,10,,\n",
                      "2010-05-08,1,2,3,4,5,1\n");
        QVERIFY2(run.code == 0, qPrintable(run.said));
        QCOMPARE(TestFolder::StoredRows("ukmain"),
                 (QStringList{"1,1994-11-19,Sat,3,5,14,22,30,44,10,,", "2,2015-10-07,Wed,1,2,3,4,5,6,7,MERLIN,4"}));
        QCOMPARE(TestFolder::StoredRows("ukmainlist").first().left(12), QString("2,2015-10-07"));
        QCOMPARE(TestFolder::StoredRows("ukthunder"), QStringList{"1,2010-05-08,Sat,1,2,3,4,5,1"});
        QCOMPARE(TestFolder::StoredRows("links"), QStringList{"A site,www.site.example,,One,Two"});
        QCOMPARE(TestFolder::StoredRows("users"), QStringList());
    }

    void ImpossibleRowStopsItWithItsPlace()
    {
        const QString balls = "a ball is out of range or stands twice";
        const std::pair<QByteArray, QString> rows[] = {
            {"2015-02-30,1,2,3,4,5,6,7,,", "2015-02-30 is not a date"},
            {"2015-10-07,1,x,3,4,5,6,7,,", "x is not a ball"},
            {"2015-10-07,1,2,3,4,5,50,7,,", balls},
            {"2015-10-07,1,2,3,4,4,6,7,,", balls},
            {"2015-10-07,1,2,3,4,5,6,6,,", balls},
            {"2015-10-07,2,1,3,4,5,6,7,,", "the main balls are not in ascending order"},
            {"2015-10-07,1,2,3,4,5,6,7,", "9 fields instead of 10"}};
        for (const auto& [row, reason] : rows) {
            const Run run("1994-11-19,3,5,14,22,30,44,10,,\n" + row + "\n", "");
            QCOMPARE(run.code, 1);
            QVERIFY2(run.said.trimmed().endsWith("main.csv:3: " + reason), qPrintable(run.said));
            QVERIFY(!QFile::exists(run.folder.filePath("out/drawdata.tv3")));
        }
    }

    void StarterDatabasesHoldTheWholeHistory()
    {
        const TestFolder folder(TestFolder::Content::Starter);
        const QStringList mainDraws = TestFolder::StoredRows("ukmain");
        QCOMPARE(mainDraws.size(), 2065);
        QCOMPARE(mainDraws.first(), QString("1,1994-11-19,Sat,3,5,14,22,30,44,10,GUINEVERE,A"));
        QCOMPARE(mainDraws.last().section(',', 0, 0), QString("2065"));
        QCOMPARE(TestFolder::StoredRows("ukthunder").size(), 964);
        QCOMPARE(TestFolder::StoredRows("links").filter("Your web site HERE.").size(), 1);
    }
};

TAVENOR_TEST(MakeDatabasesTest)
#include "make_databases_test.moc"
