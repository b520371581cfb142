#pragma once

#include <optional>

#include <QColor>
#include <QList>
#include <QObject>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

namespace Loadwick {

class AppearanceSource;

/// Scheme, motion, contrast and text scale for QML: one object per engine. The values come from the
/// AppearanceSource among the engine's children, or from the palette if there is none. Tests and
/// picture tools override them with `scheme`, `motion`, `contrast` and `textScale`.
class Appearance : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool dark READ dark NOTIFY changed)
    Q_PROPERTY(bool reduceMotion READ reduceMotion NOTIFY changed)
    Q_PROPERTY(bool moreContrast READ moreContrast NOTIFY changed)
    /// The accent of the user's desktop, unadjusted, if the desktop has one.
    Q_PROPERTY(bool hasAccent READ hasAccent NOTIFY changed)
    Q_PROPERTY(QColor accent READ accent NOTIFY changed)
    /// See DesktopPreferences::textScale.
    Q_PROPERTY(double textScale READ textScale WRITE setTextScale NOTIFY changed)
    Q_PROPERTY(Scheme scheme READ scheme WRITE setScheme NOTIFY changed)
    Q_PROPERTY(Motion motion READ motion WRITE setMotion NOTIFY changed)
    Q_PROPERTY(Contrast contrast READ contrast WRITE setContrast NOTIFY changed)

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
    enum Contrast
    {
        DesktopContrast,
        Standard,
        More
    };
    Q_ENUM(Contrast)

    /// `source` must live as long as this object.
    explicit Appearance(AppearanceSource &source, QObject *parent = nullptr);
    static Appearance *create(QQmlEngine *engine, QJSEngine *scripts);

    [[nodiscard]] bool dark() const;
    [[nodiscard]] bool reduceMotion() const;
    [[nodiscard]] bool moreContrast() const;
    [[nodiscard]] bool hasAccent() const;
    [[nodiscard]] QColor accent() const;
    [[nodiscard]] double textScale() const;
    void setTextScale(double scale);
    [[nodiscard]] Scheme scheme() const { return m_scheme; }
    void setScheme(Scheme scheme);
    [[nodiscard]] Motion motion() const { return m_motion; }
    void setMotion(Motion motion);
    [[nodiscard]] Contrast contrast() const { return m_contrast; }
    void setContrast(Contrast contrast);

    /// See readableAccent.
    [[nodiscard]] Q_INVOKABLE QColor readable(const QColor &accent, const QList<QColor> &grounds,
                                              double tint) const;

Q_SIGNALS:
    void changed();

private:
    template<typename Value>
    void set(Value &field, const Value &value);

    AppearanceSource &m_source;
    Scheme m_scheme = DesktopScheme;
    Motion m_motion = DesktopMotion;
    Contrast m_contrast = DesktopContrast;
    std::optional<double> m_textScale; ///< absent: the desktop's
};

} // namespace Loadwick
