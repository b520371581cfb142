#include "dialogs/ShownName.h"

namespace Loadwick {
namespace {

// Of letters written from right to left; the marks beside them (U+200E, U+200F) turn nothing else.
bool turnsTheOrder(QChar letter)
{
    return (letter >= QChar(0x202A) && letter <= QChar(0x202E)) ||
           (letter >= QChar(0x2066) && letter <= QChar(0x2069));
}

bool isSeen(QChar letter)
{
    const QChar::Category kind = letter.category();
    return kind != QChar::Other_Control && kind != QChar::Separator_Line &&
           kind != QChar::Separator_Paragraph && !turnsTheOrder(letter);
}

QString escape(QChar letter)
{
    if (letter == QLatin1Char('\n'))
        return QStringLiteral("\\n");
    if (letter == QLatin1Char('\t'))
        return QStringLiteral("\\t");
    const QString code = QString::number(letter.unicode(), 16).toUpper();
    return QLatin1String("\\u") + code.rightJustified(4, QLatin1Char('0'));
}

} // namespace

QString ShownName::of(const QString &name)
{
    QString shown;
    for (const QChar letter : name)
        shown += isSeen(letter) ? QString(letter) : escape(letter);
    return shown;
}

} // namespace Loadwick
