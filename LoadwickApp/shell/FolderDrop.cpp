#include "shell/FolderDrop.h"

#include <utility>

#include "base/FolderUrl.h"
#include "base/QtTaskDispatcher.h"

namespace Loadwick {

FolderDrop::FolderDrop(ContentPresenter &content, std::shared_ptr<TaskDispatcher> dispatcher)
    : m_content(content), m_dispatcher(std::move(dispatcher))
{}

bool FolderDrop::accepts(const QList<QUrl> &urls) const
{
    return onlyFolder(urls).has_value();
}

QString FolderDrop::refusalReason(const QList<QUrl> &urls) const
{
    if (urls.isEmpty() || accepts(urls))
        return {};
    if (!m_content.canChoose())
        return tr("A folder can be chosen when the scan has ended.");
    return urls.size() > 1 ? tr("Only one folder can be chosen at a time.")
                           : tr("Only a folder of this computer can be chosen.");
}

void FolderDrop::take(const QList<QUrl> &urls)
{
    const auto folder = onlyFolder(urls);
    if (!folder)
        return;
    const auto look = [folder = *folder] { return isFolder(folder); };
    const auto settle = [this, folder = *folder](bool isChoosable) {
        if (isChoosable)
            m_content.choose(folder);
        else
            Q_EMIT refused();
    };
    // Without a thread the drop is lost; the dialog remains.
    inBackground(this, m_dispatcher, look, settle);
}

std::optional<std::filesystem::path> FolderDrop::onlyFolder(const QList<QUrl> &urls) const
{
    return m_content.canChoose() && urls.size() == 1 ? folderPath(urls.first()) : std::nullopt;
}

} // namespace Loadwick

#include "moc_FolderDrop.cpp"
