// Runs the Qt Test class named by the first argument; the rest goes to Qt Test.
#include "support/TestRegistry.h"
#include "theme/ApplicationStyle.h"

#include <QGuiApplication>
#include <QTest>

#include <iostream>

int main(int argc, char *argv[])
{
    using namespace Loadwick;

    ApplicationStyle::prepare();
    QGuiApplication application(argc, argv);
    ApplicationStyle::applyFont(application);
    QStringList arguments = QGuiApplication::arguments();
    const QString type = arguments.size() > 1 ? arguments.takeAt(1) : QString();
    const auto test = TestRegistry::make(type);
    if (!test) {
        std::cerr << "Name one of: " << qPrintable(TestRegistry::types().join(QStringLiteral(", ")))
                  << '\n';
        return 2;
    }
    return QTest::qExec(test.get(), arguments);
}
