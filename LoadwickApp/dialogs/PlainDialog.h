#pragma once

#include <QQuickWindow>

/// The dialogs that Qt draws inside the window where the desktop has none of its own.
namespace Loadwick::PlainDialog {

/// Puts the one that is open in front of the rest of the window and gives it the keyboard, which Qt
/// does only where its list has a line, and then moves it there; names what has only a picture or
/// stands beside its words; lets Enter press the button that has the keyboard and, in the name of a
/// file, the one that saves; has Tab go round; selects the name of a file that is suggested and
/// takes one as it is typed; has the folder dialog choose what it shows. Does nothing when none is
/// open.
void makeReachable(QQuickWindow &window);

} // namespace Loadwick::PlainDialog
