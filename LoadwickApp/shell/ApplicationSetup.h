#pragma once

/// The set-up before the window opens, shared by the program, its tests and the picture tools.
namespace Loadwick::ApplicationSetup {

/// Call it before the application object is created.
void prepare();

/// Call it once the application object exists, before the window is created.
void apply();

} // namespace Loadwick::ApplicationSetup
