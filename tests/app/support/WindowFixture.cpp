#include "support/WindowFixture.h"

#include <utility>

#include <QAccessible>
#include <QRegularExpression>
#include <QTest>

namespace Loadwick {
namespace {

QAccessibleInterface *findBelow(QAccessibleInterface *parent, const QString &name)
{
    for (int index = 0; parent != nullptr && index < parent->childCount(); ++index) {
        QAccessibleInterface *child = parent->child(index);
        if (child == nullptr || child->state().invisible)
            continue;
        if (child->text(QAccessible::Name) == name)
            return child;
        if (QAccessibleInterface *found = findBelow(child, name))
            return found;
    }
    return nullptr;
}

} // namespace

WindowFixture::WindowFixture(std::shared_ptr<OnboardingCompletionStore> completionStore,
                             const TextLocale &locale)
{
    // Layouts that do not settle, binding loops, missing properties; but not a font that lacks a
    // script, which Qt substitutes.
    QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?! *OpenType support missing)")));
    auto chooser = std::make_unique<FakeFolderChooser>();
    m_chooser = chooser.get();
    auto saver = std::make_unique<FakeFileSaver>();
    m_saver = saver.get();
    m_loadwick = std::make_unique<LoadwickWindow>(LoadwickWindow::Collaborators{
        .scan = {.probeRunner = m_probe,
                 .instructionScanner = m_scanner,
                 .historyStore = std::make_unique<ScanHistoryStore>(m_folder.path() / "history"),
                 .dispatcher = m_dispatcher},
        .folderChooser = std::move(chooser),
        .fileSaver = std::move(saver),
        .completionStore = std::move(completionStore),
        .notices =
            [this](const auto &) {
                auto board = std::make_unique<FakeNoticeBoard>();
                m_notices = board.get();
                return board;
            },
        .desktop = m_desktop.asDesktop(),
        .locale = locale,
        .weeklyLog = m_folder.path() / "weekly.jsonl",
    });
    m_loadwick->model().loadHistory();
    m_dispatcher->stepNewest();
    m_loadwick->window().show();
    m_loadwick->window().requestActivate();
    if (!QTest::qWaitForWindowActive(&m_loadwick->window()))
        qFatal("The window does not become active.");
}

// A pending scan and the dispatcher own each other.
WindowFixture::~WindowFixture()
{
    destroy();
    m_dispatcher->runAll();
}

Appearance &WindowFixture::appearance() const
{
    const int type = qmlTypeId("Loadwick", 1, 0, "Appearance");
    QQmlEngine *engine = qmlEngine(&m_loadwick->window());
    auto *appearance = engine != nullptr ? engine->singletonInstance<Appearance *>(type) : nullptr;
    if (appearance == nullptr)
        qFatal("The window has no appearance.");
    return *appearance;
}

void WindowFixture::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(&m_loadwick->window(), key, modifiers);
}

void WindowFixture::choose(const std::filesystem::path &folder)
{
    m_chooser->answer = folder;
    press(Qt::Key_O, Qt::ControlModifier);
}

void WindowFixture::scan(const std::filesystem::path &folder)
{
    choose(folder);
    press(Qt::Key_R, Qt::ControlModifier);
    finishScan();
}

void WindowFixture::pressButton(const QString &name) const
{
    QAccessibleInterface *button = find(name);
    QVERIFY2(button != nullptr && button->actionInterface() != nullptr, qPrintable(name));
    button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

QAccessibleInterface *WindowFixture::find(const QString &name) const
{
    return findBelow(QAccessible::queryAccessibleInterface(&m_loadwick->window()), name);
}

bool WindowFixture::isPressable(const QString &name) const
{
    QAccessibleInterface *found = find(name);
    return found != nullptr && !found->state().disabled;
}

} // namespace Loadwick
