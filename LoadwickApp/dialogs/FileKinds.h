#pragma once

#include <QObject>
#include <QString>

/// The kinds of file that a dialog offers to save, as its name filters tell them:
/// "SVG drawing (*.svg)". The dialog is one of Qt's, for QML or as it is drawn.
namespace Loadwick::FileKinds {

/// That of the kind which is chosen in the dialog, with its dot; empty for none.
[[nodiscard]] QString chosenEnding(const QObject &dialog);

/// Chooses the kind whose ending the name has; without one the first. Gives its place in the list
/// of the kinds.
int chooseKindOf(const QString &name, const QObject &dialog);

/// The end of the name that is the ending of one of the kinds, as it is written there; empty for
/// none. Another dot is no ending: the "2" of "notes v1.2" names no kind of file.
[[nodiscard]] QString endingOf(const QString &name, const QObject &dialog);

} // namespace Loadwick::FileKinds
