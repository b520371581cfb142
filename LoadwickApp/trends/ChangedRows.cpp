#include "trends/ChangedRows.h"

#include <cmath>
#include <optional>

#include "base/QtText.h"
#include "base/TokenText.h"
#include "components/TrendMark.h"
#include "text/NumberText.h"

namespace Loadwick {
namespace {

using Side = CategoryChange::Side;

QString changedName(const ChangedRow &row)
{
    return row.category == nullptr ? ChangedRow::tr("Total") : qtText(row.category->name);
}

QString changedNote(const ChangedRow &row)
{
    if (row.category == nullptr)
        return ChangedRow::tr("Authoritative · measured by Claude");
    if (!row.category->beyondLocalEstimate)
        return {};
    return *row.category->beyondLocalEstimate == Side::before
               ? ChangedRow::tr("before: without files on disk")
               : ChangedRow::tr("after: without files on disk");
}

std::optional<std::int64_t> tokensOn(Side side, const ChangedRow &row)
{
    if (row.category == nullptr)
        return side == Side::before ? row.comparison->totalBefore : row.comparison->totalAfter;
    return side == Side::before ? row.category->before : row.category->after;
}

/// A figure; or, where the scan lacks the category, what that makes of it.
QString figureOn(Side side, const ChangedRow &row, const TextLocale &locale)
{
    if (const auto tokens = tokensOn(side, row))
        return qtText(NumberText::grouped(*tokens, locale));
    return side == Side::before ? ChangedRow::tr("new") : ChangedRow::tr("gone");
}

QString differenceOf(const ChangedRow &row, const TextLocale &locale)
{
    return qtText(NumberText::groupedChange(row.difference(), locale));
}

TrendKind::Value changedKind(const ChangedRow &row)
{
    if (row.difference() == 0)
        return TrendKind::Unchanged;
    return row.difference() > 0 ? TrendKind::Grew : TrendKind::Shrank;
}

QString spokenOn(Side side, const ChangedRow &row, const TextLocale &locale)
{
    if (!tokensOn(side, row))
        return figureOn(side, row, locale);
    return (side == Side::before ? ChangedRow::tr("before %1") : ChangedRow::tr("after %1"))
        .arg(figureOn(side, row, locale));
}

QString sentenceOf(const ChangedRow &row, const TextLocale &locale)
{
    const QString sentence =
        ChangedRow::tr("%1, %2, %3, difference %4")
            .arg(changedName(row), spokenOn(Side::before, row, locale),
                 spokenOn(Side::after, row, locale), TokenText::change(row.difference(), locale));
    const QString note = changedNote(row);
    return note.isEmpty() ? sentence : sentence + QStringLiteral(", ") + note;
}

} // namespace

std::int64_t ChangedRow::difference() const noexcept
{
    return category == nullptr ? comparison->totalDifference() : category->difference();
}

double ChangedRow::length() const noexcept
{
    if (category == nullptr)
        return 0;
    const auto largest = static_cast<double>(comparison->changes.front().difference());
    return largest == 0 ? 0 : static_cast<double>(difference()) / std::abs(largest);
}

std::size_t ChangedRowsOf::size() const noexcept
{
    return m_comparison ? 1 + m_comparison->changes.size() : 0;
}

ChangedRow ChangedRowsOf::operator[](std::size_t index) const
{
    return {.comparison = m_comparison.get(),
            .category = index == 0 ? nullptr : &m_comparison->changes[index - 1]};
}

std::vector<ChangedRows::Role> changedRowRoles(const TextLocale &locale)
{
    using Row = ChangedRow;
    return {
        {"name", changedName},
        {"note", changedNote},
        {"before", [locale](const Row &row) { return figureOn(Side::before, row, locale); }},
        {"after", [locale](const Row &row) { return figureOn(Side::after, row, locale); }},
        {"difference", [locale](const Row &row) { return differenceOf(row, locale); }},
        {"kind", [](const Row &row) { return static_cast<int>(changedKind(row)); }},
        {"length", &Row::length},
        {"isTotal", [](const Row &row) { return row.category == nullptr; }},
        {"sentence", [locale](const Row &row) { return sentenceOf(row, locale); }},
    };
}

} // namespace Loadwick
