#pragma once

#include <cstdint>
#include <span>

#include <QString>

namespace Loadwick {

class HtmlPage;

/// The charts of a report as drawings in an HTML page, coloured by the page's style: the classes
/// "band-0" to "band-2", "slice-0" to "slice-4", "tick" and "marker".
namespace ReportDrawings {

inline constexpr int sliceColors = 5;

/// The bands up to the end of the total's scale, and the total on them. `words` is the same for a
/// reader who cannot see it.
void addMeter(HtmlPage &page, std::int64_t total, const QString &words);

/// A ring of the rows' tokens, with the total in its middle.
void addDonut(HtmlPage &page, std::span<const double> tokens, const QString &total,
              const QString &words);

} // namespace ReportDrawings

} // namespace Loadwick
