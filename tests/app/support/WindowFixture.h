#pragma once

#include <memory>

#include <QString>

#include "samples/TemporaryFolder.h"
#include "shell/LoadwickWindow.h"
#include "support/FakeDesktop.h"
#include "support/FakeFileSaver.h"
#include "support/FakeFolderChooser.h"
#include "support/FakeNoticeBoard.h"
#include "support/ScanFakes.h"
#include "support/SteppingDispatcher.h"
#include "theme/Appearance.h"

class QAccessibleInterface;

namespace Loadwick {

/// The real window over fakes, shown and ready for keys. Its scans proceed when a test says so. A
/// test that uses this fixture fails on any warning that Qt prints.
class WindowFixture
{
public:
    /// Without a store there is no walk-through.
    explicit WindowFixture(std::shared_ptr<OnboardingCompletionStore> completionStore = {},
                           const TextLocale &locale = {});
    ~WindowFixture();

    WindowFixture(const WindowFixture &) = delete;
    WindowFixture &operator=(const WindowFixture &) = delete;

    [[nodiscard]] LoadwickWindow &loadwick() noexcept { return *m_loadwick; }
    [[nodiscard]] Appearance &appearance() const;
    [[nodiscard]] FakeProbe &probe() noexcept { return *m_probe; }
    [[nodiscard]] FakeInstructionScanner &scanner() noexcept { return *m_scanner; }
    [[nodiscard]] FakeFolderChooser &chooser() noexcept { return *m_chooser; }
    [[nodiscard]] FakeFileSaver &saver() noexcept { return *m_saver; }
    [[nodiscard]] FakeDesktop &desktop() noexcept { return m_desktop; }
    [[nodiscard]] FakeNoticeBoard &notices() noexcept { return *m_notices; }
    [[nodiscard]] const TemporaryFolder &folder() const noexcept { return m_folder; }

    /// Closes and destroys the window.
    void destroy() { m_loadwick.reset(); }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Ctrl+O with `folder` as the answer.
    void choose(const std::filesystem::path &folder);
    void finishScan() { m_dispatcher->runAll(); }
    void finishClearing() { m_dispatcher->runAll(); }
    /// One whole scan of the folder, by the keys.
    void scan(const std::filesystem::path &folder);
    /// Presses the button of that name as assistive technology does.
    void pressButton(const QString &name) const;
    /// Queries whether this is a first launch; the sheet's delay then begins.
    void askForFirstLaunch() { m_dispatcher->runAll(); }

    /// The visible item with that accessible name; null if there is none.
    [[nodiscard]] QAccessibleInterface *find(const QString &name) const;
    [[nodiscard]] bool shows(const QString &name) const { return find(name) != nullptr; }
    [[nodiscard]] bool isPressable(const QString &name) const;

private:
    std::shared_ptr<FakeProbe> m_probe = std::make_shared<FakeProbe>();
    std::shared_ptr<FakeInstructionScanner> m_scanner = std::make_shared<FakeInstructionScanner>();
    std::shared_ptr<SteppingDispatcher> m_dispatcher = std::make_shared<SteppingDispatcher>();
    FakeDesktop m_desktop;
    FakeFolderChooser *m_chooser = nullptr;
    FakeFileSaver *m_saver = nullptr;
    FakeNoticeBoard *m_notices = nullptr;
    TemporaryFolder m_folder;
    std::unique_ptr<LoadwickWindow> m_loadwick;
};

} // namespace Loadwick
