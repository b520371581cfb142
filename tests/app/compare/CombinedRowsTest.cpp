#include "compare/CombinedRows.h"

#include <QAbstractItemModelTester>
#include <QTest>

#include "support/RecordedScanBuilder.h"
#include "support/TestRegistry.h"

namespace Loadwick {
namespace {

std::shared_ptr<const Comparison> comparison()
{
    return std::make_shared<const Comparison>(Comparison::of(std::vector{
        RecordedScanBuilder()
            .named("app")
            .in("/b/app")
            .withCategory("Tools", 2'000)
            .withCategory("Memory", 500)
            .build(),
        RecordedScanBuilder().named("app").in("/a/app").withCategory("Tools", 1'000).build()}));
}

} // namespace

class CombinedRowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_rows = std::make_unique<CombinedRows>(TextLocale()); }

    void isEmptyBeforeAnythingIsShown() { QCOMPARE(m_rows->rowCount(), 0); }

    void aCategoryStandsAboveOneBarPerRepository()
    {
        m_rows->show(comparison());
        QCOMPARE(
            texts(CombinedRows::Title),
            QStringList({QStringLiteral("Tools"), QStringLiteral("app"), QStringLiteral("app"),
                         QStringLiteral("Memory"), QStringLiteral("app"), QStringLiteral("app")}));
        QCOMPARE(value(0, CombinedRows::IsCategory).toBool(), true);
        QCOMPARE(value(1, CombinedRows::IsCategory).toBool(), false);
    }

    void repositoriesKeepTheirOrderInEveryCategory()
    {
        m_rows->show(comparison());
        QCOMPARE(texts(CombinedRows::Column),
                 QStringList({QStringLiteral("-1"), QStringLiteral("0"), QStringLiteral("1"),
                              QStringLiteral("-1"), QStringLiteral("0"), QStringLiteral("1")}));
        QCOMPARE(value(1, CombinedRows::Place).toString(), QStringLiteral("/a/app"));
        QCOMPARE(value(2, CombinedRows::Place).toString(), QStringLiteral("/b/app"));
    }

    void barsShareOneScale()
    {
        m_rows->show(comparison());
        QCOMPARE(value(1, CombinedRows::Length).toDouble(), 0.5);
        QCOMPARE(value(2, CombinedRows::Length).toDouble(), 1.0);
        QCOMPARE(value(5, CombinedRows::Length).toDouble(), 0.25);
    }

    void aMissingBarKeepsItsLine()
    {
        m_rows->show(comparison());
        QCOMPARE(value(4, CombinedRows::Value).toString(), QStringLiteral("–"));
        QCOMPARE(value(4, CombinedRows::IsRecorded).toBool(), false);
        QCOMPARE(value(4, CombinedRows::Spoken).toString(), QStringLiteral("app: not recorded"));
    }

    void everyLineCanBeSpoken()
    {
        m_rows->show(comparison());
        QCOMPARE(value(0, CombinedRows::Spoken).toString(), QStringLiteral("Tools"));
        QCOMPARE(value(2, CombinedRows::Spoken).toString(), QStringLiteral("app: 2,000 tokens"));
    }

    void aCategorysOwnLineHasNoFigure()
    {
        m_rows->show(comparison());
        QCOMPARE(value(0, CombinedRows::Value).toString(), QString());
        QCOMPARE(value(0, CombinedRows::Length).toDouble(), 0.0);
        QCOMPARE(value(0, CombinedRows::IsRecorded).toBool(), false);
    }

    void groupsFiguresAsTheLocaleDoes()
    {
        CombinedRows german(TextLocale{.numbers = "de_DE"});
        german.show(comparison());
        QCOMPARE(german.data(german.index(2), CombinedRows::Value).toString(),
                 QStringLiteral("2.000"));
    }

    void behavesAsAModelWhileTheComparisonChanges()
    {
        const QAbstractItemModelTester tester(m_rows.get());
        m_rows->show(comparison());
        m_rows->show(std::make_shared<const Comparison>());
        QCOMPARE(m_rows->rowCount(), 0);
    }

private:
    [[nodiscard]] QVariant value(int row, CombinedRows::Role role) const
    {
        return m_rows->data(m_rows->index(row), role);
    }

    [[nodiscard]] QStringList texts(CombinedRows::Role role) const
    {
        QStringList found;
        for (int row = 0; row < m_rows->rowCount(); ++row)
            found.append(value(row, role).toString());
        return found;
    }

    std::unique_ptr<CombinedRows> m_rows;
};

const RegisteredTest<CombinedRowsTest> registered("CombinedRows");

} // namespace Loadwick

#include "CombinedRowsTest.moc"
