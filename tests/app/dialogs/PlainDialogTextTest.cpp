#include "dialogs/PlainDialogText.h"

#include <algorithm>
#include <filesystem>
#include <memory>

#include <QRegularExpression>
#include <QTcpServer>
#include <QTest>

#include "base/QtText.h"
#include "dialogs/DialogFolderChooser.h"
#include "export/DialogFileSaver.h"
#include "support/DialogWindow.h"
#include "support/TestRegistry.h"
#include "support/VisualItems.h"

namespace Loadwick {

/// Both dialogs over a folder whose folders and file have names that are markup, some of which ask
/// for a picture: from beside the page, and in each way that a name can spell it from a server. A
/// warning fails the test: Qt warns of a picture that it does not find.
class PlainDialogTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void everyNameInTheListIsShownToTheLetter_data();
    void everyNameInTheListIsShownToTheLetter();
    void everyNameInThePathIsShownToTheLetter_data();
    void everyNameInThePathIsShownToTheLetter();
    void thePathIsPlainFromTheFirst_data();
    void thePathIsPlainFromTheFirst();
    void aPathIsEditedAsPlainText();
    void aLineIsNamedAfterItsFolder();
    void otherPagesStayQtsOwn_data();
    void otherPagesStayQtsOwn();
    void styledPagesAreReplacedToo();
    void filesThatAreNoPagesStayQtsOwn();

private:
    [[nodiscard]] QStringList folderNames() const;
    [[nodiscard]] std::filesystem::path path(const QString &name) const;
    void dialogs();
    void open(const QString &dialog, const QString &folder);
    /// How many texts show just that, as plain text.
    [[nodiscard]] qsizetype plainTexts(const QString &text) const;
    [[nodiscard]] bool anyTextIsMarkup() const;

    QTcpServer m_server;
    std::unique_ptr<DialogWindow> m_window;
    std::unique_ptr<DialogFolderChooser> m_chooser;
    std::unique_ptr<DialogFileSaver> m_saver;
};

void PlainDialogTextTest::init()
{
    QVERIFY(m_server.listen(QHostAddress::LocalHost));
    m_window = std::make_unique<DialogWindow>();
    for (const QString &name : folderNames())
        std::filesystem::create_directories(path(name) / "<i>within<");
    m_window->folder().write("pic-<img src=shot.png>.csv", "figures");
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
}

void PlainDialogTextTest::cleanup()
{
    QVERIFY(!m_server.hasPendingConnections());
    m_server.close();
    m_saver.reset();
    m_chooser.reset();
    m_window.reset();
}

QStringList PlainDialogTextTest::folderNames() const
{
    const QString server = QStringLiteral("127.0.0.1:%1").arg(m_server.serverPort());
    return {QStringLiteral("beta-<b>bold<img src=shot.png width=200>x"),
            QStringLiteral("<img src=http:%1>").arg(server),
            QStringLiteral("<img src=\"http:\\\\%1\">").arg(server),
            QStringLiteral("<img src=http:&#47;&#47;%1>").arg(server),
            QStringLiteral("<img src=http:%2f%2f%1>").arg(server)};
}

std::filesystem::path PlainDialogTextTest::path(const QString &name) const
{
    return m_window->folder().path() / name.toStdString();
}

void PlainDialogTextTest::dialogs()
{
    QTest::addColumn<QString>("dialog");
    QTest::newRow("folder") << QStringLiteral("folder");
    QTest::newRow("file") << QStringLiteral("file");
}

void PlainDialogTextTest::open(const QString &dialog, const QString &folder)
{
    const QUrl start = QUrl::fromLocalFile(qtText(path(folder).string()));
    if (dialog == QLatin1String("folder")) {
        m_chooser = std::make_unique<DialogFolderChooser>(start);
        m_chooser->attach(m_window->engine(), m_window->window());
        m_chooser->open([](const std::filesystem::path &) {});
    } else {
        m_saver = std::make_unique<DialogFileSaver>(start);
        m_saver->attach(m_window->engine(), m_window->window());
        m_saver->open({.title = QStringLiteral("Save the data"),
                       .name = QStringLiteral("figures.csv"),
                       .filters = {QStringLiteral("Comma-separated values (*.csv)")}},
                      [](const FileSaver::Place &) {});
    }
    const QString line = folder.isEmpty() ? folderNames().first() : QStringLiteral("<i>within<");
    QTRY_VERIFY(m_window->find("fileName", line) != nullptr); // the list is filled late
    (void)m_window->window().grabWindow();
}

qsizetype PlainDialogTextTest::plainTexts(const QString &text) const
{
    const QList<QQuickItem *> items = shownItems(*m_window->window().contentItem());
    return std::count_if(items.begin(), items.end(), [&text](const QQuickItem *item) {
        return item->inherits("QQuickText") && item->property("text").toString() == text &&
               item->property("textFormat").toInt() == Qt::PlainText;
    });
}

bool PlainDialogTextTest::anyTextIsMarkup() const
{
    const QList<QQuickItem *> items = shownItems(*m_window->window().contentItem());
    return std::any_of(items.begin(), items.end(), [](const QQuickItem *item) {
        return item->inherits("QQuickText") &&
               item->property("text").toString().contains(QLatin1Char('<')) &&
               item->property("textFormat").toInt() != Qt::PlainText;
    });
}

void PlainDialogTextTest::everyNameInTheListIsShownToTheLetter_data()
{
    dialogs();
}

void PlainDialogTextTest::everyNameInTheListIsShownToTheLetter()
{
    QFETCH(const QString, dialog);
    open(dialog, {});
    for (const QString &name : folderNames())
        QTRY_COMPARE(plainTexts(name), 1);
    QCOMPARE(plainTexts(QStringLiteral("pic-<img src=shot.png>.csv")),
             dialog == QLatin1String("file") ? 1 : 0);
    QVERIFY(!anyTextIsMarkup());
    QTest::qWait(20); // for who would have been asked for a picture
}

void PlainDialogTextTest::everyNameInThePathIsShownToTheLetter_data()
{
    QTest::addColumn<QString>("dialog");
    QTest::addColumn<int>("folder");
    for (int folder = 0; folder < folderNames().size(); ++folder) {
        QTest::addRow("folder %d", folder) << QStringLiteral("folder") << folder;
        QTest::addRow("file %d", folder) << QStringLiteral("file") << folder;
    }
}

void PlainDialogTextTest::everyNameInThePathIsShownToTheLetter()
{
    QFETCH(const QString, dialog);
    QFETCH(const int, folder);
    const QString name = folderNames()[folder];
    open(dialog, {});
    m_window->doubleClick(m_window->find("fileName", name));
    QTRY_VERIFY(m_window->find("folderName", name) != nullptr);
    QVERIFY(plainTexts(name) > 0);
    QVERIFY(!anyTextIsMarkup());
}

void PlainDialogTextTest::thePathIsPlainFromTheFirst_data()
{
    dialogs();
}

void PlainDialogTextTest::thePathIsPlainFromTheFirst()
{
    QFETCH(const QString, dialog);
    open(dialog, folderNames().first());
    QCOMPARE(plainTexts(folderNames().first()), 1);
    QVERIFY(!anyTextIsMarkup());
}

void PlainDialogTextTest::aPathIsEditedAsPlainText()
{
    open(QStringLiteral("folder"), folderNames().first());
    m_window->press(Qt::Key_L, Qt::ControlModifier);
    const QQuickItem *field = m_window->window().activeFocusItem();
    QVERIFY(field != nullptr && field->inherits("QQuickTextInput")); // which knows no markup
    QVERIFY(field->property("text").toString().contains(QLatin1String("bold")));
    QVERIFY(!anyTextIsMarkup());
}

void PlainDialogTextTest::aLineIsNamedAfterItsFolder()
{
    open(QStringLiteral("folder"), {});
    const QQuickItem *named = m_window->findNamed(folderNames().first());
    QVERIFY(named != nullptr);
    QCOMPARE(named->property("fileName").toString(), folderNames().first());
}

void PlainDialogTextTest::otherPagesStayQtsOwn_data()
{
    QTest::addColumn<QString>("page");
    const QString dialogs =
        QStringLiteral("qrc:/qt-project.org/imports/QtQuick/Dialogs/quickimpl/");
    QTest::newRow("dialog") << dialogs + QLatin1String("qml/FolderDialog.qml");
    QTest::newRow("of another folder") << QStringLiteral("file:///srv/FolderBreadcrumbBar.qml");
    QTest::newRow("ours") << QStringLiteral("qrc:/qt/qml/Loadwick/Main.qml");
}

void PlainDialogTextTest::otherPagesStayQtsOwn()
{
    QFETCH(const QString, page);
    PlainDialogText::takeOver(m_window->engine());
    QCOMPARE(m_window->engine().interceptUrl(QUrl(page), QQmlAbstractUrlInterceptor::QmlFile),
             QUrl(page));
}

void PlainDialogTextTest::styledPagesAreReplacedToo()
{
    PlainDialogText::takeOver(m_window->engine());
    const QUrl page(QStringLiteral("qrc:/qt-project.org/imports/QtQuick/Dialogs/quickimpl/qml/"
                                   "+Fusion/FileDialogDelegate.qml"));
    QCOMPARE(m_window->engine().interceptUrl(page, QQmlAbstractUrlInterceptor::QmlFile).fileName(),
             QStringLiteral("PlainDialogLine.qml"));
}

void PlainDialogTextTest::filesThatAreNoPagesStayQtsOwn()
{
    PlainDialogText::takeOver(m_window->engine());
    const QUrl page(QStringLiteral("qrc:/qt-project.org/imports/QtQuick/Dialogs/quickimpl/qml/"
                                   "FileDialogDelegate.qml"));
    QCOMPARE(m_window->engine().interceptUrl(page, QQmlAbstractUrlInterceptor::UrlString), page);
}

const RegisteredTest<PlainDialogTextTest> registered("PlainDialogText");

} // namespace Loadwick

#include "PlainDialogTextTest.moc"
