#pragma once

#include <memory>
#include <vector>

#include <QList>
#include <QQuickItem>
#include <QQuickView>

#include "compare/BarRow.h"
#include "compare/ColumnPresenter.h"
#include "compare/ComparePresenter.h"
#include "export/PageExport.h"
#include "support/FakeFileSaver.h"
#include "support/ScanningModel.h"

namespace Loadwick {

/// The Compare page over a history that a test records, shown in a window of its own.
class ComparePage
{
public:
    ComparePage();

    [[nodiscard]] QQuickView &view() noexcept { return m_view; }
    [[nodiscard]] ComparePresenter &compare() noexcept { return m_compare; }

    /// A new presenter of the repository at that index, to compare with a card.
    [[nodiscard]] std::unique_ptr<ColumnPresenter> columnAt(int index);

    /// Replaces the recorded history; the page follows, with all rows of its short lists.
    void record(std::vector<RecordedScan> scans);

    /// The visible items of that object name, in the order of the page.
    [[nodiscard]] QList<QQuickItem *> items(const char *name) const;
    /// The rows with a bar below an item.
    [[nodiscard]] static QList<BarRow *> barsBelow(QQuickItem *root);
    /// The cards that were created, in the order of their cells.
    [[nodiscard]] QList<QQuickItem *> cards() const;
    /// The viewport; it exists once two repositories are recorded.
    [[nodiscard]] QQuickItem *viewport() const;

private:
    [[nodiscard]] bool hasAllRows() const;

    ScanningModel m_scanning;
    ComparePresenter m_compare;
    FakeFileSaver m_saver;
    PageExport m_export;
    QQuickView m_view;
};

} // namespace Loadwick
