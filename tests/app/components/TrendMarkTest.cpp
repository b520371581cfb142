#include "components/TrendMark.h"

#include <limits>

#include <QTest>

#include "support/TestRegistry.h"

namespace Loadwick {
namespace {

const TextLocale english{.numbers = "en_US"};

TrendMark mark(std::optional<TrendDirection> trend, std::optional<std::int64_t> delta)
{
    return TrendMark::of(trend, delta, english);
}

} // namespace

class TrendMarkTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aRepositoryScannedOnceSaysFirstScan()
    {
        const TrendMark expected{TrendKind::FirstScan, QStringLiteral("First scan"), QString()};
        QCOMPARE(mark(std::nullopt, std::nullopt), expected);
    }

    void aDirectionWithoutADeltaSaysFirstScan()
    {
        QCOMPARE(mark(TrendDirection::up, std::nullopt).title, QStringLiteral("First scan"));
        QCOMPARE(mark(TrendDirection::down, std::nullopt).kind, TrendKind::FirstScan);
    }

    void aDeltaWithoutADirectionSaysFirstScan()
    {
        QCOMPARE(mark(std::nullopt, 12).title, QStringLiteral("First scan"));
    }

    void growthHasAPlusSignAndPointsUp()
    {
        const TrendMark expected{TrendKind::Grew, QStringLiteral("+1,234"),
                                 QStringLiteral("arrow.up.right")};
        QCOMPARE(mark(TrendDirection::up, 1'234), expected);
    }

    void shrinkageHasTheMinusSignOfTheNumberAndPointsDown()
    {
        const TrendMark expected{TrendKind::Shrank, QStringLiteral("-80"),
                                 QStringLiteral("arrow.down.right")};
        QCOMPARE(mark(TrendDirection::down, -80), expected);
    }

    void noChangeSaysPlusMinusZero()
    {
        const TrendMark expected{TrendKind::Unchanged, QStringLiteral("±0"),
                                 QStringLiteral("equal")};
        QCOMPARE(mark(TrendDirection::flat, 0), expected);
    }

    void onlyAGrowthAboveZeroHasAPlusSign()
    {
        QCOMPARE(mark(TrendDirection::up, 1).title, QStringLiteral("+1"));
        QCOMPARE(mark(TrendDirection::up, 0).title, QStringLiteral("0"));
        QCOMPARE(mark(TrendDirection::up, -1).title, QStringLiteral("-1"));
    }

    void writesTheLargestDifferences()
    {
        using Limits = std::numeric_limits<std::int64_t>;
        QCOMPARE(mark(TrendDirection::up, Limits::max()).title,
                 QStringLiteral("+9,223,372,036,854,775,807"));
        QCOMPARE(mark(TrendDirection::down, Limits::min()).title,
                 QStringLiteral("-9,223,372,036,854,775,808"));
    }

    void groupsFiguresAsTheLocaleDoes_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("growth");
        QTest::addColumn<QString>("shrinkage");
        QTest::newRow("en_US") << QStringLiteral("en_US") << QStringLiteral("+1,234,567")
                               << QStringLiteral("-1,234,567");
        QTest::newRow("de_DE") << QStringLiteral("de_DE") << QStringLiteral("+1.234.567")
                               << QStringLiteral("-1.234.567");
        QTest::newRow("C") << QStringLiteral("C") << QStringLiteral("+1,234,567")
                           << QStringLiteral("-1,234,567");
        QTest::newRow("hi_IN") << QStringLiteral("hi_IN") << QStringLiteral("+12,34,567")
                               << QStringLiteral("-12,34,567");
    }

    void groupsFiguresAsTheLocaleDoes()
    {
        QFETCH(const QString, locale);
        const TextLocale texts =
            TextLocale::fromEnvironment({{"LC_ALL", locale.toStdString() + ".UTF-8"}});
        QTEST(TrendMark::of(TrendDirection::up, 1'234'567, texts).title, "growth");
        QTEST(TrendMark::of(TrendDirection::down, -1'234'567, texts).title, "shrinkage");
    }
};

const RegisteredTest<TrendMarkTest> registered("TrendMark");

} // namespace Loadwick

#include "TrendMarkTest.moc"
