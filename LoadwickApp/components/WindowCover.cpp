#include "components/WindowCover.h"

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <utility>

#include <QGuiApplication>

#ifdef LOADWICK_XCB
#include <xcb/xcb.h>
#endif

namespace Loadwick {
namespace {

#ifdef LOADWICK_XCB
/// Has the server report how much of the window is covered, besides what Qt has it report.
void askForVisibility(xcb_connection_t *server, xcb_window_t window)
{
    const auto request = xcb_get_window_attributes(server, window);
    const std::unique_ptr<xcb_get_window_attributes_reply_t, decltype(&std::free)> attributes(
        xcb_get_window_attributes_reply(server, request, nullptr), &std::free);
    if (!attributes)
        return;
    const std::uint32_t events = attributes->your_event_mask | XCB_EVENT_MASK_VISIBILITY_CHANGE;
    xcb_change_window_attributes(server, window, XCB_CW_EVENT_MASK, &events);
    xcb_flush(server);
}
#endif

} // namespace

WindowCover &WindowCover::of(QWindow &window)
{
    auto *known = window.findChild<WindowCover *>(QString(), Qt::FindDirectChildrenOnly);
    return known != nullptr ? *known : *new WindowCover(window);
}

WindowCover::WindowCover(QWindow &window) : QObject(&window), m_window(window.winId())
{
#ifdef LOADWICK_XCB
    // The platform "offscreen" has this interface too, without a server.
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (x11 == nullptr || QGuiApplication::platformName() != QLatin1String("xcb"))
        return;
    askForVisibility(x11->connection(), static_cast<xcb_window_t>(m_window));
    qGuiApp->installNativeEventFilter(this);
#endif
}

bool WindowCover::nativeEventFilter([[maybe_unused]] const QByteArray &type,
                                    [[maybe_unused]] void *message, qintptr *)
{
#ifdef LOADWICK_XCB
    const auto *event = static_cast<const xcb_visibility_notify_event_t *>(message);
    if (type == "xcb_generic_event_t" && (event->response_type & 0x7f) == XCB_VISIBILITY_NOTIFY &&
        event->window == m_window) {
        const bool isWhole = event->state == XCB_VISIBILITY_FULLY_OBSCURED;
        if (std::exchange(m_isWhole, isWhole) != isWhole)
            Q_EMIT changed();
    }
#endif
    return false;
}

} // namespace Loadwick

#include "moc_WindowCover.cpp"
