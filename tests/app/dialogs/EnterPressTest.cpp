#include "dialogs/EnterPress.h"

#include <filesystem>
#include <memory>
#include <optional>

#include <QTest>

#include "dialogs/DialogFolderChooser.h"
#include "export/DialogFileSaver.h"
#include "support/DialogWindow.h"
#include "support/TestRegistry.h"

namespace Loadwick {

class EnterPressTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void choosesOnTheButtonOfTheFolderDialog_data() { keys(); }
    void choosesOnTheButtonOfTheFolderDialog();
    void cancelsTheFolderDialog_data() { keys(); }
    void cancelsTheFolderDialog();
    void goesToTheFolderAbove();
    void entersTheLineThatIsHighlighted();
    void savesOnTheButtonOfTheSaveDialog_data() { keys(); }
    void savesOnTheButtonOfTheSaveDialog();
    void cancelsTheSaveDialog_data() { keys(); }
    void cancelsTheSaveDialog();
    void answersOnceHoweverOftenTheDialogWasOpened();
    void doesNothingWhileTheButtonIsDisabled();

private:
    static void keys();
    void chooseFolder();
    void save();
    /// With the tabulator.
    void focus(const char *button);
    [[nodiscard]] bool shows(const char *button) const;
    /// The key of the test's row.
    void press();

    std::unique_ptr<DialogWindow> m_window;
    std::unique_ptr<DialogFolderChooser> m_chooser;
    std::unique_ptr<DialogFileSaver> m_saver;
    std::optional<std::filesystem::path> m_answer;
    int m_answerCount = 0;
};

void EnterPressTest::init()
{
    m_window = std::make_unique<DialogWindow>();
    std::filesystem::create_directories(m_window->folder().path() / "repository" / "src");
    m_chooser = std::make_unique<DialogFolderChooser>(m_window->folderUrl());
    m_chooser->attach(m_window->engine(), m_window->window());
    m_saver = std::make_unique<DialogFileSaver>(m_window->folderUrl());
    m_saver->attach(m_window->engine(), m_window->window());
    m_answer.reset();
    m_answerCount = 0;
}

void EnterPressTest::cleanup()
{
    m_saver.reset();
    m_chooser.reset();
    m_window.reset();
}

void EnterPressTest::keys()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("return") << Qt::Key_Return;
    QTest::newRow("enter") << Qt::Key_Enter;
    QTest::newRow("space") << Qt::Key_Space;
}

void EnterPressTest::chooseFolder()
{
    m_chooser->open([this](const std::filesystem::path &folder) {
        m_answer = folder;
        ++m_answerCount;
    });
    QTRY_VERIFY(m_window->find("fileName", QStringLiteral("repository")) != nullptr);
}

void EnterPressTest::save()
{
    m_saver->open({.title = QStringLiteral("Save the data"),
                   .name = QStringLiteral("figures.csv"),
                   .filters = {QStringLiteral("Comma-separated values (*.csv)")}},
                  [this](const FileSaver::Place &place) { m_answer = place.file; });
    QTRY_COMPARE(m_window->focusedName(), QStringLiteral("fileNameTextField"));
}

void EnterPressTest::focus(const char *button)
{
    constexpr int longestWay = 20;
    const auto isThere = [&] {
        const QQuickItem *focused = m_window->window().activeFocusItem();
        return focused == m_window->find("text", QLatin1String(button)) ||
               focused == m_window->findNamed(QLatin1String(button));
    };
    for (int step = 0; step < longestWay && !isThere(); ++step)
        m_window->press(Qt::Key_Tab);
    QVERIFY(isThere());
}

bool EnterPressTest::shows(const char *button) const
{
    return m_window->find("text", QLatin1String(button)) != nullptr;
}

void EnterPressTest::press()
{
    QFETCH(const Qt::Key, key);
    m_window->press(key);
}

void EnterPressTest::choosesOnTheButtonOfTheFolderDialog()
{
    chooseFolder();
    focus("Choose");
    press();
    QVERIFY(m_answer == m_window->folder().path());
    QVERIFY(!shows("Choose"));
}

void EnterPressTest::cancelsTheFolderDialog()
{
    chooseFolder();
    focus("Cancel");
    press();
    QVERIFY(!m_answer);
    QVERIFY(!shows("Cancel"));
}

void EnterPressTest::goesToTheFolderAbove()
{
    chooseFolder();
    focus("Folder above");
    m_window->press(Qt::Key_Return);
    QTRY_VERIFY(m_window->find("fileName", QStringLiteral("repository")) == nullptr);
    m_window->click(m_window->find("text", QStringLiteral("Choose")));
    QVERIFY(m_answer == m_window->folder().path().parent_path());
}

void EnterPressTest::entersTheLineThatIsHighlighted()
{
    chooseFolder();
    m_window->press(Qt::Key_Down);
    m_window->press(Qt::Key_Return);
    QTRY_VERIFY(m_window->find("fileName", QStringLiteral("src")) != nullptr);
    QVERIFY(!m_answer);
    QVERIFY(shows("Choose"));
}

void EnterPressTest::savesOnTheButtonOfTheSaveDialog()
{
    save();
    focus("Save");
    press();
    QVERIFY(m_answer == m_window->folder().path() / "figures.csv");
    QVERIFY(!shows("Save"));
}

void EnterPressTest::cancelsTheSaveDialog()
{
    save();
    focus("Cancel");
    press();
    QVERIFY(!m_answer);
    QVERIFY(!shows("Cancel"));
}

void EnterPressTest::answersOnceHoweverOftenTheDialogWasOpened()
{
    for (const int count : {1, 2, 3}) {
        chooseFolder();
        focus("Choose");
        m_window->press(Qt::Key_Return);
        QCOMPARE(m_answerCount, count);
    }
}

void EnterPressTest::doesNothingWhileTheButtonIsDisabled()
{
    chooseFolder();
    m_window->press(Qt::Key_L, Qt::ControlModifier); // a path is being typed
    QVERIFY(!m_window->find("text", QStringLiteral("Choose"))->isEnabled());
    m_window->find("text", QStringLiteral("Choose"))->forceActiveFocus();
    m_window->press(Qt::Key_Return);
    QVERIFY(!m_answer);
}

const RegisteredTest<EnterPressTest> registered("EnterPress");

} // namespace Loadwick

#include "EnterPressTest.moc"
