#include "compare/CombinedChart.h"

#include <set>

#include <QAbstractItemModelTester>
#include <QImage>
#include <QPainter>
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

class CombinedChartTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_rows = std::make_unique<CombinedRows>(combinedRoles(TextLocale())); }

    void isEmptyBeforeAnythingIsShown() { QCOMPARE(m_rows->count(), 0); }

    void listsOneBarPerRepositoryUnderEachCategory()
    {
        m_rows->setRows(CombinedLines(comparison()));
        QCOMPARE(texts("title"), QStringList({QStringLiteral("Tools"), QStringLiteral("app"),
                                              QStringLiteral("app"), QStringLiteral("Memory"),
                                              QStringLiteral("app"), QStringLiteral("app")}));
        QCOMPARE(value(0, "isCategory").toBool(), true);
        QCOMPARE(value(1, "isCategory").toBool(), false);
    }

    void repositoriesKeepTheirOrderInEveryCategory()
    {
        m_rows->setRows(CombinedLines(comparison()));
        QCOMPARE(texts("column"),
                 QStringList({QStringLiteral("-1"), QStringLiteral("0"), QStringLiteral("1"),
                              QStringLiteral("-1"), QStringLiteral("0"), QStringLiteral("1")}));
        QCOMPARE(value(1, "path").toString(), QStringLiteral("/a/app"));
        QCOMPARE(value(2, "path").toString(), QStringLiteral("/b/app"));
    }

    void barsShareOneScale()
    {
        m_rows->setRows(CombinedLines(comparison()));
        QCOMPARE(value(1, "length").toDouble(), 0.5);
        QCOMPARE(value(2, "length").toDouble(), 1.0);
        QCOMPARE(value(5, "length").toDouble(), 0.25);
    }

    void aMissingBarKeepsItsLine()
    {
        m_rows->setRows(CombinedLines(comparison()));
        QCOMPARE(value(4, "value").toString(), QStringLiteral("–"));
        QCOMPARE(value(4, "isRecorded").toBool(), false);
        QCOMPARE(value(4, "spoken").toString(), QStringLiteral("app: not recorded"));
    }

    void everyLineCanBeSpoken()
    {
        m_rows->setRows(CombinedLines(comparison()));
        QCOMPARE(value(0, "spoken").toString(), QStringLiteral("Tools"));
        QCOMPARE(value(2, "spoken").toString(), QStringLiteral("app: 2,000 tokens"));
    }

    void aHeadingHasNoFigure()
    {
        m_rows->setRows(CombinedLines(comparison()));
        QCOMPARE(value(0, "value").toString(), QString());
        QCOMPARE(value(0, "length").toDouble(), 0.0);
        QCOMPARE(value(0, "isRecorded").toBool(), false);
    }

    void groupsFiguresAsTheLocaleDoes()
    {
        CombinedRows german(combinedRoles(TextLocale{.numbers = "de_DE"}));
        german.setRows(CombinedLines(comparison()));
        QCOMPARE(german.text(2, QStringLiteral("value")), QStringLiteral("2.000"));
    }

    void everyBarHasExactlyOneLine()
    {
        const CombinedLines lines(comparison());
        std::set<std::pair<std::size_t, std::size_t>> bars;
        for (std::size_t index = 0; index < lines.size(); ++index) {
            const CombinedLine line = lines[index];
            QCOMPARE(line.row, index / 3);
            QCOMPARE(line.column.has_value(), index % 3 != 0);
            if (line.column)
                bars.emplace(line.row, *line.column);
        }
        QCOMPARE(bars.size(), std::size_t(2 * 2));
        QCOMPARE(CombinedLines().size(), std::size_t(0));
    }

    void thePictureStacksThePagesLines()
    {
        m_rows->setRows(CombinedLines(comparison()));
        BarStyle style;
        style.track = Qt::lightGray;
        CombinedPicture picture;
        picture.setWidth(300);
        picture.setRows(m_rows.get());
        picture.setProperty("style", QVariant::fromValue(&style));
        picture.setProperty("colors", QVariant::fromValue(QList<QColor>{Qt::red, Qt::blue}));
        QCOMPARE(picture.height(), 6.0 * CombinedPicture::rowHeight);
        QImage image(picture.size().toSize(), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        picture.paint(&painter);
        const auto color = [&](int line) { // beyond the middle of the track
            return image.pixelColor(200, line * CombinedPicture::rowHeight + 12);
        };
        QCOMPARE(color(0), QColor(Qt::white));
        QCOMPARE(color(1), QColor(Qt::lightGray));
        QCOMPARE(color(2), QColor(Qt::blue));
        QCOMPARE(color(4), QColor(Qt::lightGray));
        m_rows->setRows({});
        QCOMPARE(picture.height(), 0.0);
    }

    void behavesAsAModelWhileTheComparisonChanges()
    {
        const QAbstractItemModelTester tester(m_rows.get());
        m_rows->setRows(CombinedLines(comparison()));
        m_rows->setRows(CombinedLines(std::make_shared<const Comparison>()));
        QCOMPARE(m_rows->count(), 0);
    }

private:
    [[nodiscard]] QVariant value(int row, const char *role) const
    {
        return m_rows->value(row, QString::fromLatin1(role));
    }

    [[nodiscard]] QStringList texts(const char *role) const
    {
        QStringList found;
        for (int row = 0; row < m_rows->count(); ++row)
            found.append(value(row, role).toString());
        return found;
    }

    std::unique_ptr<CombinedRows> m_rows;
};

const RegisteredTest<CombinedChartTest> registered("CombinedChart");

} // namespace Loadwick

#include "CombinedChartTest.moc"
