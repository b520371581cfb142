#pragma once

#include <future>

#include <QStringList>

class QGuiApplication;
class QQmlEngine;

/// The set-up of every program that shows this module's QML: the window, the gallery, the tests and
/// the picture tools. Without it a program would run with another font.
namespace Loadwick::ApplicationStyle {

/// Chooses the text renderer and, on machines without a graphics device, the software renderer.
/// Call it before the first window.
void prepare();

/// Reads the list of installed fonts in the background, which takes a tenth of a start. Call it
/// once the application object exists, which must outlive the future.
[[nodiscard]] std::future<QStringList> readFonts();

/// Sets the application's font: the first installed family of the preferred ones, which all have
/// figures of one width. Waits for the list of installed fonts.
void applyFont(QGuiApplication &application);

/// Lets the engine find the module that is compiled into the program.
void addModulePath(QQmlEngine &engine);

} // namespace Loadwick::ApplicationStyle
