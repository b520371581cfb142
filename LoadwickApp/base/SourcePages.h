#pragma once

class QQmlEngine;

namespace Loadwick {

/// In a build for everyday work, lets the engine read each page of our module from the source tree
/// instead of from the program, so that an edited page is seen at the next start without a build.
/// Other builds know no source tree: there it does nothing. A page that is loaded by name must be
/// named by its whole address (qrc:/qt/qml/Loadwick/…): by a relative one it would be another type.
void readPagesFromSource(QQmlEngine &engine);

} // namespace Loadwick
