#include "dialogs/PlainSaveDialog.h"

#include <filesystem>
#include <memory>
#include <optional>

#include <QTest>

#include "export/DialogFileSaver.h"
#include "support/DialogWindow.h"
#include "support/TestRegistry.h"

namespace Loadwick {

/// Over a folder with the file "old.csv" and the folder "sub", which has "within" and "other.csv".
class PlainSaveDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theSuggestedNameStaysInAnotherFolder_data();
    void theSuggestedNameStaysInAnotherFolder();
    void aTypedNameStaysInAnotherFolder();
    void aTypedNameStaysInTheFolderAbove();
    void theNameOfAFileInTheListStays();
    void theNameOfAFolderInTheListDoesNotStay();
    void onlyTheNameOfATypedPathStays();
    void noNameStaysNoName();
    void afterAFolderThatWasTypedTheSuggestedNameIsThere();
    void theNextOpeningSuggestsItsOwnName();
    void theEndingFollowsTheKindThatIsChosen_data();
    void theEndingFollowsTheKindThatIsChosen();

private:
    void open(const QString &name = QStringLiteral("figures.csv"));
    void enter(const char *folder);
    void type(const char *name);
    [[nodiscard]] QQuickItem *line(const char *name) const;
    [[nodiscard]] QQuickItem *button() const;
    /// What stands in the field.
    [[nodiscard]] QString name() const;
    [[nodiscard]] std::filesystem::path root() const { return m_window->folder().path(); }
    /// By the button.
    [[nodiscard]] std::filesystem::path save();

    std::unique_ptr<DialogWindow> m_window;
    std::unique_ptr<DialogFileSaver> m_saver;
    std::optional<FileSaver::Place> m_place;
    QStringList m_kinds;
};

void PlainSaveDialogTest::init()
{
    m_window = std::make_unique<DialogWindow>();
    std::filesystem::create_directories(root() / "sub" / "within");
    m_window->folder().write("old.csv", "");
    m_window->folder().write("sub/other.csv", "");
    m_saver = std::make_unique<DialogFileSaver>(m_window->folderUrl());
    m_saver->attach(m_window->engine(), m_window->window());
    m_window->folder().write("drawn.svg", "");
    m_window->folder().write("old.png", "");
    m_kinds = {QStringLiteral("Comma-separated values (*.csv)")};
    m_place.reset();
}

void PlainSaveDialogTest::cleanup()
{
    m_saver.reset();
    m_window.reset();
}

void PlainSaveDialogTest::open(const QString &name)
{
    m_saver->open({.title = QStringLiteral("Save the data"), .name = name, .filters = m_kinds},
                  [this](const FileSaver::Place &place) { m_place = place; });
    QTRY_COMPARE(m_window->focusedName(), QStringLiteral("fileNameTextField"));
    QTRY_VERIFY(line("sub") != nullptr || line("within") != nullptr); // the list is filled late
}

void PlainSaveDialogTest::enter(const char *folder)
{
    m_window->doubleClick(line(folder));
    QTRY_VERIFY(line(folder) == nullptr);
}

void PlainSaveDialogTest::type(const char *name)
{
    m_window->click(m_window->find("objectName", QStringLiteral("fileNameTextField")));
    m_window->type(name);
}

QQuickItem *PlainSaveDialogTest::line(const char *name) const
{
    return m_window->find("fileName", QString::fromLatin1(name));
}

QQuickItem *PlainSaveDialogTest::button() const
{
    return m_window->find("text", QStringLiteral("Save"));
}

QString PlainSaveDialogTest::name() const
{
    const auto *field = m_window->find("objectName", QStringLiteral("fileNameTextField"));
    return field->property("text").toString();
}

std::filesystem::path PlainSaveDialogTest::save()
{
    m_window->click(button());
    return m_place ? m_place->file : std::filesystem::path();
}

void PlainSaveDialogTest::theSuggestedNameStaysInAnotherFolder_data()
{
    QTest::addColumn<int>("depth");
    QTest::newRow("one below") << 1;
    QTest::newRow("two below") << 2;
}

void PlainSaveDialogTest::theSuggestedNameStaysInAnotherFolder()
{
    QFETCH(const int, depth);
    open();
    enter("sub");
    if (depth == 2) {
        QTRY_VERIFY(line("within") != nullptr);
        enter("within");
    }
    QCOMPARE(name(), QStringLiteral("figures.csv"));
    QVERIFY(button()->isEnabled());
    QCOMPARE(save(), root() / (depth == 2 ? "sub/within" : "sub") / "figures.csv");
}

void PlainSaveDialogTest::aTypedNameStaysInAnotherFolder()
{
    open();
    type("what #1.csv");
    enter("sub");
    QCOMPARE(name(), QStringLiteral("what #1.csv"));
    QCOMPARE(save(), root() / "sub" / "what #1.csv");
}

void PlainSaveDialogTest::aTypedNameStaysInTheFolderAbove()
{
    open();
    enter("sub");
    type("mine.csv");
    m_window->click(m_window->findNamed(QStringLiteral("Folder above")));
    QTRY_VERIFY(line("old.csv") != nullptr);
    QCOMPARE(name(), QStringLiteral("mine.csv"));
    QCOMPARE(save(), root() / "mine.csv");
}

void PlainSaveDialogTest::theNameOfAFileInTheListStays()
{
    open();
    m_window->click(line("old.csv"));
    QCOMPARE(name(), QStringLiteral("old.csv"));
    enter("sub");
    QCOMPARE(save(), root() / "sub" / "old.csv");
}

void PlainSaveDialogTest::theNameOfAFolderInTheListDoesNotStay()
{
    open();
    m_window->click(line("sub"));
    enter("sub");
    QCOMPARE(save(), root() / "sub" / "figures.csv");
}

void PlainSaveDialogTest::onlyTheNameOfATypedPathStays()
{
    open();
    type("nowhere/mine.csv");
    enter("sub");
    QCOMPARE(name(), QStringLiteral("mine.csv"));
    QCOMPARE(save(), root() / "sub" / "mine.csv");
}

void PlainSaveDialogTest::noNameStaysNoName()
{
    open();
    type("");
    enter("sub");
    QVERIFY(name().isEmpty());
    QVERIFY(!button()->isEnabled());
}

void PlainSaveDialogTest::afterAFolderThatWasTypedTheSuggestedNameIsThere()
{
    open();
    type("sub");
    m_window->press(Qt::Key_Return);
    QTRY_VERIFY(line("within") != nullptr);
    QVERIFY(!m_place);
    QCOMPARE(name(), QStringLiteral("figures.csv"));
    QCOMPARE(save(), root() / "sub" / "figures.csv");
}

void PlainSaveDialogTest::theNextOpeningSuggestsItsOwnName()
{
    open();
    type("mine.csv");
    enter("sub");
    m_window->press(Qt::Key_Escape);
    open(QStringLiteral("next.csv"));
    QCOMPARE(name(), QStringLiteral("next.csv"));
    m_window->click(m_window->findNamed(QStringLiteral("Folder above")));
    QTRY_VERIFY(line("old.csv") != nullptr);
    QCOMPARE(name(), QStringLiteral("next.csv"));
}

void PlainSaveDialogTest::theEndingFollowsTheKindThatIsChosen_data()
{
    QTest::addColumn<QByteArray>("typed");
    QTest::addColumn<QString>("expected");
    QTest::newRow("as suggested") << QByteArray() << QStringLiteral("chart.svg");
    QTest::newRow("of that kind") << QByteArray("mine.svg") << QStringLiteral("mine.svg");
    QTest::newRow("of the other") << QByteArray("mine.PNG") << QStringLiteral("mine.svg");
    QTest::newRow("of none") << QByteArray("notes v1.2") << QStringLiteral("notes v1.2");
    QTest::newRow("of a line") << QByteArray("the line") << QStringLiteral("old.svg");
    QTest::newRow("a path") << QByteArray("sub/mine.png") << QStringLiteral("sub/mine.png");
}

void PlainSaveDialogTest::theEndingFollowsTheKindThatIsChosen()
{
    QFETCH(const QByteArray, typed);
    QFETCH(const QString, expected);
    m_kinds = {QStringLiteral("Picture (*.png)"), QStringLiteral("SVG drawing (*.svg)")};
    open(QStringLiteral("chart.png"));
    if (typed == "the line")
        m_window->click(line("old.png"));
    else if (!typed.isEmpty())
        type(typed.constData());
    m_window->find("displayText", m_kinds.first())->forceActiveFocus();
    m_window->press(Qt::Key_Down);
    QTRY_VERIFY(line("drawn.svg") != nullptr);
    QCOMPARE(name(), expected);
}

const RegisteredTest<PlainSaveDialogTest> registered("PlainSaveDialog");

} // namespace Loadwick

#include "PlainSaveDialogTest.moc"
