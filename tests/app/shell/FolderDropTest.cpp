#include "shell/FolderDrop.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QTest>

#include "support/TestRegistry.h"
#include "support/WindowFixture.h"

namespace Loadwick {
namespace {

QUrl urlOf(const std::filesystem::path &path)
{
    return QUrl(QStringLiteral("file://") +
                QString::fromUtf8(QByteArray::fromStdString(path.string()).toPercentEncoding("/")));
}

} // namespace

class FolderDropTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_window = std::make_unique<WindowFixture>(); }
    void cleanup() { m_window.reset(); }

    void aDroppedFolderIsChosenAsIfByTheDialog()
    {
        m_window->loadwick().content().setPageIndex(2);
        QVERIFY(drop({urlOf(m_window->folder().path())}));
        m_window->finishScan();
        QVERIFY(isChosen(m_window->folder().path()));
        QCOMPARE(m_window->loadwick().content().pageIndex(), 0);
        QVERIFY(m_window->isPressable(QStringLiteral("Scan Again")));
        QCOMPARE(m_window->chooser().openCount, 0);
    }

    void aNameThatIsNotUtf8KeepsItsBytes()
    {
        const auto folder = m_window->folder().path() / "caf\xE9 #1?";
        std::filesystem::create_directory(folder);
        QVERIFY(drop({urlOf(folder)}));
        m_window->finishScan();
        QVERIFY(isChosen(folder));
    }

    void anythingButOneLocalFolderIsRefused_data()
    {
        QTest::addColumn<QList<QUrl>>("urls");
        const QUrl folder(QStringLiteral("file:///tmp"));
        QTest::newRow("nothing") << QList<QUrl>();
        QTest::newRow("two folders") << QList<QUrl>{folder, folder};
        QTest::newRow("an address") << QList<QUrl>{QUrl(QStringLiteral("https://localhost/tmp"))};
        QTest::newRow("of another machine") << QList<QUrl>{QUrl(QStringLiteral("file://far/tmp"))};
    }

    void anythingButOneLocalFolderIsRefused()
    {
        QFETCH(const QList<QUrl>, urls);
        QVERIFY(!drop(urls));
        m_window->finishScan();
        QVERIFY(!m_window->loadwick().content().hasRepository());
    }

    void aDroppedFileChangesNothing()
    {
        drop({urlOf(m_window->folder().write("CLAUDE.md", "Be brief.\n"))});
        m_window->finishScan();
        QVERIFY(!m_window->loadwick().content().hasRepository());
        drop({urlOf(m_window->folder().path() / "gone")});
        m_window->finishScan();
        QVERIFY(!m_window->loadwick().content().hasRepository());
    }

    void isRefusedWhileScanning()
    {
        const auto other = m_window->folder().path() / "other";
        std::filesystem::create_directory(other);
        m_window->choose(m_window->folder().path());
        m_window->press(Qt::Key_R, Qt::ControlModifier);
        QVERIFY(!drop({urlOf(other)}));
        m_window->finishScan();
        QVERIFY(isChosen(m_window->folder().path()));
    }

    // The folder is checked in the background.
    void aScanThatStartsMeanwhileKeepsItsFolder()
    {
        const auto other = m_window->folder().path() / "other";
        std::filesystem::create_directory(other);
        m_window->choose(m_window->folder().path());
        QVERIFY(drop({urlOf(other)}));
        m_window->press(Qt::Key_R, Qt::ControlModifier);
        m_window->finishScan();
        QVERIFY(isChosen(m_window->folder().path()));
    }

    void theWindowSaysThatItAcceptsTheFolder()
    {
        const auto says = [this] {
            return m_window->shows(QStringLiteral("Drop a folder here to choose it"));
        };
        QVERIFY(!says());
        QVERIFY(drag({urlOf(m_window->folder().path())}));
        QVERIFY(says());
        leave();
        QVERIFY(!says());
        QVERIFY(!drag({}));
        QVERIFY(!says());
    }

    void theWindowSaysWhyItRefusesAFile()
    {
        const auto says = [this] {
            return m_window->shows(QStringLiteral("Only a folder can be chosen."));
        };
        QVERIFY(drop({urlOf(m_window->folder().write("CLAUDE.md", "Be brief.\n"))}));
        m_window->finishScan();
        QTRY_VERIFY(says());
        QVERIFY(drop({urlOf(m_window->folder().path())}));
        QVERIFY(!says());
        m_window->finishScan();
        QVERIFY(isChosen(m_window->folder().path()));
        QVERIFY(!says());
    }

    void theWindowSaysWhyItRefusesADrag_data()
    {
        QTest::addColumn<QList<QUrl>>("urls");
        QTest::addColumn<bool>("scans");
        QTest::addColumn<QString>("words");
        const QUrl folder(QStringLiteral("file:///tmp"));
        const QUrl far(QStringLiteral("https://localhost/tmp"));
        const QString one = QStringLiteral("Only one folder can be chosen at a time.");
        const QString local = QStringLiteral("Only a folder of this computer can be chosen.");
        const QString later = QStringLiteral("A folder can be chosen when the scan has ended.");
        QTest::newRow("two folders") << QList<QUrl>{folder, folder} << false << one;
        QTest::newRow("an address") << QList<QUrl>{far} << false << local;
        QTest::newRow("while scanning") << QList<QUrl>{folder} << true << later;
    }

    void theWindowSaysWhyItRefusesADrag()
    {
        QFETCH(const QList<QUrl>, urls);
        QFETCH(const bool, scans);
        QFETCH(const QString, words);
        if (scans) {
            m_window->choose(m_window->folder().path());
            m_window->press(Qt::Key_R, Qt::ControlModifier);
        }
        QVERIFY(!drag(urls));
        QVERIFY(m_window->shows(words));
        if (scans)
            m_window->finishScan();
        leave();
        QVERIFY(drag({urlOf(m_window->folder().path())}));
        leave();
        QVERIFY(!m_window->shows(words));
    }

    void theRefusalDisappearsByItself()
    {
        const QString word = QStringLiteral("Only a folder can be chosen.");
        QVERIFY(drop({urlOf(m_window->folder().path() / "gone")}));
        m_window->finishScan();
        QTRY_VERIFY(m_window->shows(word));
        QTRY_VERIFY_WITH_TIMEOUT(!m_window->shows(word), 8'000);
    }

    void theWindowCanBeDestroyedBeforeTheFolderIsChecked()
    {
        QVERIFY(drop({urlOf(m_window->folder().path())}));
        m_window->destroy();
        m_window->finishScan();
    }

private:
    /// Whether the window would accept the dragged item over its middle.
    bool drag(const QList<QUrl> &urls)
    {
        m_dragged.setUrls(urls);
        QDragEnterEvent event(QPoint(590, 390), Qt::CopyAction, &m_dragged, Qt::LeftButton,
                              Qt::NoModifier);
        QCoreApplication::sendEvent(&m_window->loadwick().window(), &event);
        return event.isAccepted();
    }

    void leave()
    {
        QDragLeaveEvent event;
        QCoreApplication::sendEvent(&m_window->loadwick().window(), &event);
    }

    bool drop(const QList<QUrl> &urls)
    {
        if (!drag(urls))
            return false;
        QDropEvent event(QPointF(590, 390), Qt::CopyAction, &m_dragged, Qt::LeftButton,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(&m_window->loadwick().window(), &event);
        return event.isAccepted();
    }

    [[nodiscard]] bool isChosen(const std::filesystem::path &folder) const
    {
        const auto &selection = m_window->loadwick().model().selection().get();
        return selection && selection->url == folder;
    }

    QMimeData m_dragged;
    std::unique_ptr<WindowFixture> m_window;
};

const RegisteredTest<FolderDropTest> registered("FolderDrop");

} // namespace Loadwick

#include "FolderDropTest.moc"
