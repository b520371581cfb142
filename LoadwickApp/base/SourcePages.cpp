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

class SourcePages final : public QQmlAbstractUrlInterceptor
{
public:
    SourcePages()
    {
        QDirIterator pages(sourceTree, {QStringLiteral("*.qml")}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (pages.hasNext()) {
            const QUrl page = QUrl::fromLocalFile(pages.next());
            m_pages.insert(QStringLiteral("qrc:/qt/qml/Loadwick/") + page.fileName(), page);
        }
    }

    QUrl intercept(const QUrl &url, DataType) override
    {
        return m_pages.value(url.toString(), url);
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
