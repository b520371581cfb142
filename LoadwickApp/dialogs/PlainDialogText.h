#pragma once

#include <QObject>
#include <QQmlAbstractUrlInterceptor>

class QQmlEngine;

namespace Loadwick {

/// In the dialogs that Qt draws inside the window, shows the names of folders and files as they
/// are. Qt's own pages read them as markup, which fetches what a name asks for; ours are put in
/// place of those that show a name, before anything of them is read. Belongs to the engine, which
/// asks it on threads of its own.
class PlainDialogText final : public QObject, public QQmlAbstractUrlInterceptor
{
    Q_OBJECT

public:
    /// Before the engine makes the first of these dialogs. Once is enough, more is no harm.
    static void takeOver(QQmlEngine &engine);

    [[nodiscard]] QUrl intercept(const QUrl &page, DataType type) override;

private:
    using QObject::QObject;
};

} // namespace Loadwick
