#pragma once

/// Makes buttons tell assistive technology the truth. The only code on Qt's private headers: the
/// name, role and states that QML attaches to an item are in no public header, so that a public
/// interface of a button would have to work all of them out again.
namespace Loadwick::AccessiblePress {

/// From now on every button answers the accessible action "Press" as it answers a click, and says
/// when it is disabled. Qt 6.4 does neither by itself.
void install();

} // namespace Loadwick::AccessiblePress
