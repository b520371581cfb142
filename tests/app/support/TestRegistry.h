#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

namespace Loadwick {

/// The Qt Test classes of the program by the name of the type they test. Each test file registers
/// its own class with a RegisteredTest; the program's main runs the one that its argument names.
class TestRegistry
{
public:
    using Maker = std::function<std::unique_ptr<QObject>()>;

    static void add(const QString &type, Maker make);
    /// A new test object, or null for an unregistered name.
    [[nodiscard]] static std::unique_ptr<QObject> make(const QString &type);
    [[nodiscard]] static QStringList types();
};

/// Registers a test class before main, as a constant at the end of each test file.
template<typename Test>
class RegisteredTest
{
public:
    explicit RegisteredTest(const char *type)
    {
        TestRegistry::add(QString::fromLatin1(type), [] { return std::make_unique<Test>(); });
    }
};

} // namespace Loadwick
