#pragma once

#include <filesystem>

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "base/ListOf.h"
#include "dialogs/FolderChooser.h"
#include "model/ScanModel.h"
#include "shell/AppPage.h"

namespace Loadwick {

/// What the frame of the window shows, and its two commands. Belongs to the interface thread; model
/// and chooser outlive it, and the model must not change afterwards.
class ContentPresenter final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the window.")
    Q_PROPERTY(bool hasRepository READ hasRepository NOTIFY selectionChanged)
    Q_PROPERTY(QString repositoryName READ repositoryName NOTIFY selectionChanged)
    Q_PROPERTY(QString repositoryDetail READ repositoryDetail NOTIFY selectionChanged)
    Q_PROPERTY(QString selectionWords READ selectionWords NOTIFY selectionChanged)
    Q_PROPERTY(Status status READ status NOTIFY stateChanged)
    Q_PROPERTY(QString statusTitle READ statusTitle NOTIFY stateChanged)
    Q_PROPERTY(QString statusSymbol READ statusSymbol NOTIFY stateChanged)
    Q_PROPERTY(bool canChoose READ canChoose NOTIFY stateChanged)
    Q_PROPERTY(bool canScan READ canScan NOTIFY commandsChanged)
    Q_PROPERTY(bool scanIsNextStep READ scanIsNextStep NOTIFY commandsChanged)
    Q_PROPERTY(QString scanTitle READ scanTitle NOTIFY commandsChanged)
    Q_PROPERTY(QString longestScanTitle READ longestScanTitle CONSTANT)
    Q_PROPERTY(QString allowanceDisclosure READ allowanceDisclosure CONSTANT)
    Q_PROPERTY(Loadwick::RowList *pages READ pages CONSTANT)
    Q_PROPERTY(int pageIndex READ pageIndex WRITE setPageIndex NOTIFY pageIndexChanged)
    Q_PROPERTY(QString pageWords READ pageWords NOTIFY pageIndexChanged)

public:
    enum class Status
    {
        Idle,
        Scanning,
        Failed,
        Complete
    };
    Q_ENUM(Status)

    ContentPresenter(ScanModel &model, FolderChooser &chooser);

    [[nodiscard]] bool hasRepository() const;
    [[nodiscard]] QString repositoryName() const;
    /// The folder's whole path, or what to do while none is chosen.
    [[nodiscard]] QString repositoryDetail() const;
    /// Says what was chosen, for a screen reader; empty while nothing is.
    [[nodiscard]] QString selectionWords() const;

    [[nodiscard]] Status status() const;
    [[nodiscard]] QString statusTitle() const;
    [[nodiscard]] QString statusSymbol() const;

    [[nodiscard]] bool canChoose() const;
    [[nodiscard]] bool canScan() const;
    /// A scan can be started, and the selection has no result yet.
    [[nodiscard]] bool scanIsNextStep() const;
    [[nodiscard]] QString scanTitle() const;
    /// The longest value of scanTitle.
    [[nodiscard]] static QString longestScanTitle();
    [[nodiscard]] QString allowanceDisclosure() const;

    /// One row per page, "title", "symbol" and "shortcut", in the order of the sidebar.
    [[nodiscard]] RowList *pages() { return &m_pages; }

    /// The page's index in that order. Setting an index out of range shows the first page.
    [[nodiscard]] int pageIndex() const noexcept { return static_cast<int>(m_page); }
    void setPageIndex(int index);
    Q_INVOKABLE void showTrends();
    /// Names the page that is shown, for a screen reader.
    [[nodiscard]] QString pageWords() const;

    /// Lets the user choose a folder and then shows the Overview; does nothing while a scan runs.
    Q_INVOKABLE void chooseFolder();
    /// The same for a folder that is already known.
    void choose(const std::filesystem::path &folder);

    Q_INVOKABLE void scan();

Q_SIGNALS:
    void selectionChanged();
    void stateChanged();
    void commandsChanged();
    void pageIndexChanged();

private:
    void showPage(AppPage page);

    ScanModel &m_model;
    FolderChooser &m_chooser;
    ListOf<AppPage> m_pages;
    AppPage::Value m_page = AppPage::overview;
};

} // namespace Loadwick
