#pragma once

#include <QObject>

class QQmlEngine;

namespace Loadwick {

/// Gives Qt Quick Test the style, the font and the module of the window.
class QuickTestSetup : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void applicationAvailable();
    void qmlEngineAvailable(QQmlEngine *engine);
};

} // namespace Loadwick
