#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QQuickWindow>
#include <QStringList>

class QQuickItem;

namespace Loadwick {

/// Samples everything in a window before each of its frames: each item's position, size, rotation
/// and opacity, and the numbers that the module's own types add, such as how far a chart has grown.
/// A number that takes values between its first and its last within one stretch of frames moves. A
/// new layout alone may take some frames to settle.
class MotionSampler : public QObject
{
    Q_OBJECT

public:
    /// The window outlives this object.
    explicit MotionSampler(QQuickWindow &window);

    /// Begins a stretch: earlier frames are discarded.
    void begin();

    /// Frames seen since then.
    [[nodiscard]] int frameCount() const { return m_frameCount; }

    /// "Type.property" of everything that moved.
    [[nodiscard]] QStringList moving() const;

private:
    struct Trace
    {
        QString name;
        double last = 0;
        int steps = 0;     ///< frames in which its value changed
        int mostSteps = 0; ///< more steps than this are motion
    };

    void sample();
    void sampleItem(const QQuickItem &item);
    void sampleOwnNumbers(const QQuickItem &item);
    void note(const QQuickItem &item, const char *property, double value);

    QQuickWindow &m_window;
    QHash<std::pair<const QQuickItem *, QByteArray>, Trace> m_traces;
    int m_frameCount = 0;
};

} // namespace Loadwick
