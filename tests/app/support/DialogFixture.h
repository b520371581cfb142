#pragma once

#include <memory>

#include <QByteArray>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QQuickWindow>
#include <QTimer>
#include <QUrl>

#include "samples/TemporaryFolder.h"

namespace Loadwick {

/// A window over which Qt's own dialogs open, and a folder for them, which is also the home.
class DialogFixture
{
public:
    DialogFixture();
    ~DialogFixture();

    DialogFixture(const DialogFixture &) = delete;
    DialogFixture &operator=(const DialogFixture &) = delete;

    [[nodiscard]] QQuickWindow &window() noexcept { return m_window; }
    [[nodiscard]] const TemporaryFolder &folder() const noexcept { return m_folder; }
    [[nodiscard]] const std::filesystem::path &root() const { return m_folder.path(); }
    [[nodiscard]] QUrl url() const;

    /// The open dialog; null if there is none.
    [[nodiscard]] static QFileDialog *dialog();
    [[nodiscard]] static QLineEdit &nameField();
    [[nodiscard]] static QPushButton &button(QDialogButtonBox::StandardButton which);
    /// The names in the list, sorted, once there are that many.
    [[nodiscard]] static QStringList listedNames(int count);

    /// Replaces the text of the name field; "$" is the path of the folder.
    void type(const QByteArray &text) const;
    static void press(Qt::Key key);
    /// Presses Enter and answers the question that follows; returns its text, or nothing if none is
    /// asked. Markup in the text would be interpreted if `isPlain` is false.
    struct Question
    {
        QString words;
        bool isPlain = false;
    };
    [[nodiscard]] static Question pressEnterAndAnswer(QDialogButtonBox::StandardButton answer);
    /// Presses "Cancel" as soon as there is a widget of another window, in whatever event loop.
    [[nodiscard]] static std::unique_ptr<QTimer> cancelOnce(QWidget *(*other)());

private:
    QByteArray m_home = qgetenv("HOME");
    TemporaryFolder m_folder;
    QQuickWindow m_window;
};

} // namespace Loadwick
