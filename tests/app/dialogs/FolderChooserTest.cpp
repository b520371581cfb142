#include "dialogs/FolderChooser.h"

#include <memory>
#include <optional>

#include <QTest>

#include "support/DialogFixture.h"
#include "support/TestRegistry.h"

namespace Loadwick {

/// Qt's own dialog over a folder with the folders "api" and "webshop", a link to "webshop", and a
/// file.
class FolderChooserTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void asksOverTheWindow();
    void listsOnlyFolders();
    void choosesTheShownFolderUnlessAnotherIsNamed();
    void choosesATypedFolder_data();
    void choosesATypedFolder();
    void staysOpenForATypedNonFolder_data();
    void staysOpenForATypedNonFolder();
    void forgetsAMistypedAddress();
    void choosesAFolderWhoseNameIsNotUtf8();
    void choosesNothingWhenTheUserCancels();
    void asksOnceAtATime();
    void opensInTheFolderItShowedLast();
    void isANoOpWithoutAWindow();
    void choosesNothingOnceDestroyed();

private:
    void open();
    [[nodiscard]] const std::filesystem::path &root() const { return m_fixture->root(); }

    std::unique_ptr<DialogFixture> m_fixture;
    std::unique_ptr<FolderChooser> m_chooser;
    std::optional<std::filesystem::path> m_chosen;
};

void FolderChooserTest::init()
{
    m_fixture = std::make_unique<DialogFixture>();
    for (const char *name : {"api", "webshop/z#z", "caf\xE9"})
        std::filesystem::create_directories(root() / name);
    std::filesystem::create_directory_symlink(root() / "webshop", root() / "link");
    m_fixture->folder().write("file.txt", "");
    m_chooser = platformFolderChooser(m_fixture->url());
    m_chooser->attach(m_fixture->window());
    m_chosen.reset();
}

void FolderChooserTest::cleanup()
{
    m_chooser.reset();
    m_fixture.reset();
}

void FolderChooserTest::open()
{
    m_chooser->open([this](const std::filesystem::path &folder) { m_chosen = folder; });
    QVERIFY(DialogFixture::dialog() != nullptr);
}

void FolderChooserTest::asksOverTheWindow()
{
    open();
    const QFileDialog &dialog = *DialogFixture::dialog();
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Choose a local repository to scan."));
    QCOMPARE(DialogFixture::button(QDialogButtonBox::Open).text(), QStringLiteral("Choose"));
    QCOMPARE(dialog.windowHandle()->transientParent(), &m_fixture->window());
    QCOMPARE(dialog.windowModality(), Qt::WindowModal);
}

void FolderChooserTest::listsOnlyFolders()
{
    open();
    QCOMPARE(
        DialogFixture::listedNames(3),
        QStringList({QStringLiteral("api"), QStringLiteral("link"), QStringLiteral("webshop")}));
}

void FolderChooserTest::choosesTheShownFolderUnlessAnotherIsNamed()
{
    open();
    DialogFixture::button(QDialogButtonBox::Open).click();
    QCOMPARE(m_chosen, root());
    QVERIFY(DialogFixture::dialog() == nullptr);
}

void FolderChooserTest::choosesATypedFolder_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("folder");
    const auto row = [](const char *name, const char *text, const char *folder) {
        QTest::newRow(name) << QByteArray(text) << QByteArray(folder);
    };
    row("path", "$/api", "api");
    row("path with a slash", "$/api/", "api");
    row("name", "webshop", "webshop");
    row("from the home", "~/api", "api");
    row("below the shown one", "webshop/z#z", "webshop/z#z");
    row("a link stays one", "link", "link");
    row("address", "file://$/webshop/z%23z", "webshop/z#z");
}

void FolderChooserTest::choosesATypedFolder()
{
    QFETCH(const QByteArray, text);
    QFETCH(const QByteArray, folder);
    open();
    m_fixture->type(text);
    DialogFixture::press(Qt::Key_Return);
    QVERIFY(m_chosen);
    QCOMPARE(*m_chosen, root() / folder.toStdString());
}

void FolderChooserTest::staysOpenForATypedNonFolder_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("missing") << QByteArray("$/nowhere");
    QTest::newRow("a file") << QByteArray("file.txt");
    QTest::newRow("address of nothing") << QByteArray("file://$/nowhere");
    QTest::newRow("another machine") << QByteArray("file://server/srv");
}

void FolderChooserTest::staysOpenForATypedNonFolder()
{
    QFETCH(const QByteArray, text);
    open();
    m_fixture->type(text);
    (void)DialogFixture::pressEnterAndAnswer(QDialogButtonBox::Ok);
    QVERIFY(!m_chosen);
    QVERIFY(DialogFixture::dialog() != nullptr);
}

void FolderChooserTest::forgetsAMistypedAddress()
{
    open();
    m_fixture->type("file://$/nowhere");
    (void)DialogFixture::pressEnterAndAnswer(QDialogButtonBox::Ok);
    m_fixture->type("api");
    DialogFixture::press(Qt::Key_Enter);
    QCOMPARE(m_chosen, root() / "api");
}

void FolderChooserTest::choosesAFolderWhoseNameIsNotUtf8()
{
    open();
    m_fixture->type("file://$/caf%E9");
    DialogFixture::press(Qt::Key_Return);
    QCOMPARE(m_chosen, root() / "caf\xE9");
}

void FolderChooserTest::choosesNothingWhenTheUserCancels()
{
    open();
    DialogFixture::press(Qt::Key_Escape);
    QVERIFY(DialogFixture::dialog() == nullptr);
    open();
    DialogFixture::button(QDialogButtonBox::Cancel).click();
    QVERIFY(DialogFixture::dialog() == nullptr);
    QVERIFY(!m_chosen);
}

void FolderChooserTest::asksOnceAtATime()
{
    open();
    m_chooser->open([](const std::filesystem::path &) { QFAIL("the first question is open"); });
    m_fixture->type("api");
    DialogFixture::press(Qt::Key_Return);
    QCOMPARE(m_chosen, root() / "api");
    QVERIFY(DialogFixture::dialog() == nullptr);
}

void FolderChooserTest::opensInTheFolderItShowedLast()
{
    open();
    QCOMPARE(DialogFixture::dialog()->directoryUrl(), m_fixture->url());
    DialogFixture::dialog()->setDirectory(QString::fromStdString((root() / "webshop").string()));
    DialogFixture::press(Qt::Key_Escape);
    open();
    DialogFixture::button(QDialogButtonBox::Open).click();
    QCOMPARE(m_chosen, root() / "webshop");
}

void FolderChooserTest::isANoOpWithoutAWindow()
{
    platformFolderChooser({})->open([](const std::filesystem::path &) { QFAIL("asked"); });
    QVERIFY(DialogFixture::dialog() == nullptr);
}

void FolderChooserTest::choosesNothingOnceDestroyed()
{
    open();
    m_chooser.reset();
    QVERIFY(DialogFixture::dialog() == nullptr);
    QVERIFY(!m_chosen);
}

const RegisteredTest<FolderChooserTest> registered("FolderChooser");

} // namespace Loadwick

#include "FolderChooserTest.moc"
