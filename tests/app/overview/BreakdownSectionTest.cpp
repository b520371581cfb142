#include <cstdint>
#include <limits>

#include <QQuickItem>
#include <QQuickWindow>
#include <QSet>
#include <QTest>

#include "samples/SampleReport.h"
#include "samples/SampleScans.h"
#include "support/BreakdownWindow.h"
#include "support/TestRegistry.h"

namespace Loadwick {
namespace {

ScanReport reportOfRows(int count, const std::string &name, std::int64_t tokens = 3)
{
    ScanReport report = sampleReport();
    report.rows.clear();
    for (int row = 0; row < count; ++row) {
        report.rows.push_back({.name = name + std::to_string(row),
                               .tokens = tokens,
                               .provenance = Provenance::localEstimate,
                               .ordinal = row});
    }
    return report;
}

} // namespace

class BreakdownSectionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesItselfAndItsColumns()
    {
        const BreakdownWindow shown(sampleReport());
        const QStringList texts = shown.texts();
        for (const auto &text :
             {QStringLiteral("Estimated breakdown by category"),
              QStringLiteral("Shares use the Claude-reported total; category rows are estimates."),
              QStringLiteral("Category"), QStringLiteral("Tokens"), QStringLiteral("Share"),
              QStringLiteral("Source"), QStringLiteral("tokens")})
            QVERIFY2(texts.contains(text), qPrintable(text));
    }

    void listsEveryRowWithItsFigures()
    {
        const BreakdownWindow shown(sampleReport());
        const QStringList row = {QStringLiteral("Tools"), QStringLiteral("812"),
                                 QStringLiteral("2.9%"),
                                 QStringLiteral("self-reported by the session (estimate)")};
        const QStringList texts = shown.texts();
        QCOMPARE(texts.mid(texts.indexOf(row.first()), 4), row);
        QCOMPARE(texts.count(QStringLiteral("Unattributed")), 1);
    }

    void aReportWithoutTokensShowsATextInsteadOfTheDonut()
    {
        BreakdownWindow shown(SampleScans::zero().report());
        QVERIFY(shown.items(QStringLiteral("donut")).isEmpty());
        QVERIFY(shown.texts().contains(
            QStringLiteral("The attributed category rows report no tokens to chart.")));
        QVERIFY(shown.breakdown().rows()->rowCount() > 0);
        QCOMPARE(shown.texts().count(QStringLiteral("0.0%")), shown.breakdown().rows()->rowCount());
    }

    void createsOnlyTheVisibleOfEightThousandRows()
    {
        BreakdownWindow shown(reportOfRows(8'000, "Row "));
        QVERIFY(shown.items(QStringLiteral("source")).size() < 40);
        QQuickItem &page = shown.item(QStringLiteral("page"));
        page.setProperty("contentY", page.property("contentHeight").toReal() - page.height());
        shown.settle();
        QVERIFY(shown.items(QStringLiteral("source")).size() < 40);
        QVERIFY(shown.texts().contains(QStringLiteral("Row 7999")));
        QVERIFY(!shown.texts().contains(QStringLiteral("Row 0")));
    }

    void saysThatASessionReportedNoCategories()
    {
        BreakdownWindow shown(SampleScans::notSelfReported().report());
        const auto title = QStringLiteral("This session did not report category rows.");
        const auto text = QStringLiteral(
            "Claude did not self-report categories for this session. The total and band remain "
            "factual; instruction files are listed separately as local estimates.");
        QVERIFY(shown.texts().contains(title) && shown.texts().contains(text));
        shown.breakdown().show(sampleReport());
        QVERIFY(!shown.texts().contains(title) && !shown.texts().contains(text));
    }

    void showsTheNotesBelowTheRows()
    {
        BreakdownWindow shown(SampleScans::overAttributed().report());
        const QStringList notes = shown.breakdown().notes();
        QVERIFY(notes.size() >= 2);
        const QStringList texts = shown.texts();
        QCOMPARE(texts.mid(texts.size() - notes.size()), notes);
    }

    void nothingIsClipped_data()
    {
        QTest::addColumn<int>("width");
        QTest::newRow("in the smallest window") << 660;
        QTest::newRow("in the first window") << 880;
        QTest::newRow("in a large window") << 1040;
    }

    void nothingIsClipped()
    {
        QFETCH(const int, width);
        const BreakdownWindow shown(reportOfRows(6, std::string(80, 'n')), width);
        QQuickItem &card = shown.item(QStringLiteral("card"));
        for (QQuickItem *label : shown.labels()) {
            const QString text = label->property("text").toString();
            const QRectF box = label->mapRectToItem(&card, label->boundingRect());
            QVERIFY2(box.left() >= 16 && box.right() <= width - 16, qPrintable(text));
            QVERIFY2(label->property("contentHeight").toReal() <= label->height() + 1,
                     qPrintable(text));
            // A name may be elided: its tool tip holds the whole.
            QVERIFY2(label->objectName() == QStringLiteral("name") ||
                         label->property("contentWidth").toReal() <= label->width() + 1,
                     qPrintable(text));
            if (label->objectName() == QStringLiteral("source"))
                QVERIFY2(label->height() <= label->parentItem()->height(), qPrintable(text));
        }
    }

    void showsOurCategoryNamesUnelidedInTheSmallestWindow()
    {
        const BreakdownWindow shown(SampleScans::notSelfReported().report(), 660);
        for (const QQuickItem *name : shown.items(QStringLiteral("name")))
            QVERIFY(!name->property("truncated").toBool());
    }

    void alignsFigures()
    {
        const BreakdownWindow shown(SampleScans::heavy().report());
        for (const auto &column : {QStringLiteral("tokens"), QStringLiteral("share")}) {
            QSet<qreal> ends;
            for (const QQuickItem *label : shown.items(column)) {
                ends.insert(label->mapToScene({label->width(), 0}).x());
                QCOMPARE(label->property("horizontalAlignment").toInt(), int(Qt::AlignRight));
            }
            QCOMPARE(ends.size(), 1);
        }
    }

    void theLargestFigureKeepsClearOfTheName()
    {
        const auto largest = std::numeric_limits<std::int64_t>::max();
        const BreakdownWindow shown(reportOfRows(1, std::string(80, 'n'), largest), 660);
        const QQuickItem &tokens = *shown.items(QStringLiteral("tokens")).back();
        QCOMPARE(tokens.property("text").toString(), QStringLiteral("9,223,372,036,854,775,807"));
        QVERIFY(tokens.property("contentWidth").toReal() <= tokens.width());
    }
};

const RegisteredTest<BreakdownSectionTest> registered("BreakdownSection");

} // namespace Loadwick

#include "BreakdownSectionTest.moc"
