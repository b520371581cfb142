#pragma once

#include <filesystem>
#include <optional>

#include <QFileDialog>
#include <QPointer>
#include <QUrl>
#include <QWindow>

namespace Loadwick {

/// The desktop's dialog for folders and files, or Qt's own if the desktop has none. Modal to one of
/// the program's windows and in its colours. Deletes itself when it is closed.
class FileDialog final : public QFileDialog
{
    Q_OBJECT

public:
    explicit FileDialog(QWindow &window);

    /// The chosen path, byte for byte; nothing for a file on another machine.
    [[nodiscard]] std::optional<std::filesystem::path> chosenPath() const;

    /// The ending that a file to save still needs: that of the chosen kind, unless the name already
    /// has the ending of one of the kinds. Another dot does not begin an ending: the "2" of
    /// "notes v1.2" does not name a kind.
    [[nodiscard]] QString missingEnding(const QString &name) const;

    [[nodiscard]] bool isDone() const noexcept { return m_isDone; }

protected:
    void accept() override;
    void done(int result) override;
    void childEvent(QChildEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    [[nodiscard]] bool takesAddress(const QString &text);
    void deleteAfterItsLoops();

    const int m_loopLevel;                            ///< of the event loop that opened it
    std::optional<std::filesystem::path> m_addressed; ///< by the typed address
    bool m_isDone = false;
};

/// Opens the dialogs of one purpose, one at a time.
class FileDialogOpener
{
public:
    explicit FileDialogOpener(const QUrl &startFolder) : m_folder(startFolder) {}
    ~FileDialogOpener() { delete m_dialog; }

    FileDialogOpener(const FileDialogOpener &) = delete;
    FileDialogOpener &operator=(const FileDialogOpener &) = delete;

    void attach(QWindow &window) { m_window = &window; }

    /// A dialog in the folder that the last one showed; null while that one is open, and without a
    /// window.
    [[nodiscard]] FileDialog *newDialog();

private:
    QPointer<QWindow> m_window;
    QPointer<FileDialog> m_dialog;
    QUrl m_folder;
};

} // namespace Loadwick
