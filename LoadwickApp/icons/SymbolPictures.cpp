#include "icons/SymbolPictures.h"

#include <QCache>
#include <QMutex>

namespace Loadwick::SymbolPictures {
namespace {

// More than a page shows in all its sizes and colours; of 16 to 64 pixels they take a megabyte.
constexpr int greatestCount = 200;

} // namespace

// Which thread paints is the renderer's choice.
QImage find(const QString &key, const std::function<QImage()> &make)
{
    static QMutex mutex;
    static QCache<QString, QImage> pictures(greatestCount);
    const QMutexLocker locker(&mutex);
    if (const QImage *known = pictures.object(key))
        return *known;
    const QImage made = make();
    pictures.insert(key, new QImage(made));
    return made;
}

} // namespace Loadwick::SymbolPictures
