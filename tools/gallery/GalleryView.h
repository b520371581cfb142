#pragma once

#include "theme/Appearance.h"

#include <QImage>
#include <QQmlEngine>
#include <QQuickView>

#include <memory>

namespace Loadwick {

/// The gallery of all components in one scheme. Each view has an engine, and with it a theme, of
/// its own, so that light and dark can stand side by side.
class GalleryView
{
public:
    explicit GalleryView(Appearance::Scheme scheme);

    /// The window, shown or not; it lives as long as this object.
    [[nodiscard]] QQuickView &window() { return *m_window; }

    /// What the window shows once nothing arrives any more.
    [[nodiscard]] QImage picture();

private:
    QQmlEngine m_engine;
    std::unique_ptr<QQuickView> m_window;
};

} // namespace Loadwick
