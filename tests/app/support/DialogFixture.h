#pragma once

#include <memory>

#include <QByteArray>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QQuickWindow>
#include <QUrl>

#include "samples/TemporaryFolder.h"

namespace Loadwick {

/// A window over which dialogs of Qt's own open, and a folder for them, which is also the home.
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

    /// The dialog that is open; null when none is.
    [[nodiscard]] static QFileDialog *dialog();
    [[nodiscard]] static QLineEdit &nameField();
    [[nodiscard]] static QPushButton &button(QDialogButtonBox::StandardButton which);
    /// The names in the list, sorted, once there are that many.
    [[nodiscard]] static QStringList listedNames(int count);

    /// Replaces what is in the name field; "$" is the path of the folder.
    void type(const QByteArray &text) const;
    static void press(Qt::Key key);
    /// Presses Enter and answers the question that this leads to; gives its words, or nothing when
    /// no question is asked. Markup in the words would be read as such where `isPlain` is false.
    struct Question
    {
        QString words;
        bool isPlain = false;
    };
    [[nodiscard]] static Question pressEnterAndAnswer(QDialogButtonBox::StandardButton answer);

private:
    QByteArray m_home = qgetenv("HOME");
    TemporaryFolder m_folder;
    QQuickWindow m_window;
};

} // namespace Loadwick
