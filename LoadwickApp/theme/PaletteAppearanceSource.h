#pragma once

#include "theme/AppearanceSource.h"

namespace Loadwick {

/// Reads dark or light off the application's palette: a window darker than middle grey is dark. A
/// palette says nothing about motion or contrast.
class PaletteAppearanceSource : public AppearanceSource
{
    Q_OBJECT

public:
    explicit PaletteAppearanceSource(QObject *parent = nullptr);

    [[nodiscard]] DesktopWishes wishes() const override;
    bool eventFilter(QObject *watched, QEvent *event) override;
};

} // namespace Loadwick
