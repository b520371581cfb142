#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace Loadwick {

class AppearanceSource;

/// Dark or light, moving or still, as QML sees it: one object for each engine. The answers come
/// from the AppearanceSource among the engine's children, or from the palette if there is none.
/// Tests and makers of pictures say what they want with `scheme` and `motion`.
class Appearance : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool dark READ dark NOTIFY changed)
    Q_PROPERTY(bool reduceMotion READ reduceMotion NOTIFY changed)
    Q_PROPERTY(Scheme scheme READ scheme WRITE setScheme NOTIFY changed)
    Q_PROPERTY(Motion motion READ motion WRITE setMotion NOTIFY changed)

public:
    enum Scheme
    {
        DesktopScheme,
        Light,
        Dark
    };
    Q_ENUM(Scheme)
    enum Motion
    {
        DesktopMotion,
        Full,
        Reduced
    };
    Q_ENUM(Motion)

    /// `source` must live as long as this object.
    explicit Appearance(AppearanceSource &source, QObject *parent = nullptr);
    static Appearance *create(QQmlEngine *engine, QJSEngine *scripts);

    [[nodiscard]] bool dark() const;
    [[nodiscard]] bool reduceMotion() const;
    [[nodiscard]] Scheme scheme() const { return m_scheme; }
    void setScheme(Scheme scheme);
    [[nodiscard]] Motion motion() const { return m_motion; }
    void setMotion(Motion motion);

Q_SIGNALS:
    void changed();

private:
    AppearanceSource &m_source;
    Scheme m_scheme = DesktopScheme;
    Motion m_motion = DesktopMotion;
};

} // namespace Loadwick
