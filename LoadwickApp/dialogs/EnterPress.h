#pragma once

#include <QObject>

class QQuickPopup;

namespace Loadwick {

/// In a dialog that Qt draws inside the window, Enter presses the button that has the keyboard, as
/// the space bar does; Qt has no answer to it. A line of a list is no button: its own page answers.
/// Belongs to the dialog.
class EnterPress final : public QObject
{
    Q_OBJECT

public:
    /// Once is enough, more is no harm.
    static void takeOver(QQuickPopup &dialog);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using QObject::QObject;
};

} // namespace Loadwick
