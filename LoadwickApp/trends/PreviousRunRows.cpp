#include "trends/PreviousRunRows.h"

#include <algorithm>
#include <utility>

#include "base/QtText.h"
#include "text/DateText.h"
#include "text/NumberText.h"

namespace Loadwick {

void PreviousRunRows::setScans(std::vector<RecordedScan> scans)
{
    beginResetModel();
    m_scans = std::move(scans);
    endResetModel();
}

int PreviousRunRows::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_scans.size());
}

QVariant PreviousRunRows::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const RecordedScan &scan = m_scans[static_cast<std::size_t>(index.row())];
    switch (role) {
    case title:
        return qtText(scan.repositoryName);
    case detail:
        return qtText(dateText(scan.date, DateForm::dayAndTime, m_locale));
    case value:
        return qtText(NumberText::grouped(scan.total, m_locale));
    case valueCaption:
        return scan.categories.empty() ? tr("No category estimates") : QString();
    case band:
        return static_cast<int>(scan.band());
    case place:
        return placeOf(scan);
    default:
        return {};
    }
}

QHash<int, QByteArray> PreviousRunRows::roleNames() const
{
    return {{title, "title"}, {detail, "detail"}, {value, "value"}, {valueCaption, "valueCaption"},
            {band, "band"},   {place, "place"}};
}

QString PreviousRunRows::placeOf(const RecordedScan &scan) const
{
    const bool isAmbiguous = std::any_of(m_scans.begin(), m_scans.end(), [&](const auto &other) {
        return other.repositoryName == scan.repositoryName &&
               other.repositoryPath != scan.repositoryPath;
    });
    return isAmbiguous ? qtText(scan.repositoryPath) : QString();
}

} // namespace Loadwick

#include "moc_PreviousRunRows.cpp"
