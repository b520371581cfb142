#pragma once

#include <QColor>
#include <QFont>
#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace Loadwick {

/// What the bars of one chart have in common: their fonts and colours, the columns that keep the
/// figures of all rows on one line, and the side on which reading begins.
class BarStyle : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QFont nameFont MEMBER nameFont NOTIFY changed)
    Q_PROPERTY(QFont valueFont MEMBER valueFont NOTIFY changed)
    Q_PROPERTY(QFont headingFont MEMBER headingFont NOTIFY changed)
    Q_PROPERTY(QColor text MEMBER text NOTIFY changed)
    Q_PROPERTY(QColor secondaryText MEMBER secondaryText NOTIFY changed)
    Q_PROPERTY(QColor track MEMBER track NOTIFY changed)
    Q_PROPERTY(qreal nameWidth MEMBER nameWidth NOTIFY changed)
    Q_PROPERTY(qreal valueWidth MEMBER valueWidth NOTIFY changed)
    Q_PROPERTY(bool isMirrored MEMBER isMirrored NOTIFY changed)

public:
    using QObject::QObject;

    QFont nameFont;
    QFont valueFont;
    QFont headingFont; ///< of a row that names those below it
    QColor text;
    QColor secondaryText;
    QColor track;            ///< behind a bar, as long as a bar can be
    qreal nameWidth = 0;     ///< pixels, where name, bar and figure share a line
    qreal valueWidth = 0;    ///< the same
    bool isMirrored = false; ///< lines begin at the right

Q_SIGNALS:
    void changed();
};

} // namespace Loadwick
