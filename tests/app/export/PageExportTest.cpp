#include "export/PageExport.h"

#include <fstream>
#include <iterator>
#include <new>
#include <thread>

#include <QAccessible>
#include <QDateTime>
#include <QImage>
#include <QSignalSpy>
#include <QTest>

#include "base/QtTaskDispatcher.h"
#include "shell/ContentPresenter.h"
#include "support/FakeFileSaver.h"
#include "support/SteppingDispatcher.h"
#include "support/TestRegistry.h"
#include "support/WindowFixture.h"
#include "text/DateText.h"

namespace Loadwick {
namespace {

QByteArray content(const std::filesystem::path &file)
{
    std::ifstream stream(file, std::ios::binary);
    return QByteArray::fromStdString(std::string(std::istreambuf_iterator<char>(stream), {}));
}

} // namespace

class PageExportTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<WindowFixture>();
        for (const char *name : {"=one", "two", "two"})
            scan(name);
    }
    void cleanup() { m_window.reset(); }

    void savesTheLastScanAsCsv()
    {
        const QByteArray table = content(save("Save Data…", "scan.csv"));
        QCOMPARE(m_window->saver().asked->name, reportName() + QStringLiteral(".csv"));
        const RecordedScan scan = m_window->loadwick().model().history().get().back();
        const auto row = QByteArray::fromStdString("\r\ntwo," + scan.repositoryPath + ',' +
                                                   IsoDate::text(scan.date) + ',');
        QVERIFY(table.startsWith("Repository,Path,Date (UTC),Kind,Name,Tokens,Source,Bytes,Tier,"
                                 "Imported by" +
                                 row + "Total,,27654,reported by Claude,,," + row +
                                 "Category,System prompt,14210,"));
    }

    void savesTheLastScanAsAReport()
    {
        const auto file = save("Save Report…", "scan.html");
        QCOMPARE(m_window->saver().asked->name, reportName() + QStringLiteral(".html"));
        const QByteArray page = content(file);
        const auto moment = m_window->loadwick().model().history().get().back().date;
        QVERIFY(page.startsWith("<!DOCTYPE html>"));
        QVERIFY(page.contains("<bdi>two</bdi>"));
        QVERIFY(page.contains(
            ("Scanned on " + dateText(moment, DateForm::dayAndTime, TextLocale())).c_str()));
        QVERIFY(m_window->shows(savedAs(file)));
    }

    void savesTheScanThatWasShown_data()
    {
        QTest::addColumn<QByteArray>("start");
        QTest::newRow("Save Report…") << QByteArray("<bdi>two</bdi>");
        QTest::newRow("Save Data…") << QByteArray("\r\ntwo,");
    }

    void savesTheScanThatWasShown()
    {
        QFETCH(const QByteArray, start);
        const auto file = m_window->folder().path() / "scan";
        press(QTest::currentDataTag());
        scan("later");
        m_window->saver().chosen({.file = file, .mayReplace = true});
        m_window->finishScan();
        QVERIFY(content(file).contains(start));
    }

    void makesTheDataInTheBackground()
    {
        const auto file = m_window->folder().path() / "data.csv";
        FakeFileSaver saver;
        saver.answer = {.file = file, .mayReplace = true};
        QObject interface;
        std::thread::id maker;
        PageExport page({.name = [] { return QStringLiteral("data"); },
                         .table =
                             [&maker] {
                                 return [&maker] {
                                     maker = std::this_thread::get_id();
                                     return QByteArray("a,b\r\n");
                                 };
                             }},
                        saver, std::make_shared<QtTaskDispatcher>(interface));
        const QSignalSpy saved(&page, &PageExport::changed);
        page.saveTable();
        QTRY_COMPARE(saved.count(), 1);
        QCOMPARE(content(file), QByteArray("a,b\r\n"));
        QVERIFY(maker != std::thread::id() && maker != std::this_thread::get_id());
    }

    void saysThatMemoryRanOut()
    {
        const auto file = m_window->folder().path() / "data.csv";
        FakeFileSaver saver;
        saver.answer = {.file = file, .mayReplace = true};
        const auto dispatcher = std::make_shared<SteppingDispatcher>();
        PageExport page({.name = [] { return QStringLiteral("data"); },
                         .table = [] { return []() -> QByteArray { throw std::bad_alloc(); }; }},
                        saver, dispatcher);
        page.saveTable();
        dispatcher->runAll();
        QVERIFY(page.failed());
        QVERIFY(page.outcome().contains(QStringLiteral("Cannot allocate memory")));
        QVERIFY(!std::filesystem::exists(file));
    }

    void savesTheTrendAsCsv()
    {
        m_window->loadwick().content().setPageIndex(1);
        const auto file = save("Save Data…", "trend.csv");
        QCOMPARE(m_window->saver().asked->name, QStringLiteral("loadwick-trend-two.csv"));
        const QList<QByteArray> lines = content(file).split('\n');
        QCOMPARE(lines.size(), 4); // the head, two scans, and nothing after the last line's end
        QCOMPARE(lines[0], QByteArray("Repository,Path,Date (UTC),Total tokens,Band\r"));
        QVERIFY(lines[1].startsWith("two,"));
        QVERIFY(lines[1].endsWith(",27654,Lean\r"));
        QVERIFY(m_window->shows(savedAs(file)));
    }

    void savesTheComparisonWithItsCategories()
    {
        m_window->loadwick().content().setPageIndex(2);
        const QByteArray table = content(save("Save Data…", "all.csv"));
        QVERIFY(table.startsWith("Repository,Path,Date (UTC),Total tokens,Band,"));
        QVERIFY(table.contains(" tokens (estimate)\r\n"));
        QVERIFY(table.contains("\r\n'=one,"));
        QVERIFY(table.contains("\r\ntwo,"));
        QCOMPARE(m_window->saver().asked->name, QStringLiteral("loadwick-comparison.csv"));
    }

    void savesTheTrendsChartAsAPicture()
    {
        m_window->loadwick().content().setPageIndex(1);
        const QImage image(QString::fromStdString(save("Save Chart…", "trend.png").string()));
        QVERIFY(image.width() > 1000);
        QVERIFY(image.height() > 2 * (260 + 32)); // the chart, its margin, and words above it
        QVERIFY(colorCount(image) > 20);
    }

    void savesTheWholeComparisonChart()
    {
        m_window->loadwick().content().setPageIndex(2);
        const QImage image(QString::fromStdString(save("Save Chart…", "all.png").string()));
        QCOMPARE(image.width(), 2 * (900 + 32));
        QVERIFY(image.height() > 2 * 24);
        QVERIFY(colorCount(image) > 20);
    }

    void anSvgEndingSavesADrawing_data()
    {
        QTest::addColumn<QByteArray>("name");
        for (const char *name : {"trend.svg", "v1.2.Svg"})
            QTest::newRow(name) << QByteArray(name);
    }

    void anSvgEndingSavesADrawing()
    {
        QFETCH(const QByteArray, name);
        m_window->loadwick().content().setPageIndex(1);
        const QByteArray drawing = content(save("Save Chart…", name.toStdString()));
        QVERIFY(drawing.startsWith("<?xml"));
        QVERIFY(drawing.contains("<svg"));
        QVERIFY(drawing.contains("Excessive"));
    }

    void aTrendNamesItsSubjectAndDays()
    {
        m_window->loadwick().content().setPageIndex(1);
        const QByteArray drawing = content(save("Save Chart…", "trend.svg"));
        for (const char *words : {">Startup tokens per scan<", "two: startup context over time",
                                  "every total was reported by Claude."})
            QVERIFY2(drawing.contains(words), words);
        // The axis of a single day's scans shows only hours.
        const auto moment = m_window->loadwick().model().history().get().back().date;
        QVERIFY(drawing.contains(">2 scans "));
        QVERIFY(drawing.contains((dateText(moment, DateForm::day, TextLocale()) + ".<").c_str()));
    }

    void aComparisonNamesItsSubject()
    {
        m_window->loadwick().content().setPageIndex(2);
        const QByteArray drawing = content(save("Save Chart…", "all.svg"));
        for (const char *words : {">Category for category<", "local estimates", "tokens"})
            QVERIFY2(drawing.contains(words), words);
    }

    void replacesAFileOnlyWithConsent()
    {
        m_window->loadwick().content().setPageIndex(1);
        const auto file = m_window->folder().write("trend.csv", "precious");
        m_mayReplace = false;
        save("Save Data…", "trend.csv");
        QCOMPARE(content(file), QByteArray("precious"));
        QVERIFY(m_window->shows(
            QString::fromStdString(file.string()) +
            QStringLiteral(" could not be written: a file of that name is there already. "
                           "Choose another name.")));
        m_mayReplace = true;
        save("Save Data…", "trend.csv");
        QVERIFY(content(file).startsWith("Repository,"));
        QVERIFY(m_window->shows(savedAs(file)));
    }

    void aFailedWriteSaysWhy_data()
    {
        QTest::addColumn<QByteArray>("name");
        for (const char *name : {"no such folder/trend.png", "no such folder/"})
            QTest::newRow(name) << QByteArray(name);
    }

    void aFailedWriteSaysWhy()
    {
        QFETCH(const QByteArray, name);
        m_window->loadwick().content().setPageIndex(1);
        const auto file = save("Save Chart…", name.toStdString());
        QVERIFY(!std::filesystem::exists(file));
        QVERIFY(m_window->shows(QString::fromStdString(file.string()) +
                                QStringLiteral(" could not be written: its folder is not there.")));
    }

    void cancellingSavesNothing()
    {
        m_window->loadwick().content().setPageIndex(1);
        press("Save Data…");
        m_window->finishScan();
        QVERIFY(m_window->saver().asked.has_value());
        QVERIFY(!m_window->shows(savedAs(m_window->folder().path() / "loadwick-trend-two.csv")));
    }

    void theWindowMayCloseBeforeTheFileIsWritten()
    {
        m_window->loadwick().content().setPageIndex(1);
        const auto file = m_window->folder().path() / "late.csv";
        m_window->saver().answer = {.file = file, .mayReplace = true};
        press("Save Data…");
        m_window->destroy();
        m_window->finishScan();
        QVERIFY(std::filesystem::exists(file));
    }

private:
    static QString savedAs(const std::filesystem::path &file)
    {
        return QStringLiteral("Saved as %1.").arg(QString::fromStdString(file.string()));
    }

    /// The name suggested for the last scan, without its ending.
    [[nodiscard]] QString reportName() const
    {
        const auto moment = m_window->loadwick().model().history().get().back().date;
        return QDateTime::fromSecsSinceEpoch(moment.time_since_epoch().count())
            .toString(QStringLiteral("'loadwick-report-two-'yyyy-MM-dd"));
    }

    void scan(const std::string &name)
    {
        std::filesystem::create_directory(m_window->folder().path() / name);
        m_window->choose(m_window->folder().path() / name);
        m_window->press(Qt::Key_R, Qt::ControlModifier);
        m_window->finishScan();
    }

    void press(const char *name)
    {
        QAccessibleInterface *button = m_window->find(QString::fromUtf8(name));
        QVERIFY2(button != nullptr && button->actionInterface() != nullptr, name);
        button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    }

    std::filesystem::path save(const char *button, const std::string &name)
    {
        const auto file = m_window->folder().path() / name;
        m_window->saver().answer = {.file = file, .mayReplace = m_mayReplace};
        (void)m_window->loadwick().window().grabWindow(); // forces a layout
        press(button);
        m_window->finishScan();
        return file;
    }

    static qsizetype colorCount(const QImage &image)
    {
        QSet<QRgb> colors;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                colors.insert(image.pixel(x, y));
        return colors.size();
    }

    bool m_mayReplace = true;
    std::unique_ptr<WindowFixture> m_window;
};

const RegisteredTest<PageExportTest> registered("PageExport");

} // namespace Loadwick

#include "PageExportTest.moc"
