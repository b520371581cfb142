#include "overview/ShareText.h"

#include <limits>

#include <QTest>

#include "support/TestRegistry.h"

namespace Loadwick {

class ShareTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesOneDecimalAfterAPoint_data()
    {
        QTest::addColumn<qint64>("tokens");
        QTest::addColumn<qint64>("total");
        QTest::addColumn<QString>("percent");
        const qint64 largest = std::numeric_limits<qint64>::max();
        const auto row = [](const char *name, qint64 tokens, qint64 total, const char *percent) {
            QTest::newRow(name) << tokens << total << QString::fromLatin1(percent);
        };
        row("a part", 1'234, 10'000, "12.3%");
        row("nothing", 0, 10'000, "0.0%");
        row("next to nothing", 1, 10'000'000, "0.0%");
        row("all", 10'000, 10'000, "100.0%");
        row("nearly all", 9'999, 10'000, "100.0%");
        row("more than all", 10'001, 10'000, "100.0%");
        row("far more than all", largest, 1, "100.0%");
        row("less than nothing", -5, 10'000, "0.0%");
        row("a tie of the binary value", 1, 16, "6.2%");
        row("of one", 1, 1, "100.0%");
        row("of nothing", 5, 0, "0.0%");
        row("of less than nothing", 5, -10, "0.0%");
        row("both less than nothing", -5, -10, "0.0%");
        row("the largest figures", largest / 2, largest, "50.0%");
    }

    void writesOneDecimalAfterAPoint()
    {
        QFETCH(const qint64, tokens);
        QFETCH(const qint64, total);
        QFETCH(const QString, percent);
        QCOMPARE(ShareText::percent(tokens, total), percent);
        QCOMPARE(ShareText::ofTotal(tokens, total), percent + QStringLiteral(" of total"));
    }

    void neverWritesAMinusBeforeZero()
    {
        QCOMPARE(ShareText::percent(-1, 1'000'000), QStringLiteral("0.0%"));
        QCOMPARE(ShareText::percent(std::numeric_limits<qint64>::min(), 1), QStringLiteral("0.0%"));
    }
};

const RegisteredTest<ShareTextTest> registered("ShareText");

} // namespace Loadwick

#include "ShareTextTest.moc"
