#pragma once

#include <QColor>
#include <QQuickPaintedItem>

namespace Loadwick {

/// One of our own drawings in one colour, crisp at any size and scale. It keeps its proportions
/// and stands in the middle of the item. A name without a drawing paints nothing and warns.
class Symbol : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    /// A system image name or a role name of SymbolCatalog; an empty name paints nothing in
    /// silence.
    Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged)
    Q_PROPERTY(QColor tint READ tint WRITE setTint NOTIFY tintChanged)

public:
    explicit Symbol(QQuickItem *parent = nullptr);

    [[nodiscard]] QString name() const { return m_name; }
    void setName(const QString &name);
    [[nodiscard]] QColor tint() const { return m_tint; }
    void setTint(const QColor &tint);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void nameChanged();
    void tintChanged();

private:
    QString m_name;
    QString m_file;
    QColor m_tint = Qt::black;
};

} // namespace Loadwick
