#include "dialogs/DialogLook.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QQmlEngine>
#include <QUrl>
#include <QWidget>
#include <QWindow>

#include "base/QmlObject.h"
#include "theme/Appearance.h"

namespace Loadwick::DialogLook {
namespace {

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

/// The class of all widgets covers the dialog's menus, drop-down lists and tool tips. The
/// application's own palette remains the desktop's, by which a PaletteAppearanceSource tells
/// whether the desktop is dark.
void apply(const QObject &look, QWidget &dialog)
{
    const QPalette palette = paletteOf(look);
    if (QApplication::palette("QWidget") != palette)
        QApplication::setPalette(palette, "QWidget");
    dialog.setPalette(palette);
    const auto font = look.property("font").value<QFont>();
    QApplication::setFont(font, "QWidget");
    dialog.setFont(font);
}

} // namespace

void follow(QWindow &window, QWidget &dialog)
{
    QQmlEngine *engine = qmlEngine(&window);
    if (engine == nullptr)
        return;
    QString failure;
    const QUrl page(QStringLiteral("qrc:/qt/qml/Loadwick/DialogLook.qml"));
    QObject *look = qmlObject(*engine, page, {}, failure).release();
    look->setParent(&dialog);
    apply(*look, dialog);
    const int type = qmlTypeId("Loadwick", 1, 0, "Appearance");
    QObject::connect(engine->singletonInstance<Appearance *>(type), &Appearance::changed, &dialog,
                     [look, &dialog] { apply(*look, dialog); });
}

} // namespace Loadwick::DialogLook
