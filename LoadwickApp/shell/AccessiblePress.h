#pragma once

/// Makes buttons tell assistive technology the truth.
namespace Loadwick::AccessiblePress {

/// From now on every button, Qt's own dialogs included, answers the accessible action "Press" as it
/// answers a click, and says so when it is disabled. Qt 6.4 does neither by itself.
void install();

} // namespace Loadwick::AccessiblePress
