#pragma once

/// Makes buttons report the truth to assistive technology. The only code on Qt's private headers:
/// no public header has the name, role and states that QML attaches to an item, so that a public
/// interface of a button would have to compute all of them again.
namespace Loadwick::AccessiblePress {

/// Makes every button answer the accessible action "Press" as it answers a click, and report when
/// it is disabled. Qt 6.4 does neither by itself.
void install();

} // namespace Loadwick::AccessiblePress
