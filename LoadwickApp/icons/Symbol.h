#pragma once

#include <functional>
#include <memory>

#include <QColor>
#include <QImage>

#include "base/PainterItem.h"

class QSvgRenderer;

namespace Loadwick {

/// A cache of rendered drawings, shared by all items: lists repeat the same few, and reading and
/// rendering one costs more than the rest of its row. Thread-safe.
namespace SymbolPictures {

/// The picture of that key, rendered by `make` on a miss. A full cache evicts the least recently
/// used.
[[nodiscard]] QImage find(const QString &key, const std::function<QImage()> &make);

} // namespace SymbolPictures

/// One drawing of the window's own set in one colour, crisp at any size and scale. It keeps its
/// proportions and is centred in the item. A name without a drawing paints nothing and warns.
class Symbol : public Loadwick::PainterItem
{
    Q_OBJECT
    QML_ELEMENT
    /// A system image name or a role name of SymbolCatalog; an empty name silently paints nothing.
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged)
    Q_PROPERTY(QColor tint READ tint WRITE setTint NOTIFY tintChanged)
    /// Degrees clockwise. Turning the drawing keeps its edges smooth in every renderer; turning the
    /// item would not.
    Q_PROPERTY(qreal angle READ angle WRITE setAngle NOTIFY angleChanged)

public:
    explicit Symbol(QQuickItem *parent = nullptr);
    ~Symbol() override;

    [[nodiscard]] QString name() const { return m_name; }
    void setName(const QString &name);
    [[nodiscard]] QColor tint() const { return m_tint; }
    void setTint(const QColor &tint);
    [[nodiscard]] qreal angle() const { return m_angle; }
    void setAngle(qreal angle);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void nameChanged();
    void tintChanged();
    void angleChanged();

private:
    [[nodiscard]] QImage picture(int side);
    [[nodiscard]] QImage drawn(int side);

    QString m_name;
    QString m_file;                          ///< of the drawing, empty where there is none
    std::unique_ptr<QSvgRenderer> m_drawing; ///< read when no picture of it is cached
    QColor m_tint = Qt::black;
    qreal m_angle = 0;
};

} // namespace Loadwick
