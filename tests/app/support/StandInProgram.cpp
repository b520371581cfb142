#include "support/StandInProgram.h"

#include <map>

namespace Loadwick {
namespace {

std::map<QString, StandInProgram::Main> &programs()
{
    static std::map<QString, StandInProgram::Main> entered;
    return entered;
}

} // namespace

StandInProgram::StandInProgram(const char *name, Main main)
{
    programs().insert_or_assign(QString::fromLatin1(name), main);
}

StandInProgram::Main StandInProgram::find(const QString &name)
{
    const auto found = programs().find(name);
    return found == programs().end() ? nullptr : found->second;
}

} // namespace Loadwick
