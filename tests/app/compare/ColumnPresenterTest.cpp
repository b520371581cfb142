#include "compare/ColumnPresenter.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

#include "support/RecordedScanBuilder.h"
#include "support/TestRegistry.h"

namespace Loadwick {
namespace {

std::shared_ptr<const Comparison> comparison()
{
    return std::make_shared<const Comparison>(Comparison::of(
        std::vector{RecordedScanBuilder()
                        .named("harbor")
                        .in("/srv/harbor")
                        .ofTotal(43'655)
                        .withCategory("System tools", 16'000)
                        .withCategory("Memory", 4'000)
                        .build(),
                    RecordedScanBuilder()
                        .named("notes")
                        .in("/srv/notes")
                        .ofTotal(1'234'567)
                        .withCategory("Memory", 0)
                        .build(),
                    RecordedScanBuilder().named("tides").in("/srv/tides").ofTotal(3).build()}));
}

} // namespace

class ColumnPresenterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_column = std::make_unique<ColumnPresenter>(TextLocale()); }

    void isEmptyBeforeAnythingIsShown()
    {
        QCOMPARE(m_column->bars()->count(), 0);
        QCOMPARE(m_column->name(), QString());
        QCOMPARE(m_column->total(), QString());
        QCOMPARE(m_column->emptyText(), QString());
    }

    void reportsTheLatestScan()
    {
        m_column->show(comparison(), 0);
        QCOMPARE(m_column->name(), QStringLiteral("harbor"));
        QCOMPARE(m_column->path(), QStringLiteral("/srv/harbor"));
        QCOMPARE(m_column->scanned(), QStringLiteral("Scanned Mar 4, 2026"));
        QCOMPARE(m_column->total(), QStringLiteral("43,655"));
        QCOMPARE(m_column->band(), 1);
        QCOMPARE(m_column->bandText(), QStringLiteral("Heavy · 30,000–60,000"));
    }

    void namesEachBandWithItsRange()
    {
        m_column->show(comparison(), 1);
        QCOMPARE(m_column->bandText(), QStringLiteral("Excessive · over 60,000"));
        m_column->show(comparison(), 2);
        QCOMPARE(m_column->bandText(), QStringLiteral("Lean · under 30,000"));
    }

    void everyColumnListsTheWholeAxis()
    {
        for (const std::size_t column : {std::size_t(0), std::size_t(1)}) {
            m_column->show(comparison(), column);
            QCOMPARE(texts("category"),
                     QStringList({QStringLiteral("System tools"), QStringLiteral("Memory")}));
        }
    }

    void aMissingCategoryHasADashAndNoBar()
    {
        m_column->show(comparison(), 1);
        QCOMPARE(texts("value"), QStringList({QStringLiteral("–"), QStringLiteral("0")}));
        QCOMPARE(value(0, "isRecorded").toBool(), false);
        QCOMPARE(value(1, "isRecorded").toBool(), true);
        QCOMPARE(value(0, "length").toDouble(), 0.0);
        QCOMPARE(value(0, "spoken").toString(), QStringLiteral("System tools: not recorded"));
    }

    void barsAreAsLongAsTheirShareOfTheLongest()
    {
        m_column->show(comparison(), 0);
        QCOMPARE(value(0, "length").toDouble(), 1.0);
        QCOMPARE(value(1, "length").toDouble(), 0.25);
        QCOMPARE(texts("spoken"), QStringList({QStringLiteral("System tools: 16,000 tokens"),
                                               QStringLiteral("Memory: 4,000 tokens")}));
    }

    void aScanWithoutCategoriesSaysSo()
    {
        m_column->show(comparison(), 2);
        QCOMPARE(m_column->emptyText(), QStringLiteral("No category estimates"));
        QCOMPARE(m_column->bars()->count(), 0);
        m_column->show(comparison(), 0);
        QCOMPARE(m_column->emptyText(), QString());
    }

    void theChartNamesItsRepositoryAndItsScale()
    {
        m_column->show(comparison(), 1);
        QCOMPARE(m_column->chartName(),
                 QStringLiteral("notes: tokens by category, on a scale from 0 to 16,000"));
    }

    void writesFiguresAndDatesAsTheLocaleDoes_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("scanned");
        QTest::addColumn<QString>("total");
        QTest::addColumn<QString>("band");
        QTest::newRow("en_US") << QStringLiteral("en_US") << QStringLiteral("Scanned Mar 4, 2026")
                               << QStringLiteral("1,234,567")
                               << QStringLiteral("Excessive · over 60,000");
        QTest::newRow("de_DE") << QStringLiteral("de_DE") << QStringLiteral("Scanned 4. März 2026")
                               << QStringLiteral("1.234.567")
                               << QStringLiteral("Excessive · over 60.000");
        QTest::newRow("C") << QStringLiteral("C") << QStringLiteral("Scanned Mar 4, 2026")
                           << QStringLiteral("1,234,567")
                           << QStringLiteral("Excessive · over 60,000");
        QTest::newRow("hi_IN") << QStringLiteral("hi_IN") << QStringLiteral("Scanned 4 मार्च 2026")
                               << QStringLiteral("12,34,567")
                               << QStringLiteral("Excessive · over 60,000");
    }

    void writesFiguresAndDatesAsTheLocaleDoes()
    {
        QFETCH(const QString, locale);
        ColumnPresenter column(TextLocale::fromEnvironment({{"LC_ALL", locale.toStdString()}}));
        column.show(comparison(), 1);
        QTEST(column.scanned(), "scanned");
        QTEST(column.total(), "total");
        QTEST(column.bandText(), "band");
    }

    void itsBarsAreAModelWhileItsColumnChanges()
    {
        const QAbstractItemModelTester tester(m_column->bars());
        const QSignalSpy changed(m_column.get(), &ColumnPresenter::changed);
        m_column->show(comparison(), 0);
        m_column->show(comparison(), 2);
        QCOMPARE(changed.size(), 2);
    }

    void keepsItsBarsWhenItShowsAnotherRepository()
    {
        const QAbstractItemModelTester tester(m_column->bars());
        m_column->show(comparison(), 0);
        const QSignalSpy reset(m_column->bars(), &RowList::modelReset);
        const QSignalSpy changed(m_column->bars(), &RowList::dataChanged);
        m_column->show(comparison(), 1);
        QCOMPARE(reset.size(), 0);
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed[0][0].toModelIndex().row(), 0);
        QCOMPARE(changed[0][1].toModelIndex().row(), 1);
        m_column->show(comparison(), 2);
        QCOMPARE(reset.size(), 1);
    }

private:
    [[nodiscard]] QVariant value(int row, const char *role) const
    {
        return m_column->bars()->value(row, QString::fromLatin1(role));
    }

    [[nodiscard]] QStringList texts(const char *role) const
    {
        QStringList found;
        for (int row = 0; row < m_column->bars()->count(); ++row)
            found.append(value(row, role).toString());
        return found;
    }

    std::unique_ptr<ColumnPresenter> m_column;
};

const RegisteredTest<ColumnPresenterTest> registered("ColumnPresenter");

} // namespace Loadwick

#include "ColumnPresenterTest.moc"
