#pragma once

class QWidget;
class QWindow;

/// The look of the program's dialogs.
namespace Loadwick::DialogLook {

/// Gives all widgets of the program the colours and the font of the window, now and whenever those
/// change while `dialog` lives. A window without an engine leaves them as they are.
void follow(QWindow &window, QWidget &dialog);

} // namespace Loadwick::DialogLook
