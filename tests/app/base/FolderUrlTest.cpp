#include "base/FolderUrl.h"

#include <string>

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

    void rejectsOtherUrls_data()
    {
        QTest::addColumn<QUrl>("url");
        QTest::newRow("the web") << QUrl(QStringLiteral("https://example.org/srv"));
        QTest::newRow("another machine") << QUrl(QStringLiteral("file://server/srv"));
        QTest::newRow("empty") << QUrl();
        QTest::newRow("NUL") << QUrl::fromEncoded("file:///srv/a%00b");
    }

    void rejectsOtherUrls()
    {
        QFETCH(const QUrl, url);
        QVERIFY(!folderPath(url));
    }

    void detectsAFolder()
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
