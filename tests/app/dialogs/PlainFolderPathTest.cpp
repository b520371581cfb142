#include "dialogs/PlainFolderPath.h"

#include <filesystem>
#include <memory>

#include <QAccessible>
#include <QCoreApplication>
#include <QKeyEvent>
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
    void cleanup();
    void theFolderThatIsTypedIsChosen_data();
    void theFolderThatIsTypedIsChosen();
    void theFolderAboveTheShownOneIsTypedAsTwoDots();
    void whatIsNoFolderIsNotTaken_data();
    void whatIsNoFolderIsNotTaken();
    void aMistakeIsMended();
    void aMistakeIsForgottenWithItsField();
    void whatIsTypedOnIsNotTakenForWhatWasEntered();
    void theKeyboardIsOnTheListAfterThePathField_data();
    void theKeyboardIsOnTheListAfterThePathField();

private:
    /// "$" stands for the path of the folder that is shown at first.
    [[nodiscard]] QByteArray whole(QByteArray text) const { return text.replace('$', root()); }
    void enter(const QByteArray &text) { m_window->enterPath(whole(text).toStdString()); }
    [[nodiscard]] QByteArray root() const { return m_window->root().c_str(); }
    /// Null while it does not show.
    [[nodiscard]] QQuickItem *field() const { return m_window->findNamed(QStringLiteral("Path")); }
    [[nodiscard]] QString objection() const;
    [[nodiscard]] QByteArray choose() { return m_window->choose().c_str(); }

    QByteArray m_home;
    std::unique_ptr<FolderDialogWindow> m_window;
};

void PlainFolderPathTest::init()
{
    m_window = std::make_unique<FolderDialogWindow>();
    std::filesystem::create_directory(m_window->root() / "z#z");
    std::filesystem::create_directory_symlink("repository", m_window->root() / "link");
    m_window->folder().write("file.txt", "");
    m_home = qgetenv("HOME");
    qputenv("HOME", root());
    m_window->open();
}

void PlainFolderPathTest::cleanup()
{
    qputenv("HOME", m_home);
    m_window.reset();
}

QString PlainFolderPathTest::objection() const
{
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(field());
    return accessible == nullptr ? QString() : accessible->text(QAccessible::Description);
}

void PlainFolderPathTest::theFolderThatIsTypedIsChosen_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("folder");
    const auto row = [](const char *name, const char *text, const char *folder) {
        QTest::newRow(name) << QByteArray(text) << QByteArray(folder);
    };
    row("without folders", "$/bare", "/bare");
    row("with folders", "$/repository", "/repository");
    row("with a slash", "$/repository/", "/repository");
    row("the shown one", "$", "");
    row("nothing", "", "");
    row("the home", "~", "");
    row("from the home", "~/repository", "/repository");
    row("below the shown one", "repository/src", "/repository/src");
    row("hash", "z#z", "/z#z");
    row("address", "file://$/z%23z", "/z#z");
    row("a link", "link", "/link");
    row("itself", "repository/.", "/repository");
    row("up and down", "bare/../repository", "/repository");
    row("several slashes", "repository//src", "/repository/src");
}

void PlainFolderPathTest::theFolderThatIsTypedIsChosen()
{
    QFETCH(const QByteArray, text);
    QFETCH(const QByteArray, folder);
    m_window->press(Qt::Key_Down); // which is no longer meant
    enter(text);
    QTRY_VERIFY(field() == nullptr);
    QCOMPARE(m_window->highlighted(), QString());
    QVERIFY(m_window->button()->isEnabled());
    QCOMPARE(choose(), root() + folder);
}

void PlainFolderPathTest::theFolderAboveTheShownOneIsTypedAsTwoDots()
{
    enter("repository");
    QTRY_VERIFY(m_window->line("src") != nullptr);
    enter("..");
    QTRY_VERIFY(m_window->line("repository") != nullptr);
    QCOMPARE(choose(), root());
}

void PlainFolderPathTest::whatIsNoFolderIsNotTaken_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("not there") << QByteArray("$/nowhere");
    QTest::newRow("not there in the shown one") << QByteArray("nowhere");
    QTest::newRow("a file") << QByteArray("$/file.txt");
    QTest::newRow("below a file") << QByteArray("file.txt/sub");
    QTest::newRow("somebody else's home") << QByteArray("~nobody");
    QTest::newRow("of another machine") << QByteArray("file://server/srv");
}

void PlainFolderPathTest::whatIsNoFolderIsNotTaken()
{
    QFETCH(const QByteArray, text);
    enter(text);
    QTRY_COMPARE(objection(), QStringLiteral("There is no such folder."));
    QCOMPARE(field()->property("text").toByteArray(), whole(text));
    QVERIFY(field()->hasActiveFocus());
    QVERIFY(!m_window->button()->isEnabled());
    QVERIFY(choose().isEmpty());
}

void PlainFolderPathTest::aMistakeIsMended()
{
    enter("webshop");
    QTRY_VERIFY(!objection().isEmpty());
    m_window->type("bar");
    QCOMPARE(objection(), QString());
    QTest::keyClick(&m_window->window(), 'e');
    m_window->press(Qt::Key_Return);
    QTRY_VERIFY(field() == nullptr);
    QCOMPARE(choose(), root() + "/bare");
}

void PlainFolderPathTest::aMistakeIsForgottenWithItsField()
{
    enter("nowhere");
    QTRY_VERIFY(!objection().isEmpty());
    m_window->press(Qt::Key_Escape);
    QVERIFY(field() == nullptr);
    m_window->press(Qt::Key_L, Qt::ControlModifier);
    QCOMPARE(objection(), QString());
    m_window->press(Qt::Key_Escape);
    QCOMPARE(choose(), root());
}

void PlainFolderPathTest::whatIsTypedOnIsNotTakenForWhatWasEntered()
{
    m_window->press(Qt::Key_L, Qt::ControlModifier);
    m_window->type("bare");
    // Without the answer's turn in between.
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QKeyEvent letter(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, QStringLiteral("x"));
    QCoreApplication::sendEvent(&m_window->window(), &enter);
    QCoreApplication::sendEvent(&m_window->window(), &letter);
    QTest::qWait(50); // for the answer about what was entered
    QVERIFY(field() != nullptr);
    QCOMPARE(field()->property("text").toString(), QStringLiteral("barex"));
    QVERIFY(m_window->line("repository") != nullptr);
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
    QCOMPARE(choose(), root() + "/bare");
}

const RegisteredTest<PlainFolderPathTest> registered("PlainFolderPath");

} // namespace Loadwick

#include "PlainFolderPathTest.moc"
