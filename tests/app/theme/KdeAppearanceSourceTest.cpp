#include "theme/KdeAppearanceSource.h"

#include "base/QtTaskDispatcher.h"
#include "samples/TemporaryFolder.h"
#include "support/SteppingDispatcher.h"
#include "support/TestRegistry.h"

#include <fstream>

#include <QSignalSpy>
#include <QTest>

namespace Loadwick {
namespace {

constexpr auto darkText = "[General]\nColorScheme=BreezeDark\n";
constexpr auto lightText = "[General]\nColorScheme=BreezeLight\n";

} // namespace

class KdeAppearanceSourceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<TemporaryFolder>();
        m_file = m_folder->path() / "kdeglobals";
        m_dispatcher = std::make_shared<QtTaskDispatcher>(m_interface);
    }

    void readsTheFileInTheBackground()
    {
        m_folder->write("kdeglobals", darkText);
        const auto stepping = std::make_shared<SteppingDispatcher>();
        const KdeAppearanceSource source(m_file, stepping);
        QVERIFY(!source.wishes().dark);
        stepping->runAll();
        QVERIFY(source.prefersDark());
    }

    void followsAFileThatIsReplaced()
    {
        m_folder->write("kdeglobals", darkText);
        const KdeAppearanceSource source(m_file, m_dispatcher);
        QTRY_VERIFY(source.prefersDark());
        // As KDE writes it; twice, for the first replacement ends the watch on the file itself.
        replace(lightText);
        QTRY_VERIFY(!source.prefersDark());
        replace(darkText);
        QTRY_VERIFY(source.prefersDark());
    }

    void followsAFileThatIsWrittenInPlace()
    {
        m_folder->write("kdeglobals", darkText);
        const KdeAppearanceSource source(m_file, m_dispatcher);
        QTRY_VERIFY(source.prefersDark());
        std::ofstream(m_file) << lightText;
        QTRY_VERIFY(!source.prefersDark());
    }

    void followsAFileThatComesLater()
    {
        const KdeAppearanceSource source(m_file, m_dispatcher);
        QTest::qWait(50);
        QVERIFY(source.wishes() == DesktopWishes());
        m_folder->write("kdeglobals", darkText);
        QTRY_VERIFY(source.prefersDark());
    }

    void forgetsAFileThatGoes()
    {
        m_folder->write("kdeglobals", darkText);
        const KdeAppearanceSource source(m_file, m_dispatcher);
        QTRY_VERIFY(source.prefersDark());
        std::filesystem::remove(m_file);
        QTRY_VERIFY(!source.wishes().dark);
    }

    void saysNothingOfAChangeToOtherSettings()
    {
        m_folder->write("kdeglobals", darkText);
        const KdeAppearanceSource source(m_file, m_dispatcher);
        QTRY_VERIFY(source.prefersDark());
        const QSignalSpy changes(&source, &AppearanceSource::changed);
        replace("[General]\nColorScheme=BreezeDark\nfixed=Hack,10\n");
        QTest::qWait(300);
        QVERIFY(changes.isEmpty());
    }

    void doesWithoutAFileOrAThread()
    {
        const auto stepping = std::make_shared<SteppingDispatcher>();
        const KdeAppearanceSource none({}, stepping);
        QCOMPARE(stepping->backgroundCount(), std::size_t(0));
        stepping->refuseBackground();
        const KdeAppearanceSource unread(m_file, stepping);
        QVERIFY(unread.wishes() == DesktopWishes());
    }

    void mayGoBeforeTheFileIsRead()
    {
        const auto stepping = std::make_shared<SteppingDispatcher>();
        std::make_unique<KdeAppearanceSource>(m_file, stepping).reset();
        stepping->runAll();
    }

    void anotherDesktopsProgramLeavesKdesFileAlone_data()
    {
        QTest::addColumn<QByteArray>("desktop");
        QTest::addColumn<bool>("reads");
        QTest::newRow("unnamed") << QByteArray() << true;
        QTest::newRow("KDE") << QByteArray("KDE") << true;
        QTest::newRow("one like KDE") << QByteArray("Example:KDE") << true;
        QTest::newRow("GNOME") << QByteArray("ubuntu:GNOME") << false;
    }

    void anotherDesktopsProgramLeavesKdesFileAlone()
    {
        QFETCH(QByteArray, desktop);
        QFETCH(bool, reads);
        qputenv("XDG_CURRENT_DESKTOP", desktop);
        const std::filesystem::path file = KdeAppearanceSource::userFile();
        qunsetenv("XDG_CURRENT_DESKTOP");
        QCOMPARE(file.filename() == "kdeglobals", reads);
        QCOMPARE(file.empty(), !reads);
    }

private:
    void replace(std::string_view text)
    {
        const auto next = m_folder->write("kdeglobals.next", text);
        std::filesystem::rename(next, m_file);
    }

    QObject m_interface;
    std::shared_ptr<TaskDispatcher> m_dispatcher;
    std::unique_ptr<TemporaryFolder> m_folder;
    std::filesystem::path m_file;
};

const RegisteredTest<KdeAppearanceSourceTest> registered("KdeAppearanceSource");

} // namespace Loadwick

#include "KdeAppearanceSourceTest.moc"
