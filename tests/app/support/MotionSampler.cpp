#include "support/MotionSampler.h"

#include <algorithm>
#include <array>
#include <string_view>

#include <QMetaProperty>
#include <QQuickItem>
#include <QTransform>

#include "support/VisualItems.h"

namespace Loadwick {
namespace {

constexpr int settlingSteps = 6; // until nested layouts agree

/// No layout sets these: they may change at most once.
constexpr std::array<std::string_view, 9> paintedNumbers{
    "opacity", "scale", "rotation", "angle", "progress", "emphasis", "bob", "rise", "presence"};

int mostSteps(const char *property)
{
    const bool isPainted = std::ranges::find(paintedNumbers, property) != paintedNumbers.end();
    return isPainted ? 1 : settlingSteps;
}

/// An inline component has its bare name.
bool isOwnType(const QMetaObject &type)
{
    const QByteArray name = type.className();
    return name.contains("_QML") || !name.startsWith('Q');
}

} // namespace

MotionSampler::MotionSampler(QQuickWindow &window) : m_window(window)
{
    connect(&window, &QQuickWindow::afterAnimating, this, &MotionSampler::sample);
}

void MotionSampler::begin()
{
    m_traces.clear();
    m_frameCount = 0;
    sample();
    m_frameCount = 0;
}

QStringList MotionSampler::moving() const
{
    QStringList names;
    for (const Trace &trace : m_traces) {
        if (trace.steps > trace.mostSteps && !names.contains(trace.name))
            names.append(trace.name);
    }
    names.sort();
    return names;
}

void MotionSampler::sample()
{
    ++m_frameCount;
    for (const QQuickItem *item : shownItems(*m_window.contentItem()))
        sampleItem(*item);
}

void MotionSampler::sampleItem(const QQuickItem &item)
{
    note(item, "opacity", item.opacity());
    note(item, "width", item.width());
    note(item, "height", item.height());
    // Position, scale, rotation and all further transforms in one.
    const QTransform transform = item.itemTransform(item.parentItem(), nullptr);
    note(item, "x", transform.dx());
    note(item, "y", transform.dy());
    note(item, "scale", transform.m11());
    note(item, "rotation", transform.m12());
    sampleOwnNumbers(item);
}

void MotionSampler::sampleOwnNumbers(const QQuickItem &item)
{
    for (const QMetaObject *type = item.metaObject(); isOwnType(*type); type = type->superClass()) {
        for (int index = type->propertyOffset(); index < type->propertyCount(); ++index) {
            const QMetaProperty property = type->property(index);
            if (property.metaType() == QMetaType::fromType<double>())
                note(item, property.name(), property.read(&item).toDouble());
        }
    }
}

void MotionSampler::note(const QQuickItem &item, const char *property, double value)
{
    const auto key = std::pair(&item, QByteArray(property));
    const auto found = m_traces.find(key);
    if (found == m_traces.end()) {
        const QString type = QString::fromLatin1(item.metaObject()->className());
        m_traces.insert(key, {.name = type.section(u'_', 0, 0) + u'.' + QLatin1String(property),
                              .last = value,
                              .mostSteps = mostSteps(property)});
    } else if (found->last != value) {
        found->last = value;
        ++found->steps;
    }
}

} // namespace Loadwick
