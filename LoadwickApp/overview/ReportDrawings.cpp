#include "overview/ReportDrawings.h"

#include <cmath>
#include <numbers>

#include "charts/BandMeterGeometry.h"
#include "charts/DonutChart.h"
#include "overview/HtmlPage.h"
#include "report/OpinionBand.h"

namespace Loadwick::ReportDrawings {
namespace {

constexpr double meterWidth = 640;
constexpr double meterHeight = 16;
constexpr double tickWidth = 2;
constexpr double radius = 110;

QString number(double value)
{
    return QString::number(value, 'f', 2);
}

QString numbered(const char *kind, std::size_t index)
{
    return markup("%1-%2").arg(markup(kind)).arg(index);
}

QString point(double angle, double distance)
{
    return number(std::sin(angle) * distance) + u' ' + number(-std::cos(angle) * distance);
}

/// The end of an arc along a circle of that radius.
QString arcTo(double angle, double sweep, double distance)
{
    return markup("A%1 %1 0 %2 %3 %4 ")
        .arg(number(distance))
        .arg(std::abs(sweep) > std::numbers::pi ? 1 : 0)
        .arg(sweep > 0 ? 1 : 0)
        .arg(point(angle + sweep, distance));
}

/// In two halves: an arc that ends where it begins is none.
QString arc(double start, double sweep, double distance)
{
    return arcTo(start, sweep / 2, distance) + arcTo(start + sweep / 2, sweep / 2, distance);
}

QString outline(const DonutGeometry::Sector &sector)
{
    constexpr double inside = radius * DonutGeometry::innerRadius;
    const double innerEnd = sector.innerStart + sector.innerSweep;
    return u'M' + point(sector.outerStart, radius) +
           arc(sector.outerStart, sector.outerSweep, radius) + u'L' + point(innerEnd, inside) +
           arc(innerEnd, -sector.innerSweep, inside) + u'Z';
}

HtmlPage::Element openDrawing(HtmlPage &page, const char *kind, const QString &box,
                              const QString &words)
{
    return page.open("svg", {{"class", markup(kind)},
                             {"viewBox", box},
                             {"role", markup("img")},
                             {"aria-label", words}});
}

void addBox(HtmlPage &page, const QString &kind, double left, double width)
{
    page.emptyElement("rect", {{"class", kind},
                               {"x", number(left)},
                               {"width", number(width)},
                               {"height", number(meterHeight)}});
}

} // namespace

void addMeter(HtmlPage &page, std::int64_t total, const QString &words)
{
    const double position = BandScale::position(total);
    const BandMeterGeometry::Meter meter = {
        .width = meterWidth,
        .thresholds = {BandScale::thresholdPosition(OpinionBand::heavyThreshold, total),
                       BandScale::thresholdPosition(OpinionBand::excessiveThreshold, total)},
        .position = position};
    const HtmlPage::Element drawing = openDrawing(page, "meter", markup("0 0 640 16"), words);
    const auto segments = BandMeterGeometry::segments(meter);
    for (std::size_t band = 0; band < segments.size(); ++band)
        addBox(page, numbered("band", band), segments[band].left, segments[band].width);
    for (const double tick : BandMeterGeometry::ticks(meter))
        addBox(page, markup("tick"), tick - tickWidth / 2, tickWidth);
    constexpr double half = BandMeterGeometry::markerSide / 2;
    page.emptyElement("circle",
                      {{"class", markup("marker")},
                       {"cx", number(BandMeterGeometry::markerLeft(meterWidth, position) + half)},
                       {"cy", number(meterHeight / 2)},
                       {"r", number(half)}});
}

void addDonut(HtmlPage &page, std::span<const double> tokens, const QString &total,
              const QString &words)
{
    const DonutGeometry donut(tokens);
    const HtmlPage::Element drawing =
        openDrawing(page, "donut", markup("-110 -110 220 220"), words);
    for (const DonutGeometry::Mark &mark : donut.marks(radius, {})) {
        const std::size_t row = donut.slices()[mark.slice].row;
        page.emptyElement(
            "path", {{"class", numbered("slice", row % sliceColors)}, {"d", outline(mark.sector)}});
    }
    page.element("text", total, {{"class", markup("total")}, {"y", markup("2")}});
    page.element("text", markup("tokens"), {{"y", markup("22")}});
}

} // namespace Loadwick::ReportDrawings
