#pragma once

class QQuickPopup;

/// The colours of the dialogs that Qt draws inside the window, and what their lists show beside
/// their lines.
namespace Loadwick::PlainDialogLook {

/// Has the dialog follow the window, dark or light, from now on. Once is enough, more is no harm.
void takeOver(QQuickPopup &dialog);

} // namespace Loadwick::PlainDialogLook
