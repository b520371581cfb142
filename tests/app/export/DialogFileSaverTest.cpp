#include "export/DialogFileSaver.h"

#include <optional>

#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

#include "samples/TemporaryFolder.h"
#include "support/TestRegistry.h"
#include "support/VisualItems.h"
#include "theme/ApplicationStyle.h"

namespace Loadwick {

/// The dialog that Qt draws itself, over a window without anything else.
class DialogFileSaverTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theKeyboardIsOnTheName();
    void whatIsTypedAtOnceReplacesTheName();
    void enterInTheNameSaves_data();
    void enterInTheNameSaves();
    void enterSavesUnderTheNameThatWasTyped_data();
    void enterSavesUnderTheNameThatWasTyped();
    void theButtonSavesUnderTheNameThatWasTyped();
    void aNameTypedInAnotherFolderIsSavedThere();
    void withoutANameThereIsNoAnswer();
    void enterAnswersOnceHoweverOftenItWasAsked();
    void escapeSavesNothing();
    void aFileThatIsThereIsNotReplacedUnasked();
    void withoutAWindowNobodyIsAsked();

private:
    void open();
    [[nodiscard]] QString focusedName() const;
    /// Of the control with that text as its property; null when none shows.
    [[nodiscard]] QPoint middleOf(const char *property, const char *text) const;
    /// In place of the name that stands there.
    void type(const QByteArray &name);
    void press(Qt::Key key) { QTest::keyClick(m_window.get(), key); }
    [[nodiscard]] std::filesystem::path suggested() const;

    std::optional<TemporaryFolder> m_folder;
    std::unique_ptr<QQmlEngine> m_engine;
    std::unique_ptr<QQuickWindow> m_window;
    std::unique_ptr<DialogFileSaver> m_saver;
    std::optional<FileSaver::Place> m_place;
    int m_answerCount = 0;
};

void DialogFileSaverTest::init()
{
    m_folder.emplace();
    m_engine = std::make_unique<QQmlEngine>();
    ApplicationStyle::addModulePath(*m_engine);
    m_window = std::make_unique<QQuickWindow>();
    m_window->resize(800, 600);
    m_window->show();
    m_window->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    const auto folder = QString::fromStdString(m_folder->path().string());
    m_saver = std::make_unique<DialogFileSaver>(QUrl::fromLocalFile(folder));
    m_saver->attach(*m_engine, *m_window);
    m_place.reset();
    m_answerCount = 0;
}

void DialogFileSaverTest::cleanup()
{
    m_saver.reset();
    m_window.reset();
    m_engine.reset();
    m_folder.reset();
}

void DialogFileSaverTest::open()
{
    m_saver->open({.title = QStringLiteral("Save the data"),
                   .name = QStringLiteral("figures.csv"),
                   .filters = {QStringLiteral("Comma-separated values (*.csv)")}},
                  [this](const FileSaver::Place &place) {
                      m_place = place;
                      ++m_answerCount;
                  });
    QTRY_COMPARE(focusedName(), QStringLiteral("fileNameTextField"));
}

void DialogFileSaverTest::type(const QByteArray &name)
{
    QTest::keyClick(m_window.get(), Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Delete);
    for (const char letter : name)
        QTest::keyClick(m_window.get(), letter);
    QCOMPARE(m_window->activeFocusItem()->property("text").toString(), QString::fromUtf8(name));
}

QString DialogFileSaverTest::focusedName() const
{
    const QQuickItem *item = m_window->activeFocusItem();
    return item == nullptr ? QString() : item->objectName();
}

QPoint DialogFileSaverTest::middleOf(const char *property, const char *text) const
{
    for (const QQuickItem *item : shownItems(*m_window->contentItem()))
        if (item->inherits("QQuickControl") || item->inherits("QQuickTextField"))
            if (item->property(property).toString() == QLatin1String(text))
                return item->mapRectToScene(item->boundingRect()).center().toPoint();
    return {};
}

std::filesystem::path DialogFileSaverTest::suggested() const
{
    return m_folder->path() / "figures.csv";
}

void DialogFileSaverTest::theKeyboardIsOnTheName()
{
    open();
    QCOMPARE(m_window->activeFocusItem()->property("text").toString(),
             QStringLiteral("figures.csv"));
}

void DialogFileSaverTest::whatIsTypedAtOnceReplacesTheName()
{
    // At the second opening as at the first.
    for (const QByteArray &name : {QByteArray("a.csv"), QByteArray("b.csv")}) {
        open();
        for (const char letter : name)
            QTest::keyClick(m_window.get(), letter);
        press(Qt::Key_Return);
        QVERIFY(m_place);
        QCOMPARE(m_place->file, m_folder->path() / name.toStdString());
    }
}

void DialogFileSaverTest::enterInTheNameSaves_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("return") << Qt::Key_Return;
    QTest::newRow("enter") << Qt::Key_Enter;
}

void DialogFileSaverTest::enterInTheNameSaves()
{
    QFETCH(const Qt::Key, key);
    open();
    press(key);
    QVERIFY(m_place);
    QVERIFY(m_place->file == suggested());
    QVERIFY(focusedName().isEmpty());
}

void DialogFileSaverTest::enterSavesUnderTheNameThatWasTyped_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("plain") << QByteArray("a.csv");
    QTest::newRow("hash") << QByteArray("what #1.csv");
    QTest::newRow("percent") << QByteArray("100%41.csv");
    QTest::newRow("capitals") << QByteArray("A.Csv");
    QTest::newRow("nothing but the ending") << QByteArray(".csv");
}

void DialogFileSaverTest::enterSavesUnderTheNameThatWasTyped()
{
    QFETCH(const QByteArray, name);
    open();
    type(name);
    press(Qt::Key_Return);
    QVERIFY(m_place);
    QVERIFY(m_place->file == m_folder->path() / name.toStdString());
}

void DialogFileSaverTest::theButtonSavesUnderTheNameThatWasTyped()
{
    open();
    type("what #1.csv");
    QTest::mouseClick(m_window.get(), Qt::LeftButton, {}, middleOf("text", "Save"));
    QVERIFY(m_place);
    QVERIFY(m_place->file == m_folder->path() / "what #1.csv");
}

void DialogFileSaverTest::aNameTypedInAnotherFolderIsSavedThere()
{
    std::filesystem::create_directory(m_folder->path() / "other #1");
    open();
    QTRY_VERIFY(!middleOf("fileName", "other #1").isNull()); // the list is filled late
    QTest::mouseDClick(m_window.get(), Qt::LeftButton, {}, middleOf("fileName", "other #1"));
    QTRY_VERIFY(!middleOf("folderName", "other #1").isNull());
    QTest::mouseClick(m_window.get(), Qt::LeftButton, {},
                      middleOf("objectName", "fileNameTextField"));
    type("a.csv");
    press(Qt::Key_Return);
    QVERIFY(m_place);
    QVERIFY(m_place->file == m_folder->path() / "other #1" / "a.csv");
}

void DialogFileSaverTest::withoutANameThereIsNoAnswer()
{
    open();
    type("");
    press(Qt::Key_Return);
    QVERIFY(!m_place);
    type("a");
    press(Qt::Key_Return);
    QVERIFY(m_place);
}

void DialogFileSaverTest::enterAnswersOnceHoweverOftenItWasAsked()
{
    open();
    press(Qt::Key_Return);
    open();
    press(Qt::Key_Return);
    QCOMPARE(m_answerCount, 2);
}

void DialogFileSaverTest::escapeSavesNothing()
{
    open();
    press(Qt::Key_Escape);
    QVERIFY(!m_place);
    open();
    press(Qt::Key_Return);
    QVERIFY(m_place);
}

void DialogFileSaverTest::aFileThatIsThereIsNotReplacedUnasked()
{
    m_folder->write("figures.csv", "precious");
    open();
    press(Qt::Key_Return);
    QVERIFY(m_place);
    QVERIFY(!m_place->mayReplace);
}

void DialogFileSaverTest::withoutAWindowNobodyIsAsked()
{
    DialogFileSaver unattached{QUrl()};
    unattached.open({}, [](const FileSaver::Place &) { QFAIL("nobody was asked"); });
    unattached.accept(QUrl::fromEncoded("file:///srv/a"));
}

const RegisteredTest<DialogFileSaverTest> registered("DialogFileSaver");

} // namespace Loadwick

#include "DialogFileSaverTest.moc"
