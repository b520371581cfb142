#include "dialogs/PlainFolderDialog.h"

#include <filesystem>
#include <memory>

#include <QAccessible>
#include <QTest>

#include "support/FolderDialogWindow.h"
#include "support/TestRegistry.h"

namespace Loadwick {

class PlainFolderDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_window = std::make_unique<FolderDialogWindow>(); }
    void cleanup() { m_window.reset(); }
    void theFolderThatIsShownIsChosenUnlessALineIsHighlighted();
    void aFolderWithoutFoldersIsChosenFromWithin();
    void aFolderWithFoldersIsChosenFromWithin();
    void aLineThatTheUserHighlightsIsChosen_data();
    void aLineThatTheUserHighlightsIsChosen();
    void aFolderIsChosenFromWithinAfterALineWasHighlightedAndLeft();
    void theFolderAboveIsChosenFromWithin();
    void nothingIsHighlightedWhenTheDialogOpensAgain();
    void whatIsHighlightedStaysSoWhenFoldersComeAndGo_data();
    void whatIsHighlightedStaysSoWhenFoldersComeAndGo();
    void theArrowsGoOnFromThereWhenAFolderHasCome();
    void theFolderThatIsShownIsChosenOnceTheHighlightedOneIsGone();
    void nothingIsHighlightedWhenAFolderComes();
    void theFirstFolderToComeIsNotHighlighted();
    void theButtonSaysToScreenReadersWhatItChooses();

private:
    void enter(const char *name);
    [[nodiscard]] std::filesystem::path root() const { return m_window->root(); }
    [[nodiscard]] QString said() const;

    std::unique_ptr<FolderDialogWindow> m_window;
};

void PlainFolderDialogTest::enter(const char *name)
{
    m_window->doubleClick(m_window->line(name));
    QTRY_VERIFY(m_window->line(name) == nullptr);
}

QString PlainFolderDialogTest::said() const
{
    return QAccessible::queryAccessibleInterface(m_window->button())
        ->text(QAccessible::Description);
}

void PlainFolderDialogTest::theFolderThatIsShownIsChosenUnlessALineIsHighlighted()
{
    m_window->open();
    QCOMPARE(m_window->highlighted(), QString());
    QCOMPARE(m_window->choose(), root());
}

void PlainFolderDialogTest::aFolderWithoutFoldersIsChosenFromWithin()
{
    m_window->open();
    enter("bare");
    QVERIFY(m_window->button()->isEnabled());
    QCOMPARE(m_window->choose(), root() / "bare");
}

void PlainFolderDialogTest::aFolderWithFoldersIsChosenFromWithin()
{
    m_window->open();
    enter("repository");
    QTRY_VERIFY(m_window->line("src") != nullptr);
    QCOMPARE(m_window->highlighted(), QString());
    QVERIFY(m_window->button()->isEnabled());
    QCOMPARE(m_window->choose(), root() / "repository");
}

void PlainFolderDialogTest::aLineThatTheUserHighlightsIsChosen_data()
{
    QTest::addColumn<int>("steps");
    QTest::newRow("click") << 0;
    QTest::newRow("down") << 1;
    QTest::newRow("down twice") << 2;
}

void PlainFolderDialogTest::aLineThatTheUserHighlightsIsChosen()
{
    QFETCH(const int, steps);
    m_window->open();
    enter("repository");
    QTRY_VERIFY(m_window->line("src") != nullptr);
    if (steps == 0)
        m_window->click(m_window->line("src"));
    for (int step = 0; step < steps; ++step)
        m_window->press(Qt::Key_Down);
    const char *name = steps == 1 ? "docs" : "src";
    QCOMPARE(m_window->highlighted(), QString::fromLatin1(name));
    QCOMPARE(m_window->choose(), root() / "repository" / name);
}

void PlainFolderDialogTest::aFolderIsChosenFromWithinAfterALineWasHighlightedAndLeft()
{
    m_window->open();
    m_window->press(Qt::Key_Down);
    m_window->press(Qt::Key_Down);
    QCOMPARE(m_window->highlighted(), QStringLiteral("repository"));
    m_window->press(Qt::Key_Return);
    QTRY_VERIFY(m_window->line("src") != nullptr);
    QCOMPARE(m_window->highlighted(), QString());
    QCOMPARE(m_window->choose(), root() / "repository");
}

void PlainFolderDialogTest::theFolderAboveIsChosenFromWithin()
{
    m_window->open();
    enter("repository");
    m_window->click(m_window->findNamed(QStringLiteral("Folder above")));
    QTRY_VERIFY(m_window->line("repository") != nullptr);
    QCOMPARE(m_window->highlighted(), QString());
    QCOMPARE(m_window->choose(), root());
}

void PlainFolderDialogTest::nothingIsHighlightedWhenTheDialogOpensAgain()
{
    m_window->open();
    m_window->press(Qt::Key_Down);
    m_window->press(Qt::Key_Escape);
    QVERIFY(!m_window->chosen());
    m_window->open();
    QCOMPARE(m_window->highlighted(), QString());
    QCOMPARE(m_window->choose(), root());
}

void PlainFolderDialogTest::whatIsHighlightedStaysSoWhenFoldersComeAndGo_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("before it") << QByteArray("aaa");
    QTest::newRow("behind it") << QByteArray("zz");
}

void PlainFolderDialogTest::whatIsHighlightedStaysSoWhenFoldersComeAndGo()
{
    QFETCH(const QByteArray, name);
    m_window->open();
    m_window->click(m_window->line("repository"));
    std::filesystem::create_directory(root() / name.toStdString());
    QTRY_VERIFY(m_window->line(name.constData()) != nullptr);
    QTRY_COMPARE(m_window->highlighted(), QStringLiteral("repository"));
    std::filesystem::remove(root() / "bare");
    QTRY_VERIFY(m_window->line("bare") == nullptr);
    QTRY_COMPARE(m_window->highlighted(), QStringLiteral("repository"));
    QCOMPARE(m_window->choose(), root() / "repository");
}

void PlainFolderDialogTest::theArrowsGoOnFromThereWhenAFolderHasCome()
{
    m_window->open();
    m_window->press(Qt::Key_Down);
    std::filesystem::create_directory(root() / "aaa");
    QTRY_VERIFY(m_window->line("aaa") != nullptr);
    m_window->press(Qt::Key_Down);
    QTRY_COMPARE(m_window->highlighted(), QStringLiteral("repository"));
    QCOMPARE(m_window->choose(), root() / "repository");
}

void PlainFolderDialogTest::theFolderThatIsShownIsChosenOnceTheHighlightedOneIsGone()
{
    m_window->open();
    m_window->click(m_window->line("bare"));
    std::filesystem::rename(root() / "bare", root() / "barn");
    QTRY_VERIFY(m_window->line("barn") != nullptr);
    QTRY_COMPARE(m_window->highlighted(), QString());
    QCOMPARE(said(), QString::fromStdString(root().string()));
    QCOMPARE(m_window->choose(), root());
}

void PlainFolderDialogTest::nothingIsHighlightedWhenAFolderComes()
{
    m_window->open();
    std::filesystem::create_directory(root() / "aaa");
    QTRY_VERIFY(m_window->line("aaa") != nullptr);
    QTRY_COMPARE(m_window->highlighted(), QString());
    QCOMPARE(m_window->choose(), root());
}

void PlainFolderDialogTest::theFirstFolderToComeIsNotHighlighted()
{
    m_window->open();
    enter("bare");
    std::filesystem::create_directory(root() / "bare" / "first");
    QTRY_VERIFY(m_window->line("first") != nullptr);
    QTRY_COMPARE(m_window->highlighted(), QString());
    QCOMPARE(m_window->choose(), root() / "bare");
}

void PlainFolderDialogTest::theButtonSaysToScreenReadersWhatItChooses()
{
    m_window->open();
    QCOMPARE(said(), QString::fromStdString(root().string()));
    m_window->press(Qt::Key_Down);
    QCOMPARE(said(), QString::fromStdString((root() / "bare").string()));
}

const RegisteredTest<PlainFolderDialogTest> registered("PlainFolderDialog");

} // namespace Loadwick

#include "PlainFolderDialogTest.moc"
