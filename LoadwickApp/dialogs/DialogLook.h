#pragma once

class QWidget;
class QWindow;

/// The look of the program's dialogs.
namespace Loadwick::DialogLook {

/// Gives the dialog and the widgets that open over it the colours and the font of the window, and
/// follows their changes while the dialog lives. A no-op for a window without an engine.
void follow(QWindow &window, QWidget &dialog);

} // namespace Loadwick::DialogLook
