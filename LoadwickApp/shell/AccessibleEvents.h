#pragma once

/// Spares assistive technology the events that mean nothing to it.
namespace Loadwick::AccessibleEvents {

/// Keeps back the names and texts that an item gets while it is created: nobody has asked for it
/// yet. A report with its hundreds of labels kept a screen reader so busy that it dropped the
/// announcement of the scan's end. Call it once the application object exists.
void install();

} // namespace Loadwick::AccessibleEvents
