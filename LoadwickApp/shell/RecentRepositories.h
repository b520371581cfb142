#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <set>
#include <vector>

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "base/ListOf.h"
#include "model/ScanModel.h"
#include "model/TaskDispatcher.h"
#include "shell/ContentPresenter.h"
#include "text/TextLocale.h"

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
    Q_PROPERTY(QString filter READ filter WRITE setFilter NOTIFY filterChanged)
    Q_PROPERTY(QString matchWords READ matchWords NOTIFY filterChanged)

public:
    struct Row
    {
        QString title;
        QString path; ///< the folder, as text
        std::filesystem::path folder;
        std::int64_t total;              ///< tokens, of the latest scan
        std::optional<bool> exists = {}; ///< unknown until checked
        bool isCurrent = false;          ///< the repository that is chosen now
    };

    RecentRepositories(ScanModel &model, ContentPresenter &content,
                       std::shared_ptr<TaskDispatcher> dispatcher, TextLocale locale = {});

    /// Those that match the filter, the one scanned last first: "title", "detail" (where it is, or
    /// was), "figure" (the latest total), "band" (of that total, its number), "exists" (false until
    /// checked), "isCurrent" and "words" (title, total and band, for a screen reader).
    [[nodiscard]] RowList *rows() { return &m_rows; }
    /// Of all, whatever the filter.
    [[nodiscard]] int count() const { return static_cast<int>(m_all.size()); }

    /// Part of a name or a path, in any case; white space around it does not count.
    [[nodiscard]] QString filter() const { return m_filter; }
    void setFilter(const QString &filter);
    /// How many match the filter, or how many there are without one, for a screen reader.
    [[nodiscard]] QString matchWords() const;

    /// Checks in the background which of the folders exist.
    Q_INVOKABLE void checkFolders();

    /// The first row from `row` on, in steps of `step`, whose folder exists; -1 if there is none.
    Q_INVOKABLE [[nodiscard]] int usableFrom(int row, int step) const;

    /// Chooses the repository of that row, if its folder exists and no scan runs. The current one
    /// keeps its result, which the Overview then shows.
    Q_INVOKABLE void choose(int row);

Q_SIGNALS:
    void changed();
    void filterChanged();

private:
    [[nodiscard]] std::vector<ListOf<Row>::Role> roles() const;
    [[nodiscard]] std::vector<Row> matches() const;
    [[nodiscard]] QString grouped(std::int64_t number) const;
    void showHistory();
    void showSelection();
    void check(const std::filesystem::path &folder);
    void setExists(const std::filesystem::path &folder, bool exists);

    ScanModel &m_model;
    ContentPresenter &m_content;
    std::shared_ptr<TaskDispatcher> m_dispatcher;
    TextLocale m_locale;
    std::vector<Row> m_all;
    std::set<std::filesystem::path> m_pending; ///< folders being checked
    QString m_filter;
    ListOf<Row> m_rows;
};

} // namespace Loadwick
