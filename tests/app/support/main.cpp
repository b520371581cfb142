// Runs the Qt Test class named by the first argument; the rest goes to Qt Test. A stand-in program
// may be named instead.
#include "shell/ApplicationSetup.h"
#include "support/StandInProgram.h"
#include "support/TestRegistry.h"
#include "theme/ApplicationStyle.h"

#include <QApplication>
#include <QTest>

#include <iostream>

int main(int argc, char *argv[])
{
    using namespace Loadwick;

    const auto program = StandInProgram::find(QString::fromLocal8Bit(argc > 1 ? argv[1] : ""));
    if (program != nullptr)
        return program(argc, argv);
    ApplicationSetup::prepare();
    QApplication application(argc, argv);
    ApplicationSetup::apply();
    ApplicationStyle::applyFont(application);
    QStringList arguments = QApplication::arguments();
    const QString type = arguments.size() > 1 ? arguments.takeAt(1) : QString();
    const auto test = TestRegistry::make(type);
    if (!test) {
        std::cerr << "Name one of: " << qPrintable(TestRegistry::types().join(QStringLiteral(", ")))
                  << '\n';
        return 2;
    }
    return QTest::qExec(test.get(), arguments);
}
