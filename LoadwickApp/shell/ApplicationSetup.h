#pragma once

class QGuiApplication;

/// What the program, its tests and the makers of pictures set up alike before they open the window.
namespace Loadwick::ApplicationSetup {

/// To be called before the application object is made.
void prepare();

/// To be called before the window is made.
void apply(QGuiApplication &application);

} // namespace Loadwick::ApplicationSetup
