#include <cstdlib>

#include <QCoreApplication>
#include <QGuiApplication>
#include <QQuickWindow>
#include <QTimer>

#include "shell/LoadwickApp.h"

namespace {

constexpr int hasDrawn = 42; // a program that has no window to show may end with 0

void endAfterAFrame()
{
    for (QWindow *const window : QGuiApplication::topLevelWindows())
        if (auto *const drawn = qobject_cast<QQuickWindow *>(window)) {
            QObject::connect(drawn, &QQuickWindow::frameSwapped,
                             [] { QCoreApplication::exit(hasDrawn); });
            drawn->update();
        }
}

} // namespace

/// The program as its user starts it; it ends with status 42 as soon as its window has drawn.
int main(int argc, char **argv)
{
    Loadwick::LoadwickApp::run(argc, argv, [](std::shared_ptr<Loadwick::Shutdown> shutdown) {
        QTimer::singleShot(0, endAfterAFrame);
        return Loadwick::LoadwickWindow::Collaborators::ofUser(std::move(shutdown));
    });
}
