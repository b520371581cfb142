#pragma once

class QQmlEngine;

namespace Loadwick {

/// In a developer build, makes the engine read each page of our module from the source tree instead
/// of from the program, so that an edited page shows on the next start without a build. A no-op in
/// other builds.
void readPagesFromSource(QQmlEngine &engine);

} // namespace Loadwick
