#include "dialogs/PlainDialog.h"

#include <filesystem>
#include <memory>
#include <optional>

#include <QQmlComponent>
#include <QTest>

#include "export/DialogFileSaver.h"
#include "support/DialogWindow.h"
#include "support/TestRegistry.h"

namespace Loadwick {

/// What is typed in place of a name, in the save dialog that Qt draws itself. It shows a folder
/// with the folder "sub", which is also the home.
class PlainDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aPathThatIsTypedIsSavedThere_data();
    void aPathThatIsTypedIsSavedThere();
    void theButtonSavesThereToo();
    void aLineThatIsPressedTakesThePlaceOfThePath();
    void aPathIsChangedInItsMiddle();
    void aFileThatIsThereIsNotReplacedByItsPath();
    void aFolderThatIsTypedIsShownAndNotSaved_data();
    void aFolderThatIsTypedIsShownAndNotSaved();
    void aTildeShowsTheHomeFolder();
    void aFolderThatIsNotThereIsNoName();
    void aPathLeavesTheFolderThatIsShown();
    void aPressBesideItLeavesItOpen();
    void whatIsBehindItIsOutOfReach();

private:
    void open();
    void type(const char *text);
    [[nodiscard]] std::filesystem::path root() const { return m_window->folder().path(); }
    /// By Enter in the name.
    [[nodiscard]] std::filesystem::path save();

    QByteArray m_home;
    std::unique_ptr<DialogWindow> m_window;
    std::unique_ptr<DialogFileSaver> m_saver;
    std::optional<FileSaver::Place> m_place;
};

void PlainDialogTest::init()
{
    m_window = std::make_unique<DialogWindow>();
    std::filesystem::create_directory(root() / "sub");
    m_home = qgetenv("HOME");
    qputenv("HOME", root().c_str());
    m_saver = std::make_unique<DialogFileSaver>(m_window->folderUrl());
    m_saver->attach(m_window->engine(), m_window->window());
    m_place.reset();
}

void PlainDialogTest::cleanup()
{
    qputenv("HOME", m_home);
    m_saver.reset();
    m_window.reset();
}

void PlainDialogTest::open()
{
    m_saver->open({.title = QStringLiteral("Save the chart"),
                   .name = QStringLiteral("trend.png"),
                   .filters = {QStringLiteral("PNG picture (*.png)")}},
                  [this](const FileSaver::Place &place) { m_place = place; });
    QTRY_COMPARE(m_window->focusedName(), QStringLiteral("fileNameTextField"));
}

/// "%" stands for the path of the folder.
void PlainDialogTest::type(const char *text)
{
    m_window->type(QByteArray(text).replace("%", root().c_str()));
}

std::filesystem::path PlainDialogTest::save()
{
    m_window->press(Qt::Key_Return);
    return m_place ? m_place->file : std::filesystem::path();
}

void PlainDialogTest::aPathThatIsTypedIsSavedThere_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("from the root") << QByteArray("%/sub/c.png") << QByteArray("sub/c.png");
    QTest::newRow("from the home") << QByteArray("~/sub/c.png") << QByteArray("sub/c.png");
    QTest::newRow("below the folder") << QByteArray("sub/c.png") << QByteArray("sub/c.png");
    QTest::newRow("address") << QByteArray("file://%/sub/c.png") << QByteArray("sub/c.png");
    QTest::newRow("hash") << QByteArray("sub/#1.png") << QByteArray("sub/#1.png");
    QTest::newRow("without an ending") << QByteArray("%/sub/c") << QByteArray("sub/c.png");
    QTest::newRow("dot in a folder's name") << QByteArray("v1.2/c") << QByteArray("v1.2/c.png");
}

void PlainDialogTest::aPathThatIsTypedIsSavedThere()
{
    QFETCH(const QByteArray, text);
    QFETCH(const QByteArray, file);
    open();
    type(text.constData());
    QCOMPARE(save(), root() / file.toStdString());
}

void PlainDialogTest::theButtonSavesThereToo()
{
    open();
    type("~/sub/c.png");
    m_window->click(m_window->find("text", QStringLiteral("Save")));
    QVERIFY(m_place);
    QCOMPARE(m_place->file, root() / "sub" / "c.png");
}

void PlainDialogTest::aLineThatIsPressedTakesThePlaceOfThePath()
{
    m_window->folder().write("there.png", "precious");
    open();
    QTRY_VERIFY(m_window->find("fileName", QStringLiteral("there.png")) != nullptr);
    type("sub/c.png");
    m_window->click(m_window->find("fileName", QStringLiteral("there.png")));
    m_window->click(m_window->find("objectName", QStringLiteral("fileNameTextField")));
    QCOMPARE(m_window->window().activeFocusItem()->property("text").toString(),
             QStringLiteral("there.png"));
    QCOMPARE(save(), root() / "there.png");
}

void PlainDialogTest::aPathIsChangedInItsMiddle()
{
    open();
    type("su/c.png");
    for (int step = 0; step < 6; ++step)
        m_window->press(Qt::Key_Left);
    QTest::keyClick(&m_window->window(), 'b');
    QCOMPARE(save(), root() / "sub" / "c.png");
}

void PlainDialogTest::aFileThatIsThereIsNotReplacedByItsPath()
{
    m_window->folder().write("sub/c.png", "precious");
    open();
    type("%/sub/c.png");
    QCOMPARE(save(), root() / "sub" / "c.png");
    QVERIFY(!m_place->mayReplace);
}

void PlainDialogTest::aFolderThatIsTypedIsShownAndNotSaved_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("name") << QByteArray("sub");
    QTest::newRow("with a slash") << QByteArray("sub/");
    QTest::newRow("path") << QByteArray("%/sub");
}

void PlainDialogTest::aFolderThatIsTypedIsShownAndNotSaved()
{
    QFETCH(const QByteArray, text);
    m_window->folder().write("sub/here.png", "");
    open();
    type(text.constData());
    QVERIFY(save().empty());
    QTRY_VERIFY(m_window->find("fileName", QStringLiteral("here.png")) != nullptr);
}

void PlainDialogTest::aTildeShowsTheHomeFolder()
{
    std::filesystem::create_directory(root() / "sub" / "within");
    open();
    type("sub");
    QVERIFY(save().empty());
    QTRY_VERIFY(m_window->find("fileName", QStringLiteral("within")) != nullptr);
    m_window->click(m_window->find("objectName", QStringLiteral("fileNameTextField")));
    type("~");
    QVERIFY(save().empty());
    QTRY_VERIFY(m_window->find("fileName", QStringLiteral("sub")) != nullptr);
}

void PlainDialogTest::aFolderThatIsNotThereIsNoName()
{
    open();
    type("%/nowhere/");
    QCOMPARE(save(), root() / "nowhere/");
}

void PlainDialogTest::aPathLeavesTheFolderThatIsShown()
{
    open();
    type("sub/c.png");
    QCOMPARE(save(), root() / "sub" / "c.png");
    open();
    QCOMPARE(m_window->window().activeFocusItem()->property("text").toString(),
             QStringLiteral("trend.png"));
    QCOMPARE(save(), root() / "trend.png");
}

void PlainDialogTest::aPressBesideItLeavesItOpen()
{
    open();
    type("other.png");
    QTest::mouseClick(&m_window->window(), Qt::LeftButton, {}, QPoint(2, 2));
    QVERIFY(save() == root() / "other.png");
}

void PlainDialogTest::whatIsBehindItIsOutOfReach()
{
    QQmlComponent button(&m_window->engine());
    button.setData("import QtQuick.Controls\nButton { property bool wasPressed: false; width: 40;"
                   " height: 40; onClicked: wasPressed = true }",
                   {});
    const std::unique_ptr<QObject> behind(button.create());
    qobject_cast<QQuickItem *>(behind.get())->setParentItem(m_window->window().contentItem());
    const auto press = [&] {
        QTest::mouseClick(&m_window->window(), Qt::LeftButton, {}, QPoint(20, 20));
    };
    open();
    press();
    QVERIFY(!behind->property("wasPressed").toBool());
    m_window->press(Qt::Key_Escape);
    QTRY_VERIFY(m_window->find("text", QStringLiteral("Cancel")) == nullptr);
    press();
    QTRY_VERIFY(behind->property("wasPressed").toBool());
}

const RegisteredTest<PlainDialogTest> registered("PlainDialog");

} // namespace Loadwick

#include "PlainDialogTest.moc"
