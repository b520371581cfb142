#include "onboarding/PreferencesCompletionStore.h"

#include <string>

#include <QElapsedTimer>
#include <QTest>

#include <sys/stat.h>

#include "samples/TemporaryFolder.h"
#include "support/PlainPermissions.h"
#include "support/TestRegistry.h"

namespace Loadwick {

namespace fs = std::filesystem;

class PreferencesCompletionStoreTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<TemporaryFolder>(); }

    void isNotCompletedAtFirst()
    {
        QVERIFY(!isCompleted());
        QVERIFY(!fs::exists(file().parent_path()));
    }

    void anAbsentKeyReadsAsFalse()
    {
        write("[General]\ntheme=dark\n");
        QVERIFY(!isCompleted());
    }

    void outlivesTheStoreThatWroteIt()
    {
        store().setOnboardingCompleted(true);
        QVERIFY(isCompleted());
        QCOMPARE(contentOf(file()), std::string("[General]\nhasCompletedOnboarding=true\n"));
    }

    void canBeReset()
    {
        store().setOnboardingCompleted(true);
        store().setOnboardingCompleted(false);
        QVERIFY(!isCompleted());
    }

    void readsWhatAnotherProgramWrote_data()
    {
        QTest::addColumn<QByteArray>("value");
        QTest::addColumn<bool>("completed");
        QTest::newRow("true") << QByteArray("true") << true;
        QTest::newRow("one") << QByteArray("1") << true;
        QTest::newRow("false") << QByteArray("false") << false;
        QTest::newRow("nothing") << QByteArray("") << false;
    }

    void readsWhatAnotherProgramWrote()
    {
        QFETCH(const QByteArray, value);
        QFETCH(const bool, completed);
        write("[General]\nhasCompletedOnboarding=" + value.toStdString() + "\n");
        QCOMPARE(isCompleted(), completed);
    }

    void keepsTheOtherPreferences()
    {
        write("[General]\ntheme=dark\n\n[window]\nwidth=1180\n");
        store().setOnboardingCompleted(true);
        const std::string content = contentOf(file());
        QVERIFY(content.find("theme=dark") != std::string::npos);
        QVERIFY(content.find("[window]\nwidth=1180") != std::string::npos);
        QVERIFY(isCompleted());
    }

    void aGarbageFileReadsAsFalseAndIsReplaced()
    {
        write(std::string("\x00\xff[[[\nno preference\n", 20));
        QVERIFY(!isCompleted());
        store().setOnboardingCompleted(true);
        QVERIFY(isCompleted());
    }

    void anUnreadableFileReadsAsFalse()
    {
        const PlainPermissions permissions;
        write("[General]\nhasCompletedOnboarding=true\n");
        fs::permissions(file(), fs::perms::none);
        QVERIFY(!isCompleted());
    }

    void anUnwritableFolderFailsSilently()
    {
        const PlainPermissions permissions;
        fs::permissions(m_folder->path(), fs::perms::owner_read | fs::perms::owner_exec);
        QElapsedTimer time;
        time.start();
        store().setOnboardingCompleted(true);
        QVERIFY(time.elapsed() < 5'000);
        QVERIFY(!fs::exists(file()));
    }

    void aFileInsteadOfTheFolderFailsSilently()
    {
        m_folder->write("Loadwick", "in the way");
        store().setOnboardingCompleted(true);
        QVERIFY(!isCompleted());
        QCOMPARE(contentOf(m_folder->path() / "Loadwick"), std::string("in the way"));
    }

    void aFolderInsteadOfTheFileFailsSilently()
    {
        fs::create_directories(file());
        store().setOnboardingCompleted(true);
        QVERIFY(!isCompleted());
        QVERIFY(fs::is_directory(file()));
    }

    void doesNotWaitForAPipe()
    {
        fs::create_directories(file().parent_path());
        QCOMPARE(::mkfifo(file().c_str(), 0600), 0);
        QVERIFY(!isCompleted());
        store().setOnboardingCompleted(true);
        QVERIFY(!isCompleted());
    }

    void ignoresAFileTooLargeForPreferences()
    {
        const std::string large(2 << 20, '\n');
        write(large);
        store().setOnboardingCompleted(true);
        QVERIFY(!isCompleted());
        QVERIFY(contentOf(file()) == large);
    }

    void isInTheConfigurationFolder_data()
    {
        QTest::addColumn<QByteArray>("configuration");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("given") << QByteArray("/c") << QByteArray("/c/Loadwick/preferences.ini");
        QTest::newRow("relative") << QByteArray("c")
                                  << QByteArray("/h/.config/Loadwick/preferences.ini");
        QTest::newRow("empty") << QByteArray("")
                               << QByteArray("/h/.config/Loadwick/preferences.ini");
    }

    void isInTheConfigurationFolder()
    {
        QFETCH(const QByteArray, configuration);
        QFETCH(const QByteArray, expected);
        const Environment environment{{"HOME", "/h"},
                                      {"XDG_CONFIG_HOME", configuration.toStdString()}};
        QCOMPARE(PreferencesCompletionStore::defaultFile(environment).string(),
                 expected.toStdString());
        QCOMPARE(PreferencesCompletionStore::defaultFile({{"HOME", "/h"}}).string(),
                 std::string("/h/.config/Loadwick/preferences.ini"));
    }

private:
    [[nodiscard]] fs::path file() const
    {
        return PreferencesCompletionStore::defaultFile(
            {{"XDG_CONFIG_HOME", m_folder->path().string()}});
    }

    void write(const std::string &bytes) const
    {
        m_folder->write(fs::relative(file(), m_folder->path()), bytes);
    }

    [[nodiscard]] PreferencesCompletionStore store() const
    {
        return PreferencesCompletionStore(file());
    }

    [[nodiscard]] bool isCompleted() const { return store().onboardingCompleted(); }

    std::unique_ptr<TemporaryFolder> m_folder;
};

const RegisteredTest<PreferencesCompletionStoreTest> registered("PreferencesCompletionStore");

} // namespace Loadwick

#include "PreferencesCompletionStoreTest.moc"
