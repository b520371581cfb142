#include "shell/ProgramEnd.h"

#include <csignal>
#include <cstdio>
#include <memory>

#include <QCoreApplication>
#include <QProcess>
#include <QTest>

#include "support/StandInProgram.h"
#include "support/TestRegistry.h"

namespace Loadwick {
namespace {

const char *dispositionOf(int signal)
{
    struct sigaction action = {};
    ::sigaction(signal, nullptr, &action);
    if (action.sa_handler == SIG_DFL)
        return "default";
    return action.sa_handler == SIG_IGN ? "ignored" : "handled";
}

/// Starts with unsuitable signal dispositions, as if inherited, and prints what becomes of them.
int dispositions(int, char **)
{
    std::signal(SIGCHLD, SIG_IGN);
    std::signal(SIGPIPE, SIG_DFL);
    std::signal(SIGHUP, SIG_IGN);
    ProgramEnd::followSignals(std::make_shared<Shutdown>());
    for (const int signal : {SIGCHLD, SIGPIPE, SIGTERM, SIGINT, SIGHUP})
        std::printf("%s ", dispositionOf(signal));
    return 0;
}

const StandInProgram dispositionsProgram("dispositions", dispositions);

} // namespace

class ProgramEndTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void overridesInheritedDispositions()
    {
        QProcess program;
        program.start(QCoreApplication::applicationFilePath(), {QStringLiteral("dispositions")});
        QVERIFY(program.waitForFinished(20'000));
        QCOMPARE(program.readAllStandardOutput(),
                 QByteArray("default ignored handled handled handled "));
    }
};

const RegisteredTest<ProgramEndTest> registered("ProgramEnd");

} // namespace Loadwick

#include "ProgramEndTest.moc"
