#pragma once

class QWidget;
class QWindow;

/// The look of the program's dialogs.
namespace Loadwick::DialogLook {

/// Gives the dialog and the widgets that open over it the colours and the font of the window, now
/// and whenever those change while the dialog lives. A window without an engine changes nothing.
void follow(QWindow &window, QWidget &dialog);

} // namespace Loadwick::DialogLook
