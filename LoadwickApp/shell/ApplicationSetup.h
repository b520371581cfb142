#pragma once

class QGuiApplication;

/// The set-up that the program, its tests and the makers of pictures share, before the window
/// opens.
namespace Loadwick::ApplicationSetup {

/// Call it before the application object is made.
void prepare();

/// Call it before the window is made.
void apply(QGuiApplication &application);

} // namespace Loadwick::ApplicationSetup
