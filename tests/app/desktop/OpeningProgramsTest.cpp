#include "desktop/OpeningPrograms.h"

#include <filesystem>

#include <QTest>

#include "samples/TemporaryFolder.h"
#include "support/TestRegistry.h"

namespace Loadwick {
namespace {

constexpr auto kinds =
    "<mime-info xmlns='http://www.freedesktop.org/standards/shared-mime-info'>"
    "<mime-type type='text/markdown'><glob pattern='*.md'/></mime-type>"
    "<mime-type type='text/plain'><glob pattern='*.txt'/></mime-type>"
    "<mime-type type='image/png'><glob pattern='*.png'/></mime-type></mime-info>";

} // namespace

class OpeningProgramsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The kinds of files are read from the disk once.
    void initTestCase()
    {
        setVariable("XDG_CONFIG_HOME", "config");
        setVariable("XDG_DATA_HOME", "data");
        setVariable("XDG_CONFIG_DIRS", "etc");
        setVariable("XDG_DATA_DIRS", "usr");
        qputenv("XDG_CURRENT_DESKTOP", "Elsewhere:Here");
        m_home.write("usr/mime/packages/freedesktop.org.xml", kinds);
    }

    void cleanup()
    {
        for (const char *folder : {"config", "data", "etc", "usr/applications"})
            std::filesystem::remove_all(m_home.path() / folder);
    }

    void withoutListsThereIsNone() { QVERIFY(!existsFor("CLAUDE.md")); }

    void findsAnAssociation_data()
    {
        QTest::addColumn<QByteArray>("list");
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("program");
        QTest::newRow("the user's choice") << QByteArray("config/mimeapps.list")
                                           << QByteArray("[Default Applications]\n"
                                                         "text/markdown=none.desktop;e.desktop\n")
                                           << QByteArray("e.desktop");
        QTest::newRow("the desktop's") << QByteArray("etc/here-mimeapps.list")
                                       << QByteArray("[Default Applications]\n"
                                                     "text/markdown=e.desktop\n")
                                       << QByteArray("e.desktop");
        QTest::newRow("what programs say")
            << QByteArray("usr/applications/mimeinfo.cache")
            << QByteArray("[MIME Cache]\ntext/markdown=e.desktop;\n") << QByteArray("e.desktop");
        QTest::newRow("of text in general") << QByteArray("data/applications/mimeapps.list")
                                            << QByteArray("[Added Associations]\n"
                                                          "text/plain = e.desktop\n")
                                            << QByteArray("e.desktop");
        QTest::newRow("in a folder") << QByteArray("config/mimeapps.list")
                                     << QByteArray("[Default Applications]\n"
                                                   "text/markdown=kde-e.desktop\n")
                                     << QByteArray("kde/e.desktop");
    }

    void findsAnAssociation()
    {
        QFETCH(const QByteArray, list);
        QFETCH(const QByteArray, text);
        QFETCH(const QByteArray, program);
        m_home.write(list.toStdString(), text.toStdString());
        QVERIFY(!existsFor("CLAUDE.md")); // the program is not installed
        m_home.write("usr/applications/" + program.toStdString(), "[Desktop Entry]\n");
        QVERIFY(existsFor("CLAUDE.md"));
        QVERIFY(!existsFor("picture.png"));
    }

    void aRemovedAssociationIsNone()
    {
        m_home.write("usr/applications/e.desktop", "[Desktop Entry]\n");
        m_home.write("config/mimeapps.list", "[Removed Associations]\ntext/plain=e.desktop\n");
        QVERIFY(!existsFor("CLAUDE.md"));
    }

    void anUnknownKindIsText()
    {
        m_home.write("usr/applications/e.desktop", "[Desktop Entry]\n");
        m_home.write("config/mimeapps.list", "[Default Applications]\ntext/plain=e.desktop\n");
        QVERIFY(existsFor("AGENTS"));
    }

private:
    [[nodiscard]] static bool existsFor(const char *name)
    {
        return OpeningPrograms::existFor(QStringLiteral("/nowhere/") + QString::fromLatin1(name));
    }

    void setVariable(const char *name, const char *folder)
    {
        qputenv(name, QByteArray::fromStdString((m_home.path() / folder).string()));
    }

    TemporaryFolder m_home;
};

const RegisteredTest<OpeningProgramsTest> registered("OpeningPrograms");

} // namespace Loadwick

#include "OpeningProgramsTest.moc"
