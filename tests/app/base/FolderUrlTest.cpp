#include "base/FolderUrl.h"

#include <string>

#include <QDir>
#include <QTest>
#include <QUrl>

#include "samples/TemporaryFolder.h"
#include "support/TestRegistry.h"

namespace Loadwick {

class FolderUrlTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keepsEveryByte_data()
    {
        QTest::addColumn<QUrl>("url");
        QTest::addColumn<QByteArray>("path");
        const auto encoded = [](const char *text) { return QUrl::fromEncoded(text); };
        QTest::newRow("plain") << encoded("file:///home/someone/webshop")
                               << QByteArray("/home/someone/webshop");
        QTest::newRow("not UTF-8") << encoded("file:///srv/caf%E9") << QByteArray("/srv/caf\xE9");
        QTest::newRow("markup") << QUrl::fromLocalFile(QStringLiteral("/srv/<img src=x>"))
                                << QByteArray("/srv/<img src=x>");
        QTest::newRow("line feed") << encoded("file:///srv/a%0Ab") << QByteArray("/srv/a\nb");
        QTest::newRow("percent") << QUrl::fromLocalFile(QStringLiteral("/srv/100%25"))
                                 << QByteArray("/srv/100%25");
        QTest::newRow("question mark and hash")
            << QUrl::fromLocalFile(QStringLiteral("/srv/what?#1")) << QByteArray("/srv/what?#1");
        QTest::newRow("umlaut") << QUrl::fromLocalFile(QStringLiteral("/srv/Büro"))
                                << QByteArray("/srv/B\xC3\xBCro");
        QTest::newRow("this machine by name")
            << encoded("file://localhost/srv/a") << QByteArray("/srv/a");
    }

    void keepsEveryByte()
    {
        QFETCH(const QUrl, url);
        QFETCH(const QByteArray, path);
        const auto found = folderPath(url);
        QVERIFY(found);
        QCOMPARE(QByteArray::fromStdString(found->string()), path);
    }

    void isNothingElsewhere_data()
    {
        QTest::addColumn<QUrl>("url");
        QTest::newRow("the web") << QUrl(QStringLiteral("https://example.org/srv"));
        QTest::newRow("another machine") << QUrl(QStringLiteral("file://server/srv"));
        QTest::newRow("empty") << QUrl();
        QTest::newRow("NUL") << QUrl::fromEncoded("file:///srv/a%00b");
    }

    void isNothingElsewhere()
    {
        QFETCH(const QUrl, url);
        QVERIFY(!folderPath(url));
    }

    void whatIsTypedIsAPathOrANameInTheFolder_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("path");
        const QString home = QDir::homePath();
        const auto row = [](const char *name, const char *text, const QString &path) {
            QTest::newRow(name) << QString::fromUtf8(text) << path;
        };
        row("name", "c.png", QStringLiteral("/srv/a#b/c.png"));
        row("hash and percent", "what?#1 100%41", QStringLiteral("/srv/a#b/what?#1 100%41"));
        row("folder below", "sub/c.png", QStringLiteral("/srv/a#b/sub/c.png"));
        row("from the root", "/tmp/x#1/c.png", QStringLiteral("/tmp/x#1/c.png"));
        row("from the home", "~/c%41.png", home + QStringLiteral("/c%41.png"));
        row("the home", "~", home);
        row("address", "file:///tmp/x/c.png", QStringLiteral("/tmp/x/c.png"));
        row("encoded address", "FILE://localhost/a%20b%231", QStringLiteral("/a b#1"));
        row("address with odd letters", "file:///a b#1?2/100%", QStringLiteral("/a b#1?2/100%"));
        row("address with a loose percent", "file:///tmp/50% of%20it",
            QStringLiteral("/tmp/50% of%20it"));
        row("address elsewhere", "file://server/c", QStringLiteral("/srv/a#b/file://server/c"));
        row("tilde in a name", "~c.png", QStringLiteral("/srv/a#b/~c.png"));
        row("a folder", "/tmp/x/", QStringLiteral("/tmp/x/"));
        row("folder above", "../c.png", QStringLiteral("/srv/a#b/../c.png"));
    }

    void whatIsTypedIsAPathOrANameInTheFolder()
    {
        QFETCH(const QString, text);
        QFETCH(const QString, path);
        const auto file = folderPath(typedFileUrl(QUrl::fromEncoded("file:///srv/a%23b"), text));
        QVERIFY(file);
        QCOMPARE(QString::fromStdString(file->string()), path);
    }

    void aPathKeepsEveryByteInItsAddress_data()
    {
        QTest::addColumn<QByteArray>("path");
        QTest::newRow("plain") << QByteArray("/srv/webshop");
        QTest::newRow("not UTF-8") << QByteArray("/srv/caf\xE9");
        QTest::newRow("letters of addresses") << QByteArray("/srv/what?#1 100%25");
        QTest::newRow("root") << QByteArray("/");
    }

    void aPathKeepsEveryByteInItsAddress()
    {
        QFETCH(const QByteArray, path);
        const auto found = folderPath(pathUrl(path.toStdString()));
        QVERIFY(found);
        QCOMPARE(QByteArray::fromStdString(found->string()), path);
    }

    void aFileInAFolderKeepsEveryByteAndLetter_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("plain") << QStringLiteral("figures.csv");
        QTest::newRow("hash and question mark") << QStringLiteral("what?#1.csv");
        QTest::newRow("percent") << QStringLiteral("100%41.csv");
        QTest::newRow("umlaut") << QStringLiteral("Büro.csv");
        QTest::newRow("blank") << QStringLiteral(" a b ");
    }

    void aFileInAFolderKeepsEveryByteAndLetter()
    {
        QFETCH(const QString, name);
        const QUrl url = fileUrl(QUrl::fromEncoded("file:///srv/caf%E9%231"), name);
        QCOMPARE(url.fileName(), name);
        const auto path = folderPath(url);
        QVERIFY(path);
        QVERIFY(path->parent_path() == "/srv/caf\xE9#1");
        QCOMPARE(QString::fromStdString(path->filename().string()), name);
    }

    void aFolderIsTold()
    {
        const TemporaryFolder folder;
        QVERIFY(isFolder(folder.path()));
        QVERIFY(!isFolder(folder.write("file", "")));
        QVERIFY(!isFolder(folder.path() / "missing"));
    }
};

const RegisteredTest<FolderUrlTest> registered("FolderUrl");

} // namespace Loadwick

#include "FolderUrlTest.moc"
