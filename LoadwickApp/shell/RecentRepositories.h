#pragma once

#include <filesystem>
#include <memory>
#include <optional>

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "base/ListOf.h"
#include "model/ScanModel.h"
#include "model/TaskDispatcher.h"
#include "shell/ContentPresenter.h"

namespace Loadwick {

/// The repositories of the recorded scans, to be chosen again without the folder dialog. Belongs to
/// the interface thread; model and presenter outlive it, and the model must not change afterwards.
class RecentRepositories final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the window.")
    Q_PROPERTY(Loadwick::RowList *rows READ rows CONSTANT)
    Q_PROPERTY(int count READ count NOTIFY changed)

public:
    static constexpr std::size_t longestList = 10;

    struct Row
    {
        QString title;
        QString path; ///< the folder, as text
        std::filesystem::path folder;
        std::optional<bool> exists = {}; ///< unknown until checked
        bool isCurrent = false;          ///< the repository that is chosen now
    };

    RecentRepositories(ScanModel &model, ContentPresenter &content,
                       std::shared_ptr<TaskDispatcher> dispatcher);

    /// Most recently scanned first: "title", "detail" (where it is, or was), "exists" (false until
    /// checked) and "isCurrent".
    [[nodiscard]] RowList *rows() { return &m_rows; }
    [[nodiscard]] int count() const { return m_rows.count(); }

    /// Checks in the background which of the folders exist.
    Q_INVOKABLE void checkFolders();

    /// Chooses the repository of that row, if its folder exists and no scan runs. The current one
    /// keeps its result, which the Overview then shows.
    Q_INVOKABLE void choose(int row);

Q_SIGNALS:
    void changed();

private:
    void showHistory();
    void showSelection();
    void check(const std::filesystem::path &folder);
    void setExists(const std::filesystem::path &folder, bool exists);

    ScanModel &m_model;
    ContentPresenter &m_content;
    std::shared_ptr<TaskDispatcher> m_dispatcher;
    ListOf<Row> m_rows;
};

} // namespace Loadwick
