#pragma once

#include <QByteArray>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include "samples/TemporaryFolder.h"

namespace Loadwick {

/// A window without anything else, for a dialog that Qt draws itself to show a folder in it.
class DialogWindow
{
public:
    DialogWindow();

    [[nodiscard]] QQmlEngine &engine() noexcept { return m_engine; }
    [[nodiscard]] QQuickWindow &window() noexcept { return m_window; }
    [[nodiscard]] const TemporaryFolder &folder() const noexcept { return m_folder; }
    [[nodiscard]] QUrl folderUrl() const;

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Into the field that has the keyboard, in place of what stands there.
    void type(const QByteArray &text);

    /// The control that has that text as its property; null when none shows.
    [[nodiscard]] QQuickItem *find(const char *property, const QString &text) const;
    /// What assistive technology finds under that name; null when it does not show.
    [[nodiscard]] QQuickItem *findNamed(const QString &name) const;
    void click(const QQuickItem *item);
    void doubleClick(const QQuickItem *item);

    /// The object name of what has the keyboard.
    [[nodiscard]] QString focusedName() const;

private:
    TemporaryFolder m_folder;
    QQmlEngine m_engine;
    QQuickWindow m_window;
};

} // namespace Loadwick
