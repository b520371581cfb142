#include "overview/ReportDocument.h"

#include <QColor>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QRegularExpression>
#include <QTest>
#include <QXmlStreamReader>

#include "samples/SampleReport.h"
#include "support/TestRegistry.h"
#include "theme/Appearance.h"
#include "theme/ApplicationStyle.h"

namespace Loadwick {
namespace {

constexpr std::chrono::sys_seconds march{std::chrono::seconds(1'772'615'727)};

QString htmlOf(const ScanReport &report, const char *locale = "en_US")
{
    const ReportDocument document = {.report = std::make_shared<const ScanReport>(report),
                                     .scanned = march,
                                     .saved = march + std::chrono::hours(24),
                                     .locale = TextLocale{locale},
                                     .home = "/home/someone"};
    return QString::fromUtf8(document.html());
}

/// Variables of the style, and the roles of the window whose colours they have.
constexpr std::pair<const char *, const char *> roles[] = {
    {"window", "window"},
    {"surface", "surface"},
    {"separator", "separator"},
    {"text", "text"},
    {"secondary", "secondaryText"},
    {"lean", "bandLean"},
    {"heavy", "bandHeavy"},
    {"excessive", "bandExcessive"},
    {"lean-text", "bandLeanText"},
    {"heavy-text", "bandHeavyText"},
    {"excessive-text", "bandExcessiveText"},
};

struct Reading
{
    QString text; ///< all of it, without the style
    QStringList elements;
    QString failure;
};

Reading readingOf(const QString &html)
{
    Reading reading;
    QXmlStreamReader reader(html);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement())
            reading.elements.append(reader.name().toString());
        if (reader.isCharacters() && reading.elements.last() != QLatin1String("style"))
            reading.text += reader.text();
    }
    reading.failure = reader.errorString();
    return reading;
}

ScanReport reportOfFiles(int count)
{
    ScanReport report = sampleReport();
    for (int index = 0; index < count; ++index)
        report.fileSet.repositoryFiles.push_back(InstructionFileEstimate::fromPath(
            "/home/someone/webshop/documents/guides/number-" + std::to_string(index) + ".md",
            1'000 + index));
    return report;
}

} // namespace

class ReportDocumentTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void signsThatAreNotAsciiStayWhole()
    {
        const QString html = htmlOf(sampleReport());
        QVERIFY(html.contains(QStringLiteral(">●</span>Lean · under 30,000</li>")));
        QVERIFY(!html.contains(QChar(0xC2)) && !html.contains(QChar(0xE2)));
    }

    void saysWhatThePageSays()
    {
        ScanReport report = reportOfFiles(2);
        report.overAttributed = true;
        report.fileSet.unreadablePaths = {"/home/someone/webshop/secret.md"};
        report.fileSet.importers = {{report.fileSet.repositoryFiles[1].path, "/CLAUDE.md"}};
        const Reading reading = readingOf(htmlOf(report));
        QCOMPARE(reading.failure, QString());
        for (const char *words :
             {"Startup context of webshop",
              "/home/someone/webshop",
              "Scanned on Mar 4, 2026",
              "(2026-03-04T09:15:27Z)",
              "Saved on Mar 5, 2026",
              "Lean startup context",
              "The total measured by Claude is 27,654 tokens, which falls in the Lean band",
              "Authoritative · measured by Claude",
              "this app's opinion, not an industry standard",
              "Anchor: a measured subagent",
              "System prompt",
              "14,210",
              "51.4%",
              "self-reported by the session (estimate)",
              "add up to more than the measured total",
              "1 instruction file could not be read",
              "Could not be read",
              "1,001",
              "imported by /CLAUDE.md",
              "No files found in this tier.",
              "only the total above is authoritative",
              "Total: authoritative",
              "includes the probe prompt",
              "12.5 seconds",
              "/usr/local/bin/claude"})
            QVERIFY2(reading.text.contains(QString::fromUtf8(words)), words);
        QCOMPARE(reading.elements.count(QStringLiteral("svg")), 2);
    }

    void leavesOutTheDateOfAScanThatIsNotRecorded()
    {
        const ReportDocument document = {.report =
                                             std::make_shared<const ScanReport>(sampleReport()),
                                         .scanned = {},
                                         .saved = march,
                                         .locale = {},
                                         .home = {}};
        const QString text = readingOf(QString::fromUtf8(document.html())).text;
        QVERIFY(!text.contains(QLatin1String("Scanned on")));
        QVERIFY(text.contains(QLatin1String("Saved on")));
    }

    void saysWhyThereAreNoCategories()
    {
        ScanReport report = reportOfFiles(1);
        report.categoriesSelfReported = false;
        report.rows = {{"Nothing", 0, Provenance::remainder, 0}};
        const Reading reading = readingOf(htmlOf(report));
        for (const char *words :
             {"This session did not report category rows.", "The total and band remain factual",
              "report no tokens to chart", "not additional tokens on top of it"})
            QVERIFY2(reading.text.contains(QString::fromUtf8(words)), words);
        QCOMPARE(reading.elements.count(QStringLiteral("svg")), 1);
    }

    void showsNamesAsText_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("shown");
        const auto row = [](const char *name, const QString &shown) {
            QTest::newRow(name) << QString::fromUtf8(name) << shown;
        };
        row("<script>alert(1)</script>", QStringLiteral("<script>alert(1)</script>"));
        row("\"'>&amp;</title>", QStringLiteral("\"'>&amp;</title>"));
        row("a\u0001b\u007F\u001B[1m\u0085", QStringLiteral("a\uFFFDb\uFFFD\uFFFD[1m\uFFFD"));
        row("\uFFFE ]]> -->", QStringLiteral("\uFFFD ]]> -->"));
        row("\u202Emoc", QStringLiteral("\u202Emoc"));
    }

    void showsNamesAsText()
    {
        QFETCH(const QString, name);
        QFETCH(const QString, shown);
        const std::string text = name.toStdString();
        ScanReport report = reportOfFiles(1);
        report.repositoryName = text;
        report.repositoryPath = "/" + text;
        report.rows[0].name = text;
        report.sessionID = text;
        report.fileSet.repositoryFiles[0].path = "/" + text;
        report.fileSet.importers = {{"/" + text, text}};
        const Reading reading = readingOf(htmlOf(report));
        QCOMPARE(reading.failure, QString());
        QVERIFY(!reading.elements.contains(QStringLiteral("script")));
        QVERIFY(reading.text.count(shown) >= 6);
    }

    void endsNoElementAsXmlAloneAllowsIt()
    {
        ScanReport report = reportOfFiles(1);
        report.repositoryName.clear();
        report.rows[0].name.clear();
        report.sessionID.clear();
        static const QRegularExpression empty(QStringLiteral("<([a-z0-9]+)[^<>]*/>"));
        auto matches = empty.globalMatch(htmlOf(report));
        while (matches.hasNext()) {
            const QString element = matches.next().captured(1);
            QVERIFY2(QStringLiteral("meta rect circle path").split(u' ').contains(element),
                     qPrintable(element));
        }
    }

    void writesFiguresAndDatesInTheLocale_data()
    {
        QTest::addColumn<QString>("total");
        QTest::newRow("en_US") << QStringLiteral("27,654");
        QTest::newRow("de_DE") << QStringLiteral("27.654");
        QTest::newRow("hi_IN") << QStringLiteral("27,654");
        QTest::newRow("ar_EG") << QStringLiteral("٢٧٬٦٥٤");
    }

    void writesFiguresAndDatesInTheLocale()
    {
        QFETCH(const QString, total);
        const Reading reading = readingOf(htmlOf(sampleReport(), QTest::currentDataTag()));
        QCOMPARE(reading.failure, QString());
        QVERIFY(reading.text.contains(total + QStringLiteral(" tokens")));
    }

    void isSmall() { QVERIFY(htmlOf(reportOfFiles(500)).toUtf8().size() <= 200 * 1024); }

    void drawsARingOfOneCategory()
    {
        ScanReport report = sampleReport();
        report.rows = {report.rows.front()};
        const QString html = htmlOf(report);
        QCOMPARE(html.count(QStringLiteral("<path class=\"slice-0\"")), 1);
        QVERIFY(!html.contains(QLatin1String("nan")));
    }

    /// The window's own, so that a report looks like the page it was saved from.
    void hasTheColoursOfTheWindow_data()
    {
        QTest::addColumn<bool>("dark");
        QTest::newRow("light") << false;
        QTest::newRow("dark") << true;
    }

    void hasTheColoursOfTheWindow()
    {
        QFETCH(const bool, dark);
        const QString html = htmlOf(sampleReport());
        const auto colorOf = [&](const char *name) {
            const QString start = QStringLiteral("--%1: ").arg(QLatin1String(name));
            return QColor(
                html.mid((dark ? html.lastIndexOf(start) : html.indexOf(start)) + start.size(), 7));
        };
        QQmlEngine engine;
        ApplicationStyle::addModulePath(engine);
        QQmlComponent component(&engine);
        component.setData("import QtQml\nimport Loadwick\n"
                          "QtObject {\n"
                          "    readonly property QtObject theme: AppTheme\n"
                          "    readonly property QtObject appearance: Appearance\n"
                          "}",
                          QUrl());
        const std::unique_ptr<QObject> singletons(component.create());
        QVERIFY2(singletons, qPrintable(component.errorString()));
        const auto *theme = singletons->property("theme").value<QObject *>();
        singletons->property("appearance")
            .value<QObject *>()
            ->setProperty("scheme", dark ? Appearance::Dark : Appearance::Light);
        for (const auto &[name, role] : roles)
            QCOMPARE(colorOf(name), theme->property(role).value<QColor>());
        const auto series = theme->property("chartColors").value<QList<QColor>>();
        const char *const names[] = {"blue", "teal", "purple", "orange", "gray"};
        for (qsizetype index = 0; index < series.size(); ++index)
            QCOMPARE(colorOf(names[index]), series[index]);
    }
};

const RegisteredTest<ReportDocumentTest> registered("ReportDocument");

} // namespace Loadwick

#include "ReportDocumentTest.moc"
