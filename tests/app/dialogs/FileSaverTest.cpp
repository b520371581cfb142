#include "dialogs/FileSaver.h"

#include <memory>
#include <optional>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QPointer>
#include <QTest>

#include "support/DialogFixture.h"
#include "support/TestRegistry.h"

namespace Loadwick {

/// Qt's own dialog over a folder with the folder "sub".
class FileSaverTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void asksOverTheWindow();
    void selectsTheSuggestedName();
    void enterSaves_data();
    void enterSaves();
    void savesOnceWhileTheKeyIsHeld_data();
    void savesOnceWhileTheKeyIsHeld();
    void savesAtATypedPath_data();
    void savesAtATypedPath();
    void addsAMissingEnding_data();
    void addsAMissingEnding();
    void theEndingFollowsTheChosenKind();
    void entersATypedFolder_data();
    void entersATypedFolder();
    void staysOpenWithoutAName();
    void replacesAFileOnlyWhenTheUserAgrees_data();
    void replacesAFileOnlyWhenTheUserAgrees();
    void asksInPlainText();
    void choosesNothingWhenTheUserCancels();
    void endsWhileAMenuIsOpen();
    void endsWhileAQuestionIsOpen();
    void asksOnceAtATime();
    void opensInTheFolderItShowedLast();
    void isANoOpWithoutAWindow();

private:
    void open();
    void save(const QByteArray &typed);
    [[nodiscard]] const std::filesystem::path &root() const { return m_fixture->root(); }

    std::unique_ptr<DialogFixture> m_fixture;
    std::unique_ptr<FileSaver> m_saver;
    std::optional<FileSaver::Target> m_target;
};

void FileSaverTest::init()
{
    m_fixture = std::make_unique<DialogFixture>();
    std::filesystem::create_directory(root() / "sub");
    m_saver = platformFileSaver(m_fixture->url());
    m_saver->attach(m_fixture->window());
    m_target.reset();
}

void FileSaverTest::cleanup()
{
    m_saver.reset();
    m_fixture.reset();
}

void FileSaverTest::open()
{
    m_saver->open(
        {.title = QStringLiteral("Save the chart"),
         .name = QStringLiteral("trend.png"),
         .filters = {QStringLiteral("PNG picture (*.png)"), QStringLiteral("SVG drawing (*.svg)")}},
        [this](const FileSaver::Target &target) { m_target = target; });
    QVERIFY(DialogFixture::dialog() != nullptr);
}

void FileSaverTest::save(const QByteArray &typed)
{
    open();
    m_fixture->type(typed);
    DialogFixture::press(Qt::Key_Return);
}

void FileSaverTest::asksOverTheWindow()
{
    open();
    const QFileDialog &dialog = *DialogFixture::dialog();
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Save the chart"));
    QCOMPARE(DialogFixture::button(QDialogButtonBox::Save).text(), QStringLiteral("Save"));
    QCOMPARE(dialog.windowHandle()->transientParent(), &m_fixture->window());
    QCOMPARE(dialog.windowModality(), Qt::WindowModal);
}

void FileSaverTest::selectsTheSuggestedName()
{
    open();
    QCOMPARE(DialogFixture::nameField().selectedText(), QStringLiteral("trend.png"));
    QTest::keyClicks(&DialogFixture::nameField(), QStringLiteral("a"));
    QCOMPARE(DialogFixture::nameField().text(), QStringLiteral("a"));
}

void FileSaverTest::enterSaves_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("return") << Qt::Key_Return;
    QTest::newRow("enter") << Qt::Key_Enter;
}

void FileSaverTest::enterSaves()
{
    QFETCH(const Qt::Key, key);
    open();
    DialogFixture::press(key);
    QVERIFY(m_target);
    QCOMPARE(m_target->file, root() / "trend.png");
    QVERIFY(DialogFixture::dialog() == nullptr);
}

void FileSaverTest::savesOnceWhileTheKeyIsHeld_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("return") << Qt::Key_Return;
    QTest::newRow("escape") << Qt::Key_Escape;
}

// The dialog is deleted only when the program returns to its event loop.
void FileSaverTest::savesOnceWhileTheKeyIsHeld()
{
    QFETCH(const Qt::Key, key);
    open();
    QLineEdit &field = DialogFixture::nameField();
    QTest::keyClick(&field, Qt::Key_Return);
    QVERIFY(m_target);
    m_target.reset();
    QTest::keyClick(&field, key);
    QVERIFY(!m_target);
}

void FileSaverTest::savesAtATypedPath_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("from the root") << QByteArray("$/sub/c.png") << QByteArray("sub/c.png");
    QTest::newRow("from the home") << QByteArray("~/sub/c.png") << QByteArray("sub/c.png");
    QTest::newRow("below the folder") << QByteArray("sub/c.png") << QByteArray("sub/c.png");
    QTest::newRow("hash") << QByteArray("sub/#1.png") << QByteArray("sub/#1.png");
    QTest::newRow("without an ending") << QByteArray("$/sub/c") << QByteArray("sub/c.png");
}

void FileSaverTest::savesAtATypedPath()
{
    QFETCH(const QByteArray, text);
    QFETCH(const QByteArray, file);
    save(text);
    QVERIFY(m_target);
    QCOMPARE(m_target->file, root() / file.toStdString());
}

void FileSaverTest::addsAMissingEnding_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("file");
    QTest::newRow("the first kind") << QByteArray("x.png") << QByteArray("x.png");
    QTest::newRow("another kind") << QByteArray("x.SVG") << QByteArray("x.SVG");
    QTest::newRow("no kind") << QByteArray("x.csv") << QByteArray("x.csv.png");
    QTest::newRow("no dot") << QByteArray("all") << QByteArray("all.png");
    QTest::newRow("a version") << QByteArray("notes v1.2") << QByteArray("notes v1.2.png");
    QTest::newRow("no dot before it") << QByteArray("mypng") << QByteArray("mypng.png");
    QTest::newRow("nothing else") << QByteArray(".png") << QByteArray(".png");
}

void FileSaverTest::addsAMissingEnding()
{
    QFETCH(const QByteArray, name);
    QFETCH(const QByteArray, file);
    save(name);
    QVERIFY(m_target);
    QCOMPARE(m_target->file, root() / file.toStdString());
    QVERIFY(m_target->mayReplace);
}

void FileSaverTest::theEndingFollowsTheChosenKind()
{
    open();
    auto *kinds = DialogFixture::dialog()->findChild<QComboBox *>(QStringLiteral("fileTypeCombo"));
    QTest::keyClick(kinds, Qt::Key_Down);
    QCOMPARE(DialogFixture::nameField().text(), QStringLiteral("trend.svg"));
    m_fixture->type("all");
    DialogFixture::press(Qt::Key_Return);
    QVERIFY(m_target);
    QCOMPARE(m_target->file, root() / "all.svg");
}

void FileSaverTest::entersATypedFolder_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("name") << QByteArray("sub");
    QTest::newRow("with a slash") << QByteArray("sub/");
    QTest::newRow("path") << QByteArray("$/sub");
    QTest::newRow("from the home") << QByteArray("~/sub");
}

void FileSaverTest::entersATypedFolder()
{
    QFETCH(const QByteArray, text);
    save(text);
    QVERIFY(!m_target);
    QCOMPARE(DialogFixture::dialog()->directory().dirName(), QStringLiteral("sub"));
    m_fixture->type("a.png");
    DialogFixture::press(Qt::Key_Return);
    QVERIFY(m_target);
    QCOMPARE(m_target->file, root() / "sub" / "a.png");
}

void FileSaverTest::staysOpenWithoutAName()
{
    save("");
    QVERIFY(!m_target);
    QVERIFY(DialogFixture::dialog() != nullptr);
}

void FileSaverTest::replacesAFileOnlyWhenTheUserAgrees_data()
{
    QTest::addColumn<QByteArray>("typed");
    QTest::newRow("whole name") << QByteArray("there.png");
    QTest::newRow("without its ending") << QByteArray("there");
}

void FileSaverTest::replacesAFileOnlyWhenTheUserAgrees()
{
    QFETCH(const QByteArray, typed);
    m_fixture->folder().write("there.png", "precious");
    open();
    m_fixture->type(typed);
    const auto question = DialogFixture::pressEnterAndAnswer(QDialogButtonBox::No);
    QCOMPARE(question.words,
             QStringLiteral("there.png already exists.\nDo you want to replace it?"));
    QVERIFY(!m_target);
    (void)DialogFixture::pressEnterAndAnswer(QDialogButtonBox::Yes);
    QVERIFY(m_target);
    QCOMPARE(m_target->file, root() / "there.png");
    QVERIFY(m_target->mayReplace);
}

void FileSaverTest::asksInPlainText()
{
    m_fixture->folder().write("<img src=x>.png", "precious");
    open();
    m_fixture->type("<img src=x>.png");
    const auto question = DialogFixture::pressEnterAndAnswer(QDialogButtonBox::No);
    QVERIFY(question.words.startsWith(QStringLiteral("<img src=x>.png ")));
    QVERIFY(question.isPlain);
}

void FileSaverTest::choosesNothingWhenTheUserCancels()
{
    open();
    DialogFixture::press(Qt::Key_Escape);
    QVERIFY(DialogFixture::dialog() == nullptr);
    QVERIFY(!m_target);
}

// A screen reader presses buttons beside a menu or behind a question.
void FileSaverTest::endsWhileAMenuIsOpen()
{
    open();
    const QPointer<QFileDialog> dialog = DialogFixture::dialog();
    const auto cancel = DialogFixture::cancelOnce(&QApplication::activePopupWidget);
    auto *list = dialog->findChild<QAbstractItemView *>(QStringLiteral("treeView"));
    Q_EMIT list->customContextMenuRequested({});
    QTRY_VERIFY(dialog == nullptr); // Qt 6.8 does not wait for the menu's end
    QVERIFY(QApplication::activePopupWidget() == nullptr);
}

void FileSaverTest::endsWhileAQuestionIsOpen()
{
    m_fixture->folder().write("trend.png", "precious");
    open();
    const QPointer<QFileDialog> dialog = DialogFixture::dialog();
    const auto cancel = DialogFixture::cancelOnce(&QApplication::activeModalWidget);
    DialogFixture::press(Qt::Key_Return);
    QVERIFY(QApplication::activeModalWidget() == nullptr);
    QVERIFY(!m_target);
    QTRY_VERIFY(dialog == nullptr);
}

void FileSaverTest::asksOnceAtATime()
{
    open();
    m_saver->open({}, [](const FileSaver::Target &) { QFAIL("the first question is open"); });
    DialogFixture::press(Qt::Key_Return);
    QVERIFY(m_target);
    QVERIFY(DialogFixture::dialog() == nullptr);
}

void FileSaverTest::opensInTheFolderItShowedLast()
{
    save("sub");
    DialogFixture::press(Qt::Key_Escape);
    open();
    DialogFixture::press(Qt::Key_Return);
    QVERIFY(m_target);
    QCOMPARE(m_target->file, root() / "sub" / "trend.png");
}

void FileSaverTest::isANoOpWithoutAWindow()
{
    platformFileSaver({})->open({}, [](const FileSaver::Target &) { QFAIL("asked"); });
    QVERIFY(DialogFixture::dialog() == nullptr);
}

const RegisteredTest<FileSaverTest> registered("FileSaver");

} // namespace Loadwick

#include "FileSaverTest.moc"
