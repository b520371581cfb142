#pragma once

class QGuiApplication;
class QQmlEngine;

/// What every program that shows our QML sets up in the same way: the window, the gallery, the
/// tests and the makers of pictures. Without it a program would run with another style and font.
namespace Loadwick::ApplicationStyle {

/// Chooses the control style, the text renderer and, on machines without a graphics device, the
/// software renderer. To be called before the first window.
void prepare();

/// Gives the application our font. The first family of the preferred ones that is installed is
/// taken; all of them have figures of one width.
void applyFont(QGuiApplication &application);

/// Lets the engine find the module that is compiled into the program.
void addModulePath(QQmlEngine &engine);

} // namespace Loadwick::ApplicationStyle
