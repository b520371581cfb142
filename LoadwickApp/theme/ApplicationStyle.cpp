#include "theme/ApplicationStyle.h"

#include <QDir>
#include <QFont>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickWindow>

#include "base/SourcePages.h"

namespace Loadwick::ApplicationStyle {
namespace {

bool hasGraphicsDevice()
{
    return !QDir(QStringLiteral("/dev/dri"))
                .entryList({QStringLiteral("renderD*")}, QDir::System)
                .isEmpty();
}

QString installedFamily(const QStringList &preferred)
{
    const QStringList installed = QFontDatabase::families();
    for (const QString &family : preferred) {
        if (installed.contains(family))
            return family;
    }
    return {};
}

} // namespace

void prepare()
{
    // The default renderer has coloured fringes and heavier stems than the software renderer.
    QQuickWindow::setTextRenderType(QQuickWindow::NativeTextRendering);
    // Emulated GL takes twice the time and memory of the software renderer for the same result.
    if (!qEnvironmentVariableIsSet("QT_QUICK_BACKEND") && !hasGraphicsDevice())
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
}

std::future<QStringList> readFonts()
{
    return std::async([] { return QFontDatabase::families(); });
}

void applyFont(QGuiApplication &application)
{
    // Open Sans comes first: the only one packaged with a true semibold.
    const QString family =
        installedFamily({QStringLiteral("Open Sans"), QStringLiteral("Noto Sans"),
                         QStringLiteral("Roboto"), QStringLiteral("DejaVu Sans")});
    QFont font = application.font();
    if (!family.isEmpty())
        font.setFamily(family);
    font.setPixelSize(13);
    application.setFont(font);
}

void addModulePath(QQmlEngine &engine)
{
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    readPagesFromSource(engine);
}

} // namespace Loadwick::ApplicationStyle
