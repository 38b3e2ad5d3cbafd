#include "support/run_tests.h"

#include "base/dates.h"
#include "base/numbers.h"

#include <cfloat>

class TextRulesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TypedTextIsReadAsItsLeadingNumber()
    {
        // Blanks are skipped, and what cannot continue a number ends it: signs, second points, exponents, words, digits
        // of other scripts.
        const QString arabicThree = QString::fromUtf8("٣");
        const std::pair<double, QStringList> rows[] = {
            {0, {"", "abc12", ".", "-", "NaN", "inf", "0x10", arabicThree, "0." + QString(10000, u'0') + "1"}},
            {1, {"1-5", "1,5", "1e308"}},
            {4, {"4\n5", "4" + arabicThree, QString("4") + QChar(1) + "5"}},
            {5, {"5.", "005x", "+5"}},
            {-5, {"-5"}},
            {0.5, {".5"}},
            {1.2, {"1.2.3"}},
            {123, {" 1 2\t3 "}},
            {DBL_MAX, {QString(10000, u'9')}}};
        for (const auto& [value, texts] : rows)
            for (const QString& text : texts)
                QVERIFY2(NumericValue(text) == value, qPrintable(text));
    }

    void NumbersAreWrittenPlainOrWithTheSignsPlace()
    {
        // Each is written as it is read.
        for (const char* text : {"0", "-12", "10.5", "0.1", "9007199254740991", "9007199254740992",
                                 "100000000000000000000", "0.00001", "-0.3333333333333333"})
            QCOMPARE(PlainNumber(NumericValue(QString(text))), QString(text));
        for (const double value : {DBL_MAX, DBL_MIN, DBL_TRUE_MIN, 1e300, 0.1 + 0.2})
            QVERIFY(NumericValue(PlainNumber(value)) == value);
        QCOMPARE(SpacedNumber(-0.0) + SpacedNumber(49) + SpacedNumber(-1), QString(" 0 49-1"));
    }

    void StoredDatesAreReadStrictlyAndWrittenInEnglish()
    {
        // Month and day may lack their zeros, as other tools write them.
        for (const auto& [stored, written] : {std::pair("2000-02-05", "Saturday, 5 February 2000"),
                                              {"2024-02-29", "Thursday, 29 February 2024"},
                                              {"2024-1-9", "Tuesday, 9 January 2024"}})
            QCOMPARE(LongStoredDate(stored), QString(written));
        for (const char* odd : {"2023-02-29", "1999-13-12", "1999-06-12 10:00", "1999--6-12", "", "yesterday!",
                                "24-01-09", "2024-001-9", "2024-1-009", "2024-10", "20x4-01-09", "year-01-09"})
            QVERIFY2(!DateFromIso(odd).isValid() && StoredDateInWords(odd) == odd, odd);
        QCOMPARE(StoredDateInWords("2000-02-05"), QString("5 February 2000"));
    }
};

TAVENOR_TEST(TextRulesTest)
#include "text_rules_test.moc"
