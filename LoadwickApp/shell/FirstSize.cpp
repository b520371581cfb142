#include "shell/FirstSize.h"

#include <QScreen>

namespace Loadwick::FirstSize {
namespace {

constexpr int titleBarHeight = 40; // the true one is not known before the window is shown

} // namespace

QSize within(QSize wanted, QSize least, QSize room)
{
    return wanted.boundedTo(room).expandedTo(least);
}

void putOn(QWindow &window)
{
    const QSize room = window.screen()->availableSize() - QSize(0, titleBarHeight);
    window.resize(within(window.size(), window.minimumSize(), room));
}

} // namespace Loadwick::FirstSize
