#pragma once

/// Makes buttons report the truth to assistive technology. It needs Qt's private headers: no public
/// one has the name, role and states that QML attaches to an item, so an interface built on public
/// headers would have to compute all of them again.
namespace Loadwick::AccessiblePress {

/// Makes every button treat the accessible action "Press" as a click, and report when it is
/// disabled. Qt 6.4 does neither.
void install();

} // namespace Loadwick::AccessiblePress
