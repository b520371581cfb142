#include <filesystem>
#include <memory>
#include <string>

#include <QTest>

#include "support/FolderDialogWindow.h"
#include "support/TestRegistry.h"

namespace Loadwick {

/// What is typed into the path field of the folder dialog that Qt draws itself.
class PlainFolderPathTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_window.reset(); }
    void theFolderThatIsTypedIsChosen_data();
    void theFolderThatIsTypedIsChosen();
    void aPathThatIsNotThereLeavesTheFolderThatIsShown();
    void theKeyboardIsOnTheListAfterThePathField_data();
    void theKeyboardIsOnTheListAfterThePathField();

private:
    [[nodiscard]] std::filesystem::path root() const { return m_window->root(); }

    std::unique_ptr<FolderDialogWindow> m_window;
};

void PlainFolderPathTest::init()
{
    m_window = std::make_unique<FolderDialogWindow>();
    m_window->open();
}

void PlainFolderPathTest::theFolderThatIsTypedIsChosen_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("without folders") << QByteArray("bare");
    QTest::newRow("with folders") << QByteArray("repository");
}

void PlainFolderPathTest::theFolderThatIsTypedIsChosen()
{
    QFETCH(const QByteArray, name);
    m_window->enterPath((root() / name.toStdString()).string());
    QTRY_VERIFY(m_window->line("repository") == nullptr);
    QCOMPARE(m_window->highlighted(), QString());
    QVERIFY(m_window->button()->isEnabled());
    QCOMPARE(m_window->choose(), root() / name.toStdString());
}

void PlainFolderPathTest::aPathThatIsNotThereLeavesTheFolderThatIsShown()
{
    m_window->enterPath((root() / "nowhere").string());
    QVERIFY(m_window->line("repository") != nullptr);
    QCOMPARE(m_window->choose(), root());
}

void PlainFolderPathTest::theKeyboardIsOnTheListAfterThePathField_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("return") << Qt::Key_Return;
    QTest::newRow("escape") << Qt::Key_Escape;
}

void PlainFolderPathTest::theKeyboardIsOnTheListAfterThePathField()
{
    QFETCH(const Qt::Key, key);
    m_window->press(Qt::Key_L, Qt::ControlModifier);
    QVERIFY(!m_window->button()->isEnabled()); // it is not said yet which folder is meant
    m_window->press(key);
    QCOMPARE(m_window->focusedName(), QStringLiteral("folderDialogListView"));
    m_window->press(Qt::Key_Down);
    QCOMPARE(m_window->choose(), root() / "bare");
}

const RegisteredTest<PlainFolderPathTest> registered("PlainFolderPath");

} // namespace Loadwick

#include "PlainFolderPathTest.moc"
