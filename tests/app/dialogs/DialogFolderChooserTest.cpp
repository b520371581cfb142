#include "dialogs/DialogFolderChooser.h"

#include <algorithm>
#include <filesystem>
#include <optional>

#include <QAccessible>
#include <QDir>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QTest>

#include "support/TestRegistry.h"
#include "support/VisualItems.h"
#include "theme/ApplicationStyle.h"

namespace Loadwick {

class DialogFolderChooserTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_engine = std::make_unique<QQmlEngine>();
        ApplicationStyle::addModulePath(*m_engine);
        m_window = std::make_unique<QQuickWindow>();
        m_window->show();
        m_chooser = std::make_unique<DialogFolderChooser>(QUrl::fromLocalFile(QDir::tempPath()));
        m_chooser->attach(*m_engine, *m_window);
        m_chosen.reset();
    }

    void cleanup()
    {
        m_chooser.reset();
        m_window.reset();
        m_engine.reset();
    }

    void givesTheBytesOfTheChosenFolder()
    {
        open();
        m_chooser->accept(QUrl::fromEncoded("file:///srv/caf%E9"));
        QVERIFY(m_chosen == std::filesystem::path("/srv/caf\xE9"));
    }

    void givesNothingWhenTheUserThinksBetterOfIt()
    {
        open();
        m_chooser->reject();
        QVERIFY(!m_chosen);
        m_chooser->accept(QUrl::fromEncoded("file:///srv/late"));
        QVERIFY(!m_chosen);
    }

    void givesNothingForAFolderOfAnotherMachine()
    {
        open();
        m_chooser->accept(QUrl::fromEncoded("sftp://server/srv"));
        QVERIFY(!m_chosen);
    }

    void asksOnceAtATime()
    {
        open();
        m_chooser->open([](const std::filesystem::path &) { QFAIL("the first question stands"); });
        m_chooser->accept(QUrl::fromEncoded("file:///srv/first"));
        QVERIFY(m_chosen == std::filesystem::path("/srv/first"));
    }

    void canAskAgain()
    {
        open();
        m_chooser->reject();
        open();
        m_chooser->accept(QUrl::fromEncoded("file:///srv/second"));
        QVERIFY(m_chosen == std::filesystem::path("/srv/second"));
    }

    void theKeyboardIsOnTheListOfFolders()
    {
        m_window->requestActivate();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        open();
        QVERIFY(m_window->activeFocusItem() != nullptr);
        const QQuickItem *place = m_window->activeFocusItem();
        while (place != nullptr && place->objectName() != QStringLiteral("folderDialogListView"))
            place = place->parentItem();
        QVERIFY(place != nullptr);
    }

    void theButtonWithoutWordsHasAName()
    {
        open();
        QVERIFY(isNamed(QStringLiteral("Folder above")));
    }

    void withoutAWindowNobodyIsAsked()
    {
        DialogFolderChooser unattached{QUrl()};
        unattached.open([](const std::filesystem::path &) { QFAIL("nobody was asked"); });
        unattached.accept(QUrl::fromEncoded("file:///srv/a"));
    }

private:
    [[nodiscard]] bool isNamed(const QString &name) const
    {
        const QList<QQuickItem *> items = shownItems(*m_window->contentItem());
        return std::any_of(items.begin(), items.end(), [&name](QQuickItem *item) {
            QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(item);
            return accessible != nullptr && accessible->text(QAccessible::Name) == name;
        });
    }

    void open()
    {
        m_chooser->open([this](const std::filesystem::path &folder) { m_chosen = folder; });
    }

    std::unique_ptr<QQmlEngine> m_engine;
    std::unique_ptr<QQuickWindow> m_window;
    std::unique_ptr<DialogFolderChooser> m_chooser;
    std::optional<std::filesystem::path> m_chosen;
};

const RegisteredTest<DialogFolderChooserTest> registered("DialogFolderChooser");

} // namespace Loadwick

#include "DialogFolderChooserTest.moc"
