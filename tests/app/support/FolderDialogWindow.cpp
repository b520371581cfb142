#include "support/FolderDialogWindow.h"

#include <QTest>

namespace Loadwick {

FolderDialogWindow::FolderDialogWindow() : m_chooser(folderUrl())
{
    for (const char *name : {"bare", "repository/docs", "repository/src"})
        std::filesystem::create_directories(root() / name);
    m_chooser.attach(engine(), window());
}

void FolderDialogWindow::open()
{
    m_chooser.open([this](const std::filesystem::path &folder) { m_chosen = folder; });
    QTRY_VERIFY(line("repository") != nullptr); // the list is filled late
}

void FolderDialogWindow::enterPath(const std::string &path)
{
    press(Qt::Key_L, Qt::ControlModifier);
    type(QByteArray::fromStdString(path));
    press(Qt::Key_Return);
}

std::filesystem::path FolderDialogWindow::choose()
{
    click(button());
    return m_chosen.value_or("");
}

QQuickItem *FolderDialogWindow::line(const char *name) const
{
    return find("fileName", QString::fromLatin1(name));
}

QQuickItem *FolderDialogWindow::button() const
{
    return find("text", QStringLiteral("Choose"));
}

QString FolderDialogWindow::highlighted() const
{
    const QQuickItem *line = find("highlighted", QStringLiteral("true"));
    return line == nullptr ? QString() : line->property("fileName").toString();
}

} // namespace Loadwick
