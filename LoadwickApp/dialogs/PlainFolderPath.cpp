#include "dialogs/PlainFolderPath.h"

#include <exception>

#include <QVariant>
#include <QtQuick/private/qquicktextinput_p.h>
#include <QtQuickTemplates2/private/qquickpopup_p.h>

#include "base/FolderUrl.h"
#include "base/QtTaskDispatcher.h"
#include "text/PathText.h"

namespace Loadwick {

PlainFolderPath::PlainFolderPath(QQuickPopup &dialog, QQuickTextInput *field)
    : m_dialog(dialog), m_field(field), m_dispatcher(std::make_shared<QtTaskDispatcher>(*this))
{
    if (field == nullptr)
        return;
    disconnect(field, &QQuickTextInput::accepted, nullptr, nullptr); // Qt's own answer
    connect(field, &QQuickTextInput::accepted, this, &PlainFolderPath::take);
    connect(field, &QQuickTextInput::textEdited, this, [this] { object({}); });
    connect(field, &QQuickItem::visibleChanged, this, [this] { object({}); });
}

void PlainFolderPath::take()
{
    const QString text = m_field->text();
    const QUrl shown = m_dialog.property("currentFolder").toUrl();
    // As it stood there. Its path may have bytes that no text has.
    if (text == shown.toLocalFile())
        enter(shown);
    else if (const auto path = folderPath(typedFileUrl(shown, text)))
        ask(text, standardizedPath(*path));
    else
        object(tr("There is no such folder."));
}

void PlainFolderPath::ask(const QString &text, const std::filesystem::path &path)
{
    const QPointer<PlainFolderPath> asker(this);
    try {
        m_dispatcher->runInBackground([asker, text, path, dispatcher = m_dispatcher] {
            dispatcher->postToInterface([asker, text, path, isThere = isFolder(path)] {
                if (asker)
                    asker->answer(text, path, isThere);
            });
        });
    } catch (const std::exception &) {
        // No thread is to be had: the list remains.
    }
}

void PlainFolderPath::answer(const QString &text, const std::filesystem::path &path, bool isThere)
{
    if (!m_field || !m_field->isVisible() || m_field->text() != text)
        return; // something else was typed meanwhile, or nothing is any more
    if (isThere)
        enter(pathUrl(path));
    else
        object(tr("There is no such folder."));
}

void PlainFolderPath::enter(const QUrl &folder)
{
    m_dialog.setProperty("currentFolder", folder);
    Q_EMIT entered();
}

void PlainFolderPath::object(const QString &words)
{
    m_field->setProperty("objection", words);
}

} // namespace Loadwick
