#include "shell/PlainFolderDialog.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>

#include <QAccessible>
#include <QTest>

#include "shell/DialogFolderChooser.h"
#include "support/DialogWindow.h"
#include "support/TestRegistry.h"

namespace Loadwick {

/// Over a folder with the folders "bare" and "repository", of which the second has "docs" and
/// "src".
class PlainFolderDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theFolderThatIsShownIsChosenUnlessALineIsHighlighted();
    void aFolderWithoutFoldersIsChosenFromWithin_data();
    void aFolderWithoutFoldersIsChosenFromWithin();
    void aFolderWithFoldersIsChosenFromWithin_data();
    void aFolderWithFoldersIsChosenFromWithin();
    void aLineThatTheUserHighlightsIsChosen_data();
    void aLineThatTheUserHighlightsIsChosen();
    void aFolderIsChosenFromWithinAfterALineWasHighlightedAndLeft();
    void theFolderAboveIsChosenFromWithin();
    void aPathThatIsNotThereLeavesTheFolderThatIsShown();
    void theKeyboardIsOnTheListAfterThePathField_data();
    void theKeyboardIsOnTheListAfterThePathField();
    void nothingIsHighlightedWhenTheDialogOpensAgain();
    void theButtonSaysToScreenReadersWhatItChooses();

private:
    void open();
    /// By a double click, or by the path field.
    void enter(const char *way, const QString &name);
    void enterPath(const std::string &path);
    [[nodiscard]] QQuickItem *line(const char *name) const;
    [[nodiscard]] QQuickItem *button() const;
    [[nodiscard]] bool isHighlighted() const;
    [[nodiscard]] std::filesystem::path root() const { return m_window->folder().path(); }
    /// By the button.
    [[nodiscard]] std::filesystem::path choose();

    std::unique_ptr<DialogWindow> m_window;
    std::unique_ptr<DialogFolderChooser> m_chooser;
    std::optional<std::filesystem::path> m_chosen;
};

void PlainFolderDialogTest::init()
{
    m_window = std::make_unique<DialogWindow>();
    for (const char *folder : {"bare", "repository/docs", "repository/src"})
        std::filesystem::create_directories(root() / folder);
    m_chooser = std::make_unique<DialogFolderChooser>(m_window->folderUrl());
    m_chooser->attach(m_window->engine(), m_window->window());
    m_chosen.reset();
}

void PlainFolderDialogTest::cleanup()
{
    m_chooser.reset();
    m_window.reset();
}

void PlainFolderDialogTest::open()
{
    m_chooser->open([this](const std::filesystem::path &folder) { m_chosen = folder; });
    QTRY_VERIFY(line("repository") != nullptr); // the list is filled late
}

void PlainFolderDialogTest::enter(const char *way, const QString &name)
{
    if (QLatin1String(way) == QLatin1String("path"))
        return enterPath((root() / name.toStdString()).string());
    m_window->doubleClick(m_window->find("fileName", name));
    QTRY_VERIFY(m_window->find("fileName", name) == nullptr);
}

void PlainFolderDialogTest::enterPath(const std::string &path)
{
    m_window->press(Qt::Key_L, Qt::ControlModifier);
    m_window->type(QByteArray::fromStdString(path));
    m_window->press(Qt::Key_Return);
}

QQuickItem *PlainFolderDialogTest::line(const char *name) const
{
    return m_window->find("fileName", QString::fromLatin1(name));
}

QQuickItem *PlainFolderDialogTest::button() const
{
    return m_window->find("text", QStringLiteral("Choose"));
}

bool PlainFolderDialogTest::isHighlighted() const
{
    return m_window->find("highlighted", QStringLiteral("true")) != nullptr;
}

std::filesystem::path PlainFolderDialogTest::choose()
{
    m_window->click(button());
    return m_chosen.value_or("");
}

void PlainFolderDialogTest::theFolderThatIsShownIsChosenUnlessALineIsHighlighted()
{
    open();
    QVERIFY(!isHighlighted());
    QCOMPARE(choose(), root());
}

void PlainFolderDialogTest::aFolderWithoutFoldersIsChosenFromWithin_data()
{
    QTest::addColumn<QByteArray>("way");
    QTest::newRow("double click") << QByteArray("click");
    QTest::newRow("path") << QByteArray("path");
}

void PlainFolderDialogTest::aFolderWithoutFoldersIsChosenFromWithin()
{
    QFETCH(const QByteArray, way);
    open();
    enter(way.constData(), QStringLiteral("bare"));
    QTRY_VERIFY(line("repository") == nullptr);
    QVERIFY(button()->isEnabled());
    QCOMPARE(choose(), root() / "bare");
}

void PlainFolderDialogTest::aFolderWithFoldersIsChosenFromWithin_data()
{
    aFolderWithoutFoldersIsChosenFromWithin_data();
}

void PlainFolderDialogTest::aFolderWithFoldersIsChosenFromWithin()
{
    QFETCH(const QByteArray, way);
    open();
    enter(way.constData(), QStringLiteral("repository"));
    QTRY_VERIFY(line("src") != nullptr);
    QVERIFY(!isHighlighted());
    QVERIFY(button()->isEnabled());
    QCOMPARE(choose(), root() / "repository");
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
    open();
    enter("click", QStringLiteral("repository"));
    QTRY_VERIFY(line("src") != nullptr);
    if (steps == 0)
        m_window->click(line("src"));
    for (int step = 0; step < steps; ++step)
        m_window->press(Qt::Key_Down);
    QVERIFY(isHighlighted());
    QCOMPARE(choose(), root() / "repository" / (steps == 1 ? "docs" : "src"));
}

void PlainFolderDialogTest::aFolderIsChosenFromWithinAfterALineWasHighlightedAndLeft()
{
    open();
    m_window->press(Qt::Key_Down);
    m_window->press(Qt::Key_Down);
    QVERIFY(isHighlighted());
    m_window->press(Qt::Key_Return);
    QTRY_VERIFY(line("src") != nullptr);
    QVERIFY(!isHighlighted());
    QCOMPARE(choose(), root() / "repository");
}

void PlainFolderDialogTest::theFolderAboveIsChosenFromWithin()
{
    open();
    enter("click", QStringLiteral("repository"));
    m_window->click(m_window->findNamed(QStringLiteral("Folder above")));
    QTRY_VERIFY(line("repository") != nullptr);
    QVERIFY(!isHighlighted());
    QCOMPARE(choose(), root());
}

void PlainFolderDialogTest::aPathThatIsNotThereLeavesTheFolderThatIsShown()
{
    open();
    enterPath((root() / "nowhere").string());
    QVERIFY(line("repository") != nullptr);
    QCOMPARE(choose(), root());
}

void PlainFolderDialogTest::theKeyboardIsOnTheListAfterThePathField_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("return") << Qt::Key_Return;
    QTest::newRow("escape") << Qt::Key_Escape;
}

void PlainFolderDialogTest::theKeyboardIsOnTheListAfterThePathField()
{
    QFETCH(const Qt::Key, key);
    open();
    m_window->press(Qt::Key_L, Qt::ControlModifier);
    QVERIFY(!button()->isEnabled()); // it is not said yet which folder is meant
    m_window->press(key);
    QCOMPARE(m_window->focusedName(), QStringLiteral("folderDialogListView"));
    m_window->press(Qt::Key_Down);
    QCOMPARE(choose(), root() / "bare");
}

void PlainFolderDialogTest::nothingIsHighlightedWhenTheDialogOpensAgain()
{
    open();
    m_window->press(Qt::Key_Down);
    m_window->press(Qt::Key_Escape);
    QVERIFY(!m_chosen);
    open();
    QVERIFY(!isHighlighted());
    QCOMPARE(choose(), root());
}

void PlainFolderDialogTest::theButtonSaysToScreenReadersWhatItChooses()
{
    const auto said = [this] {
        return std::filesystem::path(QAccessible::queryAccessibleInterface(button())
                                         ->text(QAccessible::Description)
                                         .toStdString());
    };
    open();
    QCOMPARE(said(), root());
    m_window->press(Qt::Key_Down);
    QCOMPARE(said(), root() / "bare");
}

const RegisteredTest<PlainFolderDialogTest> registered("PlainFolderDialog");

} // namespace Loadwick

#include "PlainFolderDialogTest.moc"
