#include "shell/ContentPresenter.h"

#include <algorithm>
#include <variant>

#include "base/QtText.h"

namespace Loadwick {
namespace {

using Status = ContentPresenter::Status;

struct StatusOf
{
    Status operator()(const ScanState::Idle &) const { return Status::Idle; }
    Status operator()(const ScanState::Scanning &) const { return Status::Scanning; }
    Status operator()(const ScanState::Result &) const { return Status::Complete; }
    Status operator()(const ScanState::Failed &) const { return Status::Failed; }
};

std::vector<ListOf<AppPage>::Role> pageRoles()
{
    return {
        {"title", [](AppPage page) { return qtText(page.title()); }},
        {"symbol", [](AppPage page) { return qtText(page.symbol()); }},
        {"shortcut", [](AppPage page) { return QStringLiteral("Ctrl+%1").arg(page + 1); }},
    };
}

} // namespace

ContentPresenter::ContentPresenter(ScanModel &model, FolderChooser &chooser)
    : m_model(model), m_chooser(chooser), m_pages(pageRoles())
{
    m_pages.setRows({AppPage::all.begin(), AppPage::all.end()});
    m_model.selection().observe({.didChange = [this] {
        Q_EMIT selectionChanged();
        Q_EMIT commandsChanged();
    }});
    m_model.state().observe({.didChange = [this] {
        Q_EMIT stateChanged();
        Q_EMIT commandsChanged();
    }});
}

bool ContentPresenter::hasRepository() const
{
    return m_model.selection().get().has_value();
}

QString ContentPresenter::repositoryName() const
{
    const auto &selection = m_model.selection().get();
    return selection ? qtText(selection->displayName) : tr("No repository selected");
}

QString ContentPresenter::repositoryDetail() const
{
    const auto &selection = m_model.selection().get();
    return selection ? qtText(selection->path())
                     : tr("Choose a local repository to begin one scan.");
}

QString ContentPresenter::selectionWords() const
{
    return hasRepository() ? tr("Repository %1 chosen").arg(repositoryName()) : QString();
}

ContentPresenter::Status ContentPresenter::status() const
{
    return std::visit(StatusOf{}, m_model.state().get().value());
}

QString ContentPresenter::statusTitle() const
{
    switch (status()) {
    case Status::Idle:
        return tr("Ready to scan");
    case Status::Scanning:
        return tr("Scanning");
    case Status::Failed:
        return tr("Scan failed");
    case Status::Complete:
        return tr("Scan complete");
    }
    return {};
}

QString ContentPresenter::statusSymbol() const
{
    switch (status()) {
    case Status::Idle:
        return QStringLiteral("circle");
    case Status::Scanning:
        return QStringLiteral("arrow.triangle.2.circlepath");
    case Status::Failed:
        return QStringLiteral("exclamationmark.triangle.fill");
    case Status::Complete:
        return QStringLiteral("checkmark.circle.fill");
    }
    return {};
}

bool ContentPresenter::canChoose() const
{
    return !m_model.state().get().isScanning();
}

bool ContentPresenter::canScan() const
{
    return m_model.canScan();
}

bool ContentPresenter::scanIsNextStep() const
{
    return canScan() && status() != Status::Complete;
}

QString ContentPresenter::scanTitle() const
{
    if (m_model.state().get().isScanning())
        return tr("Scanning…");
    return hasRepository() ? tr("Scan Again") : tr("Scan");
}

QString ContentPresenter::longestScanTitle()
{
    return std::max(
        {tr("Scanning…"), tr("Scan Again"), tr("Scan")},
        [](const QString &one, const QString &other) { return one.size() < other.size(); });
}

QString ContentPresenter::allowanceDisclosure() const
{
    return qtText(ScanModel::allowanceDisclosure);
}

void ContentPresenter::setPageIndex(int index)
{
    const bool isPage = index >= 0 && index < static_cast<int>(AppPage::all.size());
    showPage(AppPage::all[isPage ? static_cast<std::size_t>(index) : 0]);
}

QString ContentPresenter::pageWords() const
{
    return tr("%1 page").arg(qtText(AppPage(m_page).title()));
}

void ContentPresenter::chooseFolder()
{
    if (canChoose())
        m_chooser.open([this](const std::filesystem::path &folder) { choose(folder); });
}

void ContentPresenter::choose(const std::filesystem::path &folder)
{
    if (!canChoose())
        return;
    m_model.select(RepoSelection::fromUrl(folder));
    showPage(AppPage::overview);
}

void ContentPresenter::scan()
{
    m_model.scan();
}

void ContentPresenter::showTrends()
{
    showPage(AppPage::trends);
}

void ContentPresenter::showPage(AppPage page)
{
    if (m_page == page)
        return;
    m_page = page;
    Q_EMIT pageIndexChanged();
}

} // namespace Loadwick

#include "moc_ContentPresenter.cpp"
