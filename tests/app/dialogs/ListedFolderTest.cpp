#include "dialogs/ListedFolder.h"

#include <memory>
#include <optional>

#include <QTest>

#include "export/DialogFileSaver.h"
#include "support/FolderDialogWindow.h"
#include "support/TestRegistry.h"

namespace Loadwick {

class ListedFolderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_window = std::make_unique<FolderDialogWindow>(); }
    void cleanup() { m_window.reset(); }
    void showsWhatIsInAFolderWhateverItsName_data() { names(); }
    void showsWhatIsInAFolderWhateverItsName();
    void showsWhatIsInAFolderThatIsTyped_data() { names(); }
    void showsWhatIsInAFolderThatIsTyped();
    void theSaveDialogShowsIt_data() { names(); }
    void theSaveDialogShowsIt();
    void leadsOnFromThere();
    void aFolderThatIsGoneHasNothingToShow_data() { waysIn(); }
    void aFolderThatIsGoneHasNothingToShow();
    void aFolderThatIsAFileByNowHasNothingToShow_data() { waysIn(); }
    void aFolderThatIsAFileByNowHasNothingToShow();

private:
    static void names();
    static void waysIn();
    /// By the way of the test's row, at once: the list has not heard of what happened.
    void enterBare();
    /// In the folder of the window, with the folder "inner" in it; the name of the test's row.
    /// Beside it are folders with "other" in them, for which the name could be mistaken.
    QByteArray make();

    std::unique_ptr<FolderDialogWindow> m_window;
};

void ListedFolderTest::names()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("mistaken");
    const auto add = [](const char *name, const char *mistaken) {
        QTest::newRow(name) << QByteArray(name) << QByteArray(mistaken);
    };
    add("c#", "c");
    add("a?b", "a");
    add("100%", "100");
    add("100%25", "100%");
    add("a%23b", "a#b");
    add("a%20b", "a b");
    add("a b", "a");
    add("a:b", "b");
    add("~", "a");
}

QByteArray ListedFolderTest::make()
{
    QFETCH(const QByteArray, name);
    QFETCH(const QByteArray, mistaken);
    std::filesystem::create_directories(m_window->root() / name.toStdString() / "inner");
    std::filesystem::create_directories(m_window->root() / mistaken.toStdString() / "other");
    return name;
}

void ListedFolderTest::showsWhatIsInAFolderWhateverItsName()
{
    const QByteArray name = make();
    m_window->open();
    QQuickItem *line = nullptr;
    QTRY_VERIFY((line = m_window->find("fileName", QString::fromUtf8(name))) != nullptr);
    m_window->doubleClick(line);
    QTRY_VERIFY(m_window->line("inner") != nullptr);
    QVERIFY(m_window->line("other") == nullptr);
    QCOMPARE(m_window->choose(), m_window->root() / name.toStdString());
}

void ListedFolderTest::showsWhatIsInAFolderThatIsTyped()
{
    const QByteArray name = make();
    m_window->open();
    m_window->enterPath("./" + name.toStdString());
    QTRY_VERIFY(m_window->line("inner") != nullptr);
    QVERIFY(m_window->line("other") == nullptr);
    m_window->press(Qt::Key_Down);
    QCOMPARE(m_window->choose(), m_window->root() / name.toStdString() / "inner");
}

void ListedFolderTest::theSaveDialogShowsIt()
{
    const std::filesystem::path folder = m_window->root() / make().toStdString();
    DialogFileSaver saver(QUrl::fromLocalFile(QString::fromStdString(folder.string())));
    saver.attach(m_window->engine(), m_window->window());
    std::filesystem::path saved;
    saver.open({.title = QStringLiteral("Save the data"),
                .name = QStringLiteral("figures.csv"),
                .filters = {QStringLiteral("Comma-separated values (*.csv)")}},
               [&saved](const FileSaver::Place &place) { saved = place.file; });
    QTRY_VERIFY(m_window->line("inner") != nullptr);
    QVERIFY(m_window->line("other") == nullptr);
    m_window->press(Qt::Key_Return);
    QCOMPARE(saved, folder / "figures.csv");
}

void ListedFolderTest::leadsOnFromThere()
{
    std::filesystem::create_directories(m_window->root() / "c#" / "d#" / "e");
    m_window->open();
    for (const char *name : {"c#", "d#"}) {
        QTRY_VERIFY(m_window->line(name) != nullptr);
        m_window->doubleClick(m_window->line(name));
    }
    QTRY_VERIFY(m_window->line("e") != nullptr);
    m_window->click(m_window->findNamed(QStringLiteral("Folder above")));
    QTRY_VERIFY(m_window->line("d#") != nullptr);
    m_window->click(m_window->findNamed(QStringLiteral("Folder above")));
    QTRY_VERIFY(m_window->line("repository") != nullptr);
}

void ListedFolderTest::waysIn()
{
    QTest::addColumn<std::optional<Qt::Key>>("key");
    QTest::newRow("double click") << std::optional<Qt::Key>();
    QTest::newRow("return") << std::optional(Qt::Key_Return);
    QTest::newRow("enter") << std::optional(Qt::Key_Enter);
    QTest::newRow("space") << std::optional(Qt::Key_Space);
}

void ListedFolderTest::enterBare()
{
    QFETCH(const std::optional<Qt::Key>, key);
    if (key)
        m_window->press(*key);
    else
        m_window->doubleClick(m_window->line("bare"));
}

void ListedFolderTest::aFolderThatIsGoneHasNothingToShow()
{
    m_window->open();
    m_window->press(Qt::Key_Down);
    std::filesystem::remove(m_window->root() / "bare");
    enterBare();
    QTRY_VERIFY(m_window->findNamed(QStringLiteral("No folders to show")) != nullptr);
}

void ListedFolderTest::aFolderThatIsAFileByNowHasNothingToShow()
{
    m_window->open();
    m_window->press(Qt::Key_Down);
    std::filesystem::remove(m_window->root() / "bare");
    m_window->folder().write("bare", "");
    enterBare();
    QTRY_VERIFY(m_window->findNamed(QStringLiteral("No folders to show")) != nullptr);
}

const RegisteredTest<ListedFolderTest> registered("ListedFolder");

} // namespace Loadwick

#include "ListedFolderTest.moc"
