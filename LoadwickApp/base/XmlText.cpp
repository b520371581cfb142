#include "base/XmlText.h"

#include <algorithm>

namespace Loadwick {
namespace {

bool isExpressible(QChar letter)
{
    const bool isControl = letter < u' ' || (letter >= QChar(0x7F) && letter < QChar(0xA0));
    return isControl ? letter == u'\n' || letter == u'\t' : letter < QChar(0xFFFE);
}

} // namespace

QString expressibleInXml(QString text)
{
    std::replace_if(
        text.begin(), text.end(), [](QChar letter) { return !isExpressible(letter); },
        QChar(QChar::ReplacementCharacter));
    return text;
}

} // namespace Loadwick
