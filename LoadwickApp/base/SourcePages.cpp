#include "base/SourcePages.h"

#include <QDirIterator>
#include <QHash>
#include <QQmlAbstractUrlInterceptor>
#include <QQmlEngine>
#include <QUrl>

namespace Loadwick {
namespace {

/// The tree that the pages are read from; empty if they are built into the program only.
const QString sourceTree = QStringLiteral(LOADWICK_SOURCE_PAGES);

const QString inProgram = QStringLiteral("qrc:/qt/qml/Loadwick/");

class SourcePages final : public QQmlAbstractUrlInterceptor
{
public:
    SourcePages()
    {
        QDirIterator pages(sourceTree, {QStringLiteral("*.qml")}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (pages.hasNext()) {
            const QUrl page = QUrl::fromLocalFile(pages.next());
            m_pages.insert(inProgram + page.fileName(), page);
        }
    }

    /// A page is read from its file, but keeps the address in the program: it is its type's
    /// identity.
    QUrl intercept(const QUrl &url, DataType kind) override
    {
        const QString address = inProgram + url.fileName();
        if (kind == QmlFile)
            return m_pages.value(url.toString(), url);
        return url.isLocalFile() && m_pages.contains(address) ? QUrl(address) : url;
    }

private:
    QHash<QString, QUrl> m_pages; ///< by their URL in the program
};

} // namespace

void readPagesFromSource(QQmlEngine &engine)
{
    if (sourceTree.isEmpty())
        return;
    static SourcePages pages;
    engine.addUrlInterceptor(&pages);
}

} // namespace Loadwick
