#include "compare/CombinedChart.h"

#include <algorithm>
#include <utility>

#include <QPainter>

#include "base/QtText.h"

namespace Loadwick {

QString CombinedLine::title() const
{
    return qtText(column ? comparison->columns.at(*column).repositoryName
                         : comparison->bars.category(row));
}

std::optional<std::int64_t> CombinedLine::tokens() const
{
    return column ? comparison->bars.tokens(*column, row) : std::nullopt;
}

std::size_t CombinedLines::size() const noexcept
{
    return m_comparison ? m_comparison->bars.rowCount() * (m_comparison->bars.columnCount() + 1)
                        : 0;
}

CombinedLine CombinedLines::operator[](std::size_t index) const
{
    const std::size_t lines = m_comparison->bars.columnCount() + 1;
    const std::size_t line = index % lines;
    return {.comparison = m_comparison.get(),
            .row = index / lines,
            .column = line == 0 ? std::nullopt : std::optional(line - 1)};
}

std::vector<CombinedRows::Role> combinedRoles(const TextLocale &locale)
{
    using Line = CombinedLine;
    const auto path = [](const Line &line) {
        return line.column ? qtText(line.comparison->columns.at(*line.column).repositoryPath)
                           : QString();
    };
    const auto value = [locale](const Line &line) {
        return line.column ? BarText::value(line.tokens(), locale) : QString();
    };
    const auto spoken = [locale](const Line &line) {
        return line.column ? BarText::spoken(line.title(), line.tokens(), locale) : line.title();
    };
    return {
        {"isCategory", [](const Line &line) { return !line.column; }},
        {"title", &Line::title},
        {"path", path},
        {"column", [](const Line &line) { return line.column ? int(*line.column) : -1; }},
        {"value", value},
        {"length",
         [](const Line &line) { return line.comparison->bars.length(line.tokens().value_or(0)); }},
        {"isRecorded", [](const Line &line) { return line.tokens().has_value(); }},
        {"spoken", spoken},
    };
}

void CombinedPicture::setRows(RowList *rows)
{
    if (m_rows == rows)
        return;
    m_rows = rows;
    if (m_rows)
        connect(m_rows, &RowList::countChanged, this, &CombinedPicture::fitHeight);
    fitHeight();
    Q_EMIT changed();
}

void CombinedPicture::fitHeight()
{
    setHeight(m_rows ? rowHeight * m_rows->count() : 0);
}

void CombinedPicture::paint(QPainter *painter)
{
    BarRow bar;
    bar.setSize({width(), rowHeight});
    bar.setStyle(m_style);
    painter->save();
    for (int row = 0; m_rows && row < m_rows->count(); ++row) {
        fill(bar, row);
        bar.paint(painter);
        painter->translate(0, rowHeight);
    }
    painter->restore();
}

void CombinedPicture::fill(BarRow &bar, int row) const
{
    const auto value = [&](const QString &role) { return m_rows->value(row, role); };
    const bool isCategory = value(QStringLiteral("isCategory")).toBool();
    const int column = std::max(0, value(QStringLiteral("column")).toInt());
    bar.arrangement = isCategory ? BarRow::Heading : BarRow::InLine;
    bar.name = value(QStringLiteral("title")).toString();
    bar.value = value(QStringLiteral("value")).toString();
    bar.length = value(QStringLiteral("length")).toDouble();
    bar.isRecorded = value(QStringLiteral("isRecorded")).toBool();
    bar.fill = m_colors.value(column % std::max<qsizetype>(1, m_colors.size()));
}

} // namespace Loadwick

#include "moc_CombinedChart.cpp"
