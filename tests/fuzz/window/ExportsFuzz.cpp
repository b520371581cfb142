#include <optional>
#include <string>
#include <vector>

#include <QGuiApplication>
#include <QXmlStreamReader>

#include "base/QtText.h"
#include "charts/DonutChart.h"
#include "export/PictureFrame.h"
#include "fuzz/FuzzTarget.h"
#include "fuzz/window/ReportInput.h"
#include "history/ScanTables.h"
#include "overview/ReportDocument.h"
#include "report/ReportTable.h"
#include "text/DateText.h"
#include "text/NumberText.h"

namespace Loadwick {

namespace {

using Row = std::vector<std::string>;

/// Reads one table by RFC 4180: every record ends with CR LF, and in quotes a quote is doubled.
class CsvReader
{
public:
    explicit CsvReader(std::string_view bytes) : m_rest(bytes) {}

    std::vector<Row> rows()
    {
        std::vector<Row> rows;
        while (!m_rest.empty()) {
            rows.emplace_back();
            do
                rows.back().push_back(m_rest.starts_with('"') ? quoted() : plain());
            while (take(","));
            require(take("\r\n"), "a record ends with its line");
        }
        return rows;
    }

private:
    bool take(std::string_view text)
    {
        if (!m_rest.starts_with(text))
            return false;
        m_rest.remove_prefix(text.size());
        return true;
    }

    std::string plain()
    {
        const std::string_view cell = m_rest.substr(0, m_rest.find_first_of(",\"\r\n"));
        m_rest.remove_prefix(cell.size());
        return std::string(cell);
    }

    std::string quoted()
    {
        std::string cell;
        m_rest.remove_prefix(1);
        while (!m_rest.empty()) {
            if (take("\"\""))
                cell += '"';
            else if (take("\""))
                return cell;
            else {
                cell += m_rest.front();
                m_rest.remove_prefix(1);
            }
        }
        require(false, "a quoted cell ends");
        return cell;
    }

    std::string_view m_rest;
};

/// What a spreadsheet shows of a text, which it must not take for a formula.
std::string shown(const std::string &text)
{
    return !text.empty() && std::string_view("=+-@\t\r").find(text.front()) != std::string::npos
               ? "'" + text
               : text;
}

void checkReportTable(const ScanReport &report, std::chrono::sys_seconds date)
{
    const std::vector<Row> rows = CsvReader(ReportTable::bytes(report, date)).rows();
    const std::vector<InstructionFileEstimate> files = report.files();
    require(rows.size() >= 2 + report.rows.size() + files.size(), "every figure has its row");
    for (const Row &row : rows)
        require(row.size() == 10, "every row has all cells");
    for (std::size_t index = 1; index < rows.size(); ++index)
        require(rows[index][0] == shown(report.repositoryName) &&
                    rows[index][1] == shown(report.repositoryPath),
                "every row names its repository");
    require(rows[1][5] == std::to_string(report.total), "the total is the report's");
    for (std::size_t index = 0; index < report.rows.size(); ++index)
        require(rows[2 + index][4] == shown(report.rows[index].name) &&
                    rows[2 + index][5] == std::to_string(report.rows[index].tokens),
                "every category reads back");
    for (std::size_t index = 0; index < files.size(); ++index) {
        const Row &row = rows[2 + report.rows.size() + index];
        require(row[4] == shown(files[index].path) &&
                    row[7] == std::to_string(files[index].byteCount),
                "every file reads back");
    }
}

void checkScanTables(const std::vector<RecordedScan> &scans)
{
    const std::vector<Row> totals = CsvReader(ScanTables::totals(scans)).rows();
    const std::vector<Row> categories = CsvReader(ScanTables::categories(scans)).rows();
    require(totals.size() == scans.size() + 1 && categories.size() == totals.size(),
            "every scan has its row");
    for (std::size_t index = 0; index < scans.size(); ++index) {
        const Row &row = totals[index + 1];
        require(row.size() == 5 && row[0] == shown(scans[index].repositoryName) &&
                    row[2] == IsoDate::text(scans[index].date) &&
                    row[3] == std::to_string(scans[index].total),
                "every scan reads back");
        require(categories[index + 1].size() == categories[0].size(), "every row has all cells");
    }
}

/// All text of a document; ends the program if it is not well-formed.
QString textOf(const QByteArray &document)
{
    QXmlStreamReader reader(document);
    QString text;
    while (!reader.atEnd())
        if (reader.readNext() == QXmlStreamReader::Characters)
            text += reader.text();
    require(!reader.hasError(), "the document is well-formed");
    return text;
}

void checkDocument(const ReportInput &input)
{
    const ReportDocument document{.report = std::make_shared<const ScanReport>(input.report),
                                  .scanned = input.history.back().date,
                                  .saved = input.history.back().date,
                                  .locale = input.locale,
                                  .home = "/home/someone"};
    const QString text = textOf(document.html());
    require(text.contains(qtText(NumberText::grouped(input.report.total, input.locale))),
            "the document has the total");
}

/// Needs fonts, and so an application.
void checkDrawing(const ScanReport &report)
{
    static int count = 1;
    static std::array<char *, 2> arguments{const_cast<char *>("Exports"), nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QGuiApplication application(count, arguments.data());
    static DonutChart chart;
    chart.setSize(QSizeF(200, 100));
    PictureFrame frame;
    frame.setProperty("title", qtText(report.repositoryName));
    frame.setProperty("lines", QStringList{qtText(report.rows.empty() ? "" : report.rows[0].name)});
    static_cast<void>(textOf(frame.svg(chart)()));
}

void checkExports(std::string_view bytes)
{
    constexpr int oneDrawing = 64; // in so many inputs: it takes longer than all others together
    const auto input = ReportInput::of(bytes);
    if (!input)
        return;
    checkReportTable(input->report, input->history.back().date);
    checkScanTables(input->history);
    checkDocument(*input);
    if (std::hash<std::string_view>()(bytes) % oneDrawing == 0)
        checkDrawing(input->report);
}

const FuzzTarget target("Exports", checkExports);

} // namespace

} // namespace Loadwick
