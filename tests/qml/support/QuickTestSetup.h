#pragma once

#include <QObject>

class QQmlEngine;

namespace Loadwick {

/// Sets up Qt Quick Test with the window's style, font and module.
class QuickTestSetup : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void applicationAvailable();
    void qmlEngineAvailable(QQmlEngine *engine);
};

} // namespace Loadwick
