#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include <QColor>
#include <QList>
#include <QPointer>
#include <QtQml/qqmlregistration.h>

#include "base/ListOf.h"
#include "base/PainterItem.h"
#include "compare/BarRow.h"
#include "compare/Comparison.h"

namespace Loadwick {

/// A line of the chart that puts the categories of all repositories on one axis: a category's name,
/// or below it the bar of one repository.
struct CombinedLine
{
    const Comparison *comparison;      ///< never null
    std::size_t row;                   ///< the category
    std::optional<std::size_t> column; ///< the repository; nothing for the category's name

    [[nodiscard]] QString title() const;
    /// Nothing if the repository's scan lacks the category.
    [[nodiscard]] std::optional<std::int64_t> tokens() const;
};

/// All lines, category by category. Each category has a line for every repository, with a bar or
/// without.
class CombinedLines
{
public:
    CombinedLines() = default;
    explicit CombinedLines(std::shared_ptr<const Comparison> comparison)
        : m_comparison(std::move(comparison))
    {}

    [[nodiscard]] std::size_t size() const noexcept;
    [[nodiscard]] CombinedLine operator[](std::size_t index) const;

private:
    std::shared_ptr<const Comparison> m_comparison;
};

using CombinedRows = ListOf<CombinedLine, CombinedLines>;

[[nodiscard]] std::vector<CombinedRows::Role> combinedRoles(const TextLocale &locale);

/// The whole chart, for a file: the page itself creates only the lines that it shows. Its height
/// follows from its lines.
class CombinedPicture : public Loadwick::PainterItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(Loadwick::RowList *rows READ rows WRITE setRows NOTIFY changed REQUIRED)
    Q_PROPERTY(Loadwick::BarStyle *style MEMBER m_style NOTIFY changed)
    Q_PROPERTY(QList<QColor> colors MEMBER m_colors NOTIFY changed)

public:
    static constexpr int rowHeight = 24;

    using PainterItem::PainterItem;

    [[nodiscard]] RowList *rows() const { return m_rows; }
    /// Rows with the roles of `combinedRoles`.
    void setRows(RowList *rows);

    /// Paints each line as a `BarRow`, as the page does.
    void paint(QPainter *painter) override;

Q_SIGNALS:
    void changed();

private:
    void fitHeight();
    void fill(BarRow &bar, int row) const;

    QPointer<RowList> m_rows;
    BarStyle *m_style = nullptr;
    QList<QColor> m_colors;
};

} // namespace Loadwick
