#include "theme/ApplicationLook.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QQmlEngine>
#include <QUrl>
#include <QWidget>
#include <QWindow>

#include "base/QmlObject.h"
#include "text/Fatal.h"
#include "theme/Appearance.h"

namespace Loadwick::ApplicationLook {
namespace {

/// The one colour that the application's palette leaves to the desktop. Nothing is painted with it:
/// widgets have a complete palette.
constexpr auto desktopGroup = QPalette::Disabled;
constexpr auto desktopRole = QPalette::Window;

QPalette paletteOf(const QObject &look)
{
    const auto color = [&look](const char *role) { return look.property(role).value<QColor>(); };
    QPalette palette(color("button"), color("window")); // derives the edge shades
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::BrightText, QPalette::ToolTipText}) {
        palette.setColor(role, color("text"));
        palette.setColor(QPalette::Disabled, role, color("disabledText"));
    }
    for (const auto role : {QPalette::Base, QPalette::AlternateBase, QPalette::ToolTipBase})
        palette.setColor(role, color("base"));
    palette.setColor(QPalette::PlaceholderText, color("placeholderText"));
    palette.setColor(QPalette::Highlight, color("highlight"));
    palette.setColor(QPalette::HighlightedText, color("highlightedText"));
    return palette;
}

QPalette withoutDesktopGround(const QPalette &palette)
{
    QPalette rest;
    for (int groupIndex = 0; groupIndex < QPalette::NColorGroups; ++groupIndex) {
        const auto group = static_cast<QPalette::ColorGroup>(groupIndex);
        for (int roleIndex = 0; roleIndex < QPalette::NColorRoles; ++roleIndex) {
            const auto role = static_cast<QPalette::ColorRole>(roleIndex);
            if (group != desktopGroup || role != desktopRole)
                rest.setBrush(group, role, palette.brush(group, role));
        }
    }
    return rest;
}

/// A title bar that Qt draws keeps the colours that the palette had when it was made.
void renewTitleBars()
{
    if (!QGuiApplication::platformName().startsWith(QLatin1String("wayland")))
        return;
    for (QWindow *window : QGuiApplication::topLevelWindows()) {
        if (!window->isVisible() || window->frameMargins().isNull())
            continue;
        window->setFlag(Qt::FramelessWindowHint);
        window->setFlag(Qt::FramelessWindowHint, false);
    }
}

/// The class of all widgets covers menus, drop-down lists and tool tips, for which a desktop may
/// have palettes of its own. Open dialogs do not follow their class.
void applyToWidgets(const QPalette &palette, const QFont &font)
{
    QApplication::setPalette(palette, "QWidget");
    QApplication::setFont(font, "QWidget");
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        widget->setPalette(palette);
        widget->setFont(font);
    }
}

void apply(const QObject &look)
{
    const QPalette palette = paletteOf(look);
    const bool isNew = QApplication::palette("QWidget") != palette;
    if (isNew)
        QGuiApplication::setPalette(withoutDesktopGround(palette)); // resets that of the class
    applyToWidgets(palette, look.property("font").value<QFont>());
    if (isNew)
        renewTitleBars();
}

} // namespace

void follow(QQmlEngine &engine)
{
    QString failure;
    const QUrl page(QStringLiteral("qrc:/qt/qml/Loadwick/ApplicationLook.qml"));
    QObject *look = qmlObject(engine, page, {}, failure).release();
    if (look == nullptr)
        fatalError(failure.toStdString());
    look->setParent(&engine);
    apply(*look);
    const int type = qmlTypeId("Loadwick", 1, 0, "Appearance");
    QObject::connect(engine.singletonInstance<Appearance *>(type), &Appearance::changed, look,
                     [look] { apply(*look); });
}

QColor desktopGround()
{
    return QGuiApplication::palette().color(desktopGroup, desktopRole);
}

} // namespace Loadwick::ApplicationLook
