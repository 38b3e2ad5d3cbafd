#include "platform/dates.h"
#include "platform/numbers.h"
#include "platform/random_source.h"

#include <QTest>

#include <cfloat>

class TextRulesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TypedTextIsReadAsItsLeadingNumber_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("value");
        const auto row = [](const char* name, const QString& text, double value) {
            QTest::newRow(name) << text << value;
        };
        row("empty", "", 0);
        row("a number", "42", 42);
        row("blanks are skipped wherever they stand", " 1 2\t3 ", 123);
        row("read up to a letter", "12abc", 12);
        row("letters first", "abc12", 0);
        row("a fraction", "7.9", 7.9);
        row("one decimal point only", "1.2.3", 1.2);
        row("a point first", ".5", 0.5);
        row("a point alone", ".", 0);
        row("a point last", "5.", 5);
        row("a sign", "-5", -5);
        row("a sign alone", "-", 0);
        row("a sign in the middle ends it", "1-5", 1);
        row("no exponents", "1e308", 1);
        row("no other bases", "0x10", 0);
        row("no words", "NaN", 0);
        row("no infinity", "inf", 0);
        row("only the digits 0 to 9", QString::fromUtf8("٣"), 0);
        row("a digit of another script ends it", QString::fromUtf8("4٣"), 4);
        row("a comma ends it", "1,5", 1);
        row("leading zeros", "007", 7);
        row("more digits than a double holds", QString(10000, u'9'), DBL_MAX);
        row("nearer to zero than a double holds", "0." + QString(10000, u'0') + "1", 0);
        row("a minus zero is no other zero", "-0", 0);
        row("a line break ends it", "4\n5", 4);
        row("a control character ends it", QString("4") + QChar(1) + "5", 4);
    }

    void TypedTextIsReadAsItsLeadingNumber()
    {
        QFETCH(QString, text);
        QFETCH(double, value);
        QCOMPARE(NumericValue(text), value);
        QCOMPARE(NumericValue(std::string_view(text.toStdString())), value);
    }

    void NumbersAreWrittenPlainOrWithTheSignsPlace()
    {
        QCOMPARE(PlainNumber(5), QString("5"));
        QCOMPARE(PlainNumber(-12), QString("-12"));
        QCOMPARE(PlainNumber(10.5), QString("10.5"));
        QCOMPARE(PlainNumber(9007199254740991.0), QString("9007199254740991"));
        QCOMPARE(SpacedNumber(0), QString(" 0"));
        QCOMPARE(SpacedNumber(49), QString(" 49"));
        QCOMPARE(SpacedNumber(-1), QString("-1"));
    }

    void DatesAreWrittenInEnglish()
    {
        const QDate date(2000, 2, 5);
        QCOMPARE(LongDate(date), QString("Saturday, 5 February 2000"));
        QCOMPARE(DateInWords(date), QString("5 February 2000"));
        QCOMPARE(ShortDayName(date), QString("Sat"));
        QCOMPARE(DaySetIndex(date), 5);
        QCOMPARE(ShortDayName(date.addDays(1)), QString("Sun"));
        QCOMPARE(DaySetIndex(date.addDays(1)), 6);
        QCOMPARE(DaySetIndex(date.addDays(2)), 0);
        QVERIFY(ShortDate(date).contains("2000"));
    }

    void StoredDatesAreReadStrictly_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QDate>("date");
        QTest::newRow("a date") << "1999-06-12" << QDate(1999, 6, 12);
        QTest::newRow("a leap day") << "2024-02-29" << QDate(2024, 2, 29);
        QTest::newRow("no leap day") << "2023-02-29" << QDate();
        QTest::newRow("no month") << "1999-13-12" << QDate();
        QTest::newRow("with a time") << "1999-06-12 10:00" << QDate();
        QTest::newRow("signs") << "1999--6-12" << QDate();
        QTest::newRow("empty") << "" << QDate();
        QTest::newRow("words") << "yesterday!" << QDate();
    }

    void StoredDatesAreReadStrictly()
    {
        QFETCH(QString, stored);
        QFETCH(QDate, date);
        QCOMPARE(DateFromIso(stored.toStdString()), date);
    }

    void ChanceIsRepeatableUniformAndInRange()
    {
        RandomSource first;
        RandomSource second;
        std::array<int, 49> drawn{};
        for (int i = 0; i < 49000; ++i) {
            const int number = first.UpTo(49);
            QCOMPARE(second.UpTo(49), number);
            QVERIFY(number >= 1 && number <= 49);
            ++drawn.at(static_cast<size_t>(number) - 1);
        }
        double chiSquare = 0;
        for (const int count : drawn)
            chiSquare += (count - 1000.0) * (count - 1000.0) / 1000.0;
        // 48 degrees of freedom: below 73.7 in 99 runs of a hundred, and the seed is fixed.
        QVERIFY2(chiSquare < 73.7, qPrintable(QString::number(chiSquare)));
    }
};

QTEST_APPLESS_MAIN(TextRulesTest)
#include "text_rules_test.moc"
