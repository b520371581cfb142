#pragma once

/// Makes buttons and menus known to assistive technology as they are. It needs Qt's private
/// headers: no public one has the name, role and states that QML attaches to an item, so an
/// interface built on public headers would have to compute all of them again.
namespace Loadwick::AccessiblePress {

/// Makes every button treat the accessible action "Press" as a click, and report when it is
/// disabled. Qt 6.4 does neither. Offers "ShowMenu" on every item with a QML function `showMenu`,
/// for which QML has no signal.
void install();

} // namespace Loadwick::AccessiblePress
