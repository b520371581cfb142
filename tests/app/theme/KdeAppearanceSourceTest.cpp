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
        QVERIFY(!source.preferences().dark);
        stepping->runAll();
        QVERIFY(source.prefersDark());
    }

    void followsAFileThatIsReplaced()
    {
        m_folder->write("kdeglobals", darkText);
        const KdeAppearanceSource source(m_file, m_dispatcher);
        QTRY_VERIFY(source.prefersDark());
        // As KDE writes it; twice, because the first replacement ends the watch on the file itself.
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

    void followsAFileThatAppearsLater()
    {
        const KdeAppearanceSource source(m_file, m_dispatcher);
        QTest::qWait(50);
        QVERIFY(source.preferences() == DesktopPreferences());
        m_folder->write("kdeglobals", darkText);
        QTRY_VERIFY(source.prefersDark());
    }

    void forgetsAFileThatIsDeleted()
    {
        m_folder->write("kdeglobals", darkText);
        const KdeAppearanceSource source(m_file, m_dispatcher);
        QTRY_VERIFY(source.prefersDark());
        std::filesystem::remove(m_file);
        QTRY_VERIFY(!source.preferences().dark);
    }

    void ignoresAChangeToOtherSettings()
    {
        m_folder->write("kdeglobals", darkText);
        const KdeAppearanceSource source(m_file, m_dispatcher);
        QTRY_VERIFY(source.prefersDark());
        const QSignalSpy changes(&source, &AppearanceSource::changed);
        replace("[General]\nColorScheme=BreezeDark\nfixed=Hack,10\n");
        QTest::qWait(300);
        QVERIFY(changes.isEmpty());
    }

    void needsNeitherAFileNorAThread()
    {
        const auto stepping = std::make_shared<SteppingDispatcher>();
        const KdeAppearanceSource none({}, stepping);
        QCOMPARE(stepping->backgroundCount(), std::size_t(0));
        stepping->refuseBackground();
        const KdeAppearanceSource unread(m_file, stepping);
        QVERIFY(unread.preferences() == DesktopPreferences());
    }

    void canBeDestroyedBeforeTheFileIsRead()
    {
        const auto stepping = std::make_shared<SteppingDispatcher>();
        std::make_unique<KdeAppearanceSource>(m_file, stepping).reset();
        stepping->runAll();
    }

    void ignoresTheFileOnAnotherDesktop_data()
    {
        QTest::addColumn<QByteArray>("desktop");
        QTest::addColumn<bool>("reads");
        QTest::newRow("unnamed") << QByteArray() << true;
        QTest::newRow("KDE") << QByteArray("KDE") << true;
        QTest::newRow("one like KDE") << QByteArray("Example:KDE") << true;
        QTest::newRow("GNOME") << QByteArray("ubuntu:GNOME") << false;
    }

    void ignoresTheFileOnAnotherDesktop()
    {
        QFETCH(QByteArray, desktop);
        QFETCH(bool, reads);
        qputenv("XDG_CURRENT_DESKTOP", desktop);
        const std::filesystem::path file = KdeAppearanceSource::userFile();
        qunsetenv("XDG_CURRENT_DESKTOP");
        QCOMPARE(file.filename() == "kdeglobals", reads);
        QCOMPARE(file.empty(), !reads);
    }

    void readsThePreferencesInItsText_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<DesktopPreferences>("preferences");
        schemeRows();
        motionRows();
        fontRows();
        ignoredRows();
    }

    void readsThePreferencesInItsText()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const DesktopPreferences, preferences);
        QVERIFY(KdeGlobals::preferences(text.toStdString()) == preferences);
    }

private:
    static void row(const char *name, const QByteArray &text, const DesktopPreferences &preferences)
    {
        QTest::newRow(name) << text << preferences;
    }

    static void schemeRows()
    {
        row("a whole file",
            "[General]\nAccentColor=61,174,233\nColorScheme=BreezeDark\nName[de]=Breeze Dunkel\n\n"
            "[KDE]\nAnimationDurationFactor=0\n",
            {.dark = true, .reducedMotion = true, .accent = QColor(61, 174, 233)});
        row("the ground of windows outranks the name",
            "[Colors:Window]\nBackgroundNormal=239,240,241\n"
            "[General]\nColorScheme=NotAsDarkAsItSounds\n",
            {.dark = false});
        row("a light name", "[General]\nColorScheme=BreezeLight\n", {.dark = false});
        row("a name of high contrast", "[General]\nColorScheme=BreezeHighContrast\n",
            {.dark = false, .moreContrast = true});
    }

    static void motionRows()
    {
        const QByteArray factor = "[KDE]\nAnimationDurationFactor=";
        row("no animations", factor + "0", {.reducedMotion = true});
        row("no animations, written long", factor + "0.0", {.reducedMotion = true});
        row("quick animations", factor + "0.25", {.reducedMotion = false});
        row("animations as they are", factor + "1", {.reducedMotion = false});
        row("a factor that is not a number", factor + "fast", {});
        row("an empty factor", factor, {});
        row("suffixes of a name", "[KDE][$i]\n[KDE]\nAnimationDurationFactor[$i]=0\n",
            {.reducedMotion = true});
    }

    static void fontRows()
    {
        const QByteArray font = "[General]\nfont=Noto Sans";
        row("a font", font + ",14,-1,5,50,0,0,0,0,0\n", {.fontPoints = 14});
        row("parts of a point", font + ", 10.5,-1\n", {.fontPoints = 10.5});
        row("a size in pixels", font + ",-1,18,5\n", {});
        row("a font without a size", font + "\n", {});
        row("a size that is not a number", font + ",large\n", {});
    }

    static void ignoredRows()
    {
        row("nothing", {}, {});
        row("a comment", "[KDE]\n#AnimationDurationFactor=0\n", {});
        row("no group", "AnimationDurationFactor=0\n", {});
        row("another group", "[Plasma]\nAnimationDurationFactor=0\nColorScheme=Dark\n", {});
        row("half a colour", "[General]\nAccentColor=1,2\n", {});
        row("a colour out of range", "[General]\nAccentColor=1,2,256\n", {});
        row("no colour", "[General]\nAccentColor=red,green,blue\n", {});
        row("bytes", QByteArray("\0=[\xff]\n=\n[", 9), {});
    }

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
