#include "desktop/OpeningPrograms.h"

#include <algorithm>

#include <QByteArray>
#include <QMimeDatabase>
#include <QStandardPaths>
#include <QStringList>

#include "posix/RegularFile.h"

namespace Loadwick::OpeningPrograms {
namespace {

constexpr std::size_t longestList = 4'000'000; // bytes

/// From the file's own to the most general; every file is of the last kind, which says nothing.
QStringList typesOf(const QString &file)
{
    const QMimeType type = QMimeDatabase().mimeTypeForFile(file, QMimeDatabase::MatchExtension);
    if (!type.isValid() || type.isDefault())
        return {QStringLiteral("text/plain")};
    QStringList types = QStringList(type.name()) + type.aliases() + type.allAncestors();
    types.removeAll(QStringLiteral("application/octet-stream"));
    return types;
}

QStringList listsOfTheDesktop()
{
    const QString common = QStringLiteral("mimeapps.list");
    QStringList names{common};
    for (const QString &desktop : qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':'))
        names.append(desktop.toLower() + u'-' + common);
    QStringList lists;
    for (const QString &name : names) {
        const QString besidePrograms = QStringLiteral("applications/") + name;
        lists += QStandardPaths::locateAll(QStandardPaths::GenericConfigLocation, name);
        lists += QStandardPaths::locateAll(QStandardPaths::GenericDataLocation, besidePrograms);
    }
    return lists + QStandardPaths::locateAll(QStandardPaths::GenericDataLocation,
                                             QStringLiteral("applications/mimeinfo.cache"));
}

bool isFile(const QString &program)
{
    return !QStandardPaths::locate(QStandardPaths::ApplicationsLocation, program).isEmpty();
}

/// The first dash of a program's name may stand for a folder.
bool isInstalled(const QString &program)
{
    const qsizetype dash = program.indexOf(u'-');
    return isFile(program) ||
           (dash > 0 && isFile(program.left(dash) + u'/' + program.mid(dash + 1)));
}

/// Lines of "type=program;program;" in groups, of which one lists what is not associated.
bool namesProgram(const QByteArray &list, const QStringList &types)
{
    bool isRemoval = false;
    for (const QByteArray &line : list.split('\n')) {
        const QString text = QString::fromUtf8(line).trimmed();
        if (text.startsWith(u'['))
            isRemoval = text == QLatin1String("[Removed Associations]");
        if (isRemoval || !types.contains(text.section(u'=', 0, 0).trimmed()))
            continue;
        const QStringList programs = text.section(u'=', 1).split(u';');
        if (std::any_of(programs.begin(), programs.end(),
                        [](const QString &program) { return isInstalled(program.trimmed()); }))
            return true;
    }
    return false;
}

} // namespace

bool existFor(const QString &file)
{
    const QStringList types = typesOf(file);
    const QStringList lists = listsOfTheDesktop();
    return std::any_of(lists.begin(), lists.end(), [&types](const QString &path) {
        auto list = RegularFile::open(path.toStdString());
        const auto text = list ? list->readUpTo(longestList) : std::nullopt;
        return text && namesProgram(QByteArray::fromStdString(*text), types);
    });
}

} // namespace Loadwick::OpeningPrograms
