#include "overview/BreakdownRows.h"

#include <utility>

#include "base/QtText.h"
#include "overview/ShareText.h"
#include "text/NumberText.h"

namespace Loadwick {

BreakdownRows::BreakdownRows(TextLocale locale, QObject *parent)
    : QAbstractListModel(parent), m_locale(std::move(locale))
{}

void BreakdownRows::show(const ScanReport &report)
{
    beginResetModel();
    m_rows = report.rows;
    m_total = report.total;
    endResetModel();
}

QString BreakdownRows::name(const SlabAttribution &row) const
{
    return qtText(row.name);
}

QString BreakdownRows::tokens(const SlabAttribution &row) const
{
    return qtText(NumberText::grouped(row.tokens, m_locale));
}

QString BreakdownRows::share(const SlabAttribution &row) const
{
    return ShareText::percent(row.tokens, m_total);
}

QString BreakdownRows::sentence(const SlabAttribution &row) const
{
    return tr("%1, %2 tokens, %3, %4")
        .arg(name(row), tokens(row), share(row), qtText(row.provenance.sourceLabel()));
}

int BreakdownRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant BreakdownRows::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const SlabAttribution &row = m_rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case NameRole:
        return name(row);
    case TokensRole:
        return tokens(row);
    case ShareRole:
        return share(row);
    case SourceRole:
        return qtText(row.provenance.sourceLabel());
    case ColorPlaceRole:
        return index.row();
    case ProvenanceRole:
        return qtText(row.provenance.rawValue());
    case SentenceRole:
        return sentence(row);
    default:
        return {};
    }
}

QHash<int, QByteArray> BreakdownRows::roleNames() const
{
    return {
        {NameRole, "name"},        {TokensRole, "tokens"},         {ShareRole, "share"},
        {SourceRole, "source"},    {ColorPlaceRole, "colorPlace"}, {ProvenanceRole, "provenance"},
        {SentenceRole, "sentence"}};
}

} // namespace Loadwick

#include "moc_BreakdownRows.cpp"
