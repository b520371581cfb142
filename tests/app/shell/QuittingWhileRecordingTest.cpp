#include <atomic>
#include <chrono>
#include <memory>
#include <thread>

#include <QCoreApplication>
#include <QGuiApplication>
#include <QProcess>
#include <QTest>
#include <QTimer>

#include "base/QtTaskDispatcher.h"
#include "samples/TemporaryFolder.h"
#include "shell/LoadwickApp.h"
#include "support/FakeFolderChooser.h"
#include "support/ScanFakes.h"
#include "support/StandInProgram.h"
#include "support/TestRegistry.h"

namespace Loadwick {
namespace {

using namespace std::chrono_literals;

void closeWindow()
{
    QGuiApplication::topLevelWindows().constFirst()->close();
}

void scanAnything()
{
    QWindow *window = QGuiApplication::topLevelWindows().constFirst();
    QTest::keyClick(window, Qt::Key_O, Qt::ControlModifier);
    QTest::keyClick(window, Qt::Key_R, Qt::ControlModifier);
}

/// Once the scan has ended, the disk takes `delay` for the next work, and the window is closed.
class SlowDisk final : public TaskDispatcher
{
public:
    explicit SlowDisk(std::chrono::milliseconds delay) : m_delay(delay) {}

    void runInBackground(Task task) override
    {
        if (!hasEnded)
            return m_threads.runInBackground(std::move(task));
        m_threads.runInBackground([delay = m_delay, task = std::move(task)] {
            std::this_thread::sleep_for(delay);
            task();
        });
        QTimer::singleShot(0, closeWindow);
    }

    void postToInterface(Task task) override { m_threads.postToInterface(std::move(task)); }

    std::atomic<bool> hasEnded = false;

private:
    std::chrono::milliseconds m_delay;
    QtTaskDispatcher m_threads{*QCoreApplication::instance()};
};

/// The whole application, closed while a scan is recorded in the folder that the first argument
/// names. The second is the disk's delay in milliseconds.
int recordAndClose(int, char **argv)
{
    const std::filesystem::path folder = argv[2];
    const std::chrono::milliseconds delay(std::atoi(argv[3]));
    LoadwickApp::run(1, argv, [&](const std::shared_ptr<Shutdown> &) {
        const auto disk = std::make_shared<SlowDisk>(delay);
        auto scanner = std::make_shared<FakeInstructionScanner>();
        scanner->answer = [disk] {
            disk->hasEnded = true;
            return InstructionFileSet();
        };
        auto chooser = std::make_unique<FakeFolderChooser>();
        chooser->answer = folder;
        QTimer::singleShot(200, scanAnything);
        return LoadwickWindow::Collaborators{
            .scan = {.probeRunner = std::make_shared<FakeProbe>(),
                     .instructionScanner = scanner,
                     .historyStore = std::make_shared<ScanHistoryStore>(folder),
                     .dispatcher = disk},
            .folderChooser = std::move(chooser)};
    });
}

const StandInProgram recordAndCloseProgram("record-and-close", recordAndClose);

constexpr int longestMilliseconds = 20'000;

} // namespace

class QuittingWhileRecordingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void finishesWhatHasBegun()
    {
        quitWithDelay("300");
        QCOMPARE(ScanHistoryStore(m_folder.path()).load().size(), std::size_t(1));
    }

    void doesNotWaitForADiskThatDoesNotAnswer()
    {
        quitWithDelay("3600000");
        QVERIFY(ScanHistoryStore(m_folder.path()).load().empty());
    }

private:
    void quitWithDelay(const char *milliseconds)
    {
        ScanHistoryStore(m_folder.path()).clear();
        QProcess program;
        program.start(QCoreApplication::applicationFilePath(),
                      {QStringLiteral("record-and-close"),
                       QString::fromStdString(m_folder.path().string()),
                       QString::fromLatin1(milliseconds)});
        const bool hasEnded = program.waitForFinished(longestMilliseconds);
        program.kill();
        program.waitForFinished();
        QVERIFY(hasEnded);
        QCOMPARE(program.exitStatus(), QProcess::NormalExit);
        QCOMPARE(program.exitCode(), 0);
    }

    TemporaryFolder m_folder;
};

namespace {

const RegisteredTest<QuittingWhileRecordingTest> registered("QuittingWhileRecording");

} // namespace
} // namespace Loadwick

#include "QuittingWhileRecordingTest.moc"
