#pragma once

#include <chrono>
#include <vector>

#include <QObject>
#include <QQuickWindow>

namespace Loadwick {

/// Measures what each frame of a window costs: the processor time of the interface thread from the
/// end of one frame to the end of the next, including animations, bindings, layout and drawing, but
/// no other programs. Meant for a renderer that draws on that thread.
class FrameMeter
{
public:
    using Milliseconds = std::chrono::duration<double, std::milli>;

    /// The window outlives this object.
    explicit FrameMeter(QQuickWindow &window);
    ~FrameMeter();

    FrameMeter(const FrameMeter &) = delete;
    FrameMeter &operator=(const FrameMeter &) = delete;

    /// Forgets all frames; the next one starts now.
    void restart();

    /// The frames since the last restart, in order.
    [[nodiscard]] const std::vector<Milliseconds> &frames() const noexcept { return m_frames; }

    /// Processes events until a frame is drawn.
    void waitForFrame() const;
    /// Processes events for that long.
    static void run(Milliseconds time);

private:
    void endFrame();

    QQuickWindow &m_window;
    QMetaObject::Connection m_connection;
    std::vector<Milliseconds> m_frames;
    Milliseconds m_lastEnd{};
};

/// The value that this share of all values, in [0, 1], does not exceed; 0 without values.
[[nodiscard]] FrameMeter::Milliseconds percentile(std::vector<FrameMeter::Milliseconds> values,
                                                  double share);

} // namespace Loadwick
