#include "support/TestRegistry.h"

#include <map>
#include <utility>

namespace Loadwick {
namespace {

std::map<QString, TestRegistry::Maker> &makers()
{
    static std::map<QString, TestRegistry::Maker> entered;
    return entered;
}

} // namespace

void TestRegistry::add(const QString &type, Maker make)
{
    makers().insert_or_assign(type, std::move(make));
}

std::unique_ptr<QObject> TestRegistry::make(const QString &type)
{
    const auto found = makers().find(type);
    return found == makers().end() ? nullptr : found->second();
}

QStringList TestRegistry::types()
{
    QStringList types;
    for (const auto &[type, make] : makers())
        types.append(type);
    return types;
}

} // namespace Loadwick
