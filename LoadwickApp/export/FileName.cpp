#include "export/FileName.h"

#include <algorithm>

namespace Loadwick::FileName {

QString suggested(const QString &kind, const QString &repositoryName)
{
    constexpr qsizetype longest = 60;
    constexpr QChar dash = u'-';
    QString name = repositoryName.left(longest);
    const auto stays = [](QChar letter) {
        return letter.isLetterOrNumber() || letter == u'.' || letter == u'_';
    };
    std::replace_if(
        name.begin(), name.end(), [&](QChar letter) { return !stays(letter); }, dash);
    return name.isEmpty() ? kind : kind + dash + name;
}

} // namespace Loadwick::FileName
