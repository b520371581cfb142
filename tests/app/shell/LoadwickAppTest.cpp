#include "shell/LoadwickApp.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <thread>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QTest>
#include <QTimer>

#include <sys/types.h>
#include <unistd.h>

#include "samples/TemporaryFolder.h"
#include "support/FakeFolderChooser.h"
#include "support/ScanFakes.h"
#include "support/StandInProgram.h"
#include "support/TestRegistry.h"

namespace Loadwick {
namespace {

[[noreturn]] void sleepForEver()
{
    for (;;)
        std::this_thread::sleep_for(std::chrono::hours(1));
}

void say(const char *word)
{
    std::puts(word);
    std::fflush(stdout);
}

void startAScan()
{
    QWindow *window = QGuiApplication::topLevelWindows().constFirst();
    QTest::keyClick(window, Qt::Key_O, Qt::ControlModifier);
    QTest::keyClick(window, Qt::Key_R, Qt::ControlModifier);
}

LoadwickWindow::Collaborators blockedCollaborators(const std::filesystem::path &folder)
{
    auto probe = std::make_shared<FakeProbe>();
    probe->answer = []() -> ProbeResult {
        say("scanning");
        sleepForEver();
    };
    auto chooser = std::make_unique<FakeFolderChooser>();
    chooser->answer = folder;
    return {.scan = {.probeRunner = probe,
                     .instructionScanner = std::make_shared<FakeInstructionScanner>()},
            .folderChooser = std::move(chooser)};
}

/// The whole application during a scan that never ends. On "close" it closes its window.
int blockedScan(int argc, char **argv)
{
    const TemporaryFolder folder;
    const bool closes = argc > 2;
    LoadwickApp::run(1, argv, [&folder, closes](const std::shared_ptr<Shutdown> &) {
        QTimer::singleShot(200, startAScan);
        if (closes)
            QTimer::singleShot(1500,
                               [] { QGuiApplication::topLevelWindows().constFirst()->close(); });
        return blockedCollaborators(folder.path());
    });
}

/// The whole application with an interface thread that hangs.
int hangingInterface(int, char **argv)
{
    LoadwickApp::run(1, argv, [](const std::shared_ptr<Shutdown> &) {
        QTimer::singleShot(0, [] {
            say("hanging");
            sleepForEver();
        });
        return blockedCollaborators({});
    });
}

[[noreturn]] void ignoreTerminationForEver()
{
    ::setsid();
    std::signal(SIGTERM, SIG_IGN);
    sleepForEver();
}

/// The whole application with a child process that ignores SIGTERM; prints the child's number.
int stubbornChild(int, char **argv)
{
    const pid_t child = ::fork();
    if (child == 0)
        ignoreTerminationForEver();
    LoadwickApp::run(1, argv, [child](const std::shared_ptr<Shutdown> &shutdown) {
        if (!shutdown->add(child))
            std::abort();
        QTimer::singleShot(0, [child] { say(std::to_string(child).c_str()); });
        return blockedCollaborators({});
    });
}

const StandInProgram blockedScanProgram("blocked-scan", blockedScan);
const StandInProgram hangingInterfaceProgram("hanging-interface", hangingInterface);
const StandInProgram stubbornChildProgram("stubborn-child", stubbornChild);

constexpr int startMilliseconds = 20'000;

/// The program promises one second; the rest allows for a busy machine.
constexpr qint64 endMilliseconds = 1'500;

} // namespace

class LoadwickAppTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSignalEndsItWhileAScanIsBlocked_data() { signalRows(); }

    void aSignalEndsItWhileAScanIsBlocked()
    {
        QFETCH(const int, signal);
        start({QStringLiteral("blocked-scan")});
        QCOMPARE(firstLine(), QByteArray("scanning"));
        checkEndBy(signal);
    }

    void aSignalEndsItWhileTheInterfaceHangs_data() { signalRows(); }

    void aSignalEndsItWhileTheInterfaceHangs()
    {
        QFETCH(const int, signal);
        start({QStringLiteral("hanging-interface")});
        QCOMPARE(firstLine(), QByteArray("hanging"));
        checkEndBy(signal);
    }

    void closingTheWindowEndsItWhileAScanIsBlocked()
    {
        start({QStringLiteral("blocked-scan"), QStringLiteral("close")});
        QCOMPARE(firstLine(), QByteArray("scanning"));
        QElapsedTimer sinceScan;
        sinceScan.start();
        QVERIFY(m_program->waitForFinished(startMilliseconds));
        QVERIFY2(sinceScan.elapsed() < 1'500 + endMilliseconds,
                 qPrintable(QString::number(sinceScan.elapsed())));
        QCOMPARE(m_program->exitStatus(), QProcess::NormalExit);
        QCOMPARE(m_program->exitCode(), 0);
    }

    void itsChildrenDoNotOutliveIt()
    {
        start({QStringLiteral("stubborn-child")});
        const auto child = static_cast<pid_t>(firstLine().toInt());
        QVERIFY(child > 0);
        checkEndBy(SIGTERM);
        QTRY_VERIFY(!isRunning(child));
    }

    void aSignalIgnoredByItsParentEndsIt()
    {
        const auto before = std::signal(SIGHUP, SIG_IGN);
        start({QStringLiteral("hanging-interface")});
        std::signal(SIGHUP, before);
        QCOMPARE(firstLine(), QByteArray("hanging"));
        checkEndBy(SIGHUP);
    }

    void cleanup()
    {
        if (m_program && m_program->state() != QProcess::NotRunning)
            m_program->kill();
        m_program.reset();
    }

private:
    static void signalRows()
    {
        QTest::addColumn<int>("signal");
        QTest::newRow("SIGTERM") << SIGTERM;
        QTest::newRow("SIGINT") << SIGINT;
        QTest::newRow("SIGHUP") << SIGHUP;
    }

    static bool isRunning(pid_t process)
    {
        QFile file(QStringLiteral("/proc/%1/stat").arg(process));
        return file.open(QIODevice::ReadOnly) && !file.readAll().contains(") Z ");
    }

    void start(const QStringList &arguments)
    {
        m_program = std::make_unique<QProcess>();
        m_program->setProcessChannelMode(QProcess::SeparateChannels);
        m_program->start(QCoreApplication::applicationFilePath(), arguments);
        QVERIFY(m_program->waitForStarted());
    }

    QByteArray firstLine()
    {
        while (!m_program->canReadLine())
            if (!m_program->waitForReadyRead(startMilliseconds))
                return m_program->readAllStandardError();
        return m_program->readLine().trimmed();
    }

    void checkEndBy(int signal)
    {
        QElapsedTimer sinceSignal;
        sinceSignal.start();
        QCOMPARE(::kill(static_cast<pid_t>(m_program->processId()), signal), 0);
        QVERIFY(m_program->waitForFinished(startMilliseconds));
        QVERIFY2(sinceSignal.elapsed() < endMilliseconds,
                 qPrintable(QString::number(sinceSignal.elapsed())));
        QCOMPARE(m_program->exitCode(), 128 + signal);
    }

    std::unique_ptr<QProcess> m_program;
};

const RegisteredTest<LoadwickAppTest> registered("LoadwickApp");

} // namespace Loadwick

#include "LoadwickAppTest.moc"
