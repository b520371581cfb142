#pragma once

#include <filesystem>
#include <memory>
#include <optional>

#include <QList>
#include <QObject>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

#include "model/TaskDispatcher.h"
#include "shell/ContentPresenter.h"

namespace Loadwick {

/// Accepts a folder that is dropped on the window, as if it came from the folder dialog. Belongs to
/// the interface thread; the presenter outlives it.
class FolderDrop final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the window.")

public:
    FolderDrop(ContentPresenter &content, std::shared_ptr<TaskDispatcher> dispatcher);

    /// Whether the dragged item may be dropped: one local path, while no scan runs. Whether it is a
    /// folder is not known yet, since its disk may take any time to answer.
    Q_INVOKABLE bool accepts(const QList<QUrl> &urls) const;

    /// Why the dragged item may not be dropped, for the user to read. Empty if it may, or if it is
    /// not a file at all.
    Q_INVOKABLE QString refusalReason(const QList<QUrl> &urls) const;

    /// Chooses the dropped path once it proves to be a folder, unless a scan was started meanwhile.
    Q_INVOKABLE void take(const QList<QUrl> &urls);

Q_SIGNALS:
    /// The dropped item is not a folder.
    void refused();

private:
    [[nodiscard]] std::optional<std::filesystem::path> onlyFolder(const QList<QUrl> &urls) const;

    ContentPresenter &m_content;
    std::shared_ptr<TaskDispatcher> m_dispatcher;
};

} // namespace Loadwick
