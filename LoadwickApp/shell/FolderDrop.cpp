#include "shell/FolderDrop.h"

#include <exception>
#include <utility>

#include <QPointer>

#include "base/FolderUrl.h"

namespace Loadwick {

FolderDrop::FolderDrop(ContentPresenter &content, std::shared_ptr<TaskDispatcher> dispatcher)
    : m_content(content), m_dispatcher(std::move(dispatcher))
{}

bool FolderDrop::accepts(const QList<QUrl> &urls) const
{
    return onlyPlace(urls).has_value();
}

QString FolderDrop::objection(const QList<QUrl> &urls) const
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
    const auto place = onlyPlace(urls);
    if (!place)
        return;
    const QPointer<FolderDrop> drop(this);
    try {
        m_dispatcher->runInBackground([drop, place = *place, dispatcher = m_dispatcher] {
            dispatcher->postToInterface([drop, place, isChoosable = isFolder(place)] {
                if (drop && isChoosable)
                    drop->m_content.choose(place);
                else if (drop)
                    Q_EMIT drop->refused();
            });
        });
    } catch (const std::exception &) {
        // No thread is to be had: the dialog remains.
    }
}

std::optional<std::filesystem::path> FolderDrop::onlyPlace(const QList<QUrl> &urls) const
{
    return m_content.canChoose() && urls.size() == 1 ? folderPath(urls.first()) : std::nullopt;
}

} // namespace Loadwick
