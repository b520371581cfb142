#include "icons/SymbolPictures.h"

#include <QTest>

#include "support/TestRegistry.h"

namespace Loadwick {

class SymbolPicturesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onePictureIsMadeOnce()
    {
        const QImage first = find("test:once");
        QCOMPARE(find("test:once"), first);
        QCOMPARE(m_madeCount, 1);
    }

    void anotherKeyHasAnotherPicture()
    {
        QVERIFY(find("test:one") != find("test:other"));
        QCOMPARE(m_madeCount, 2);
    }

    void ofVeryManyTheOldestAreForgotten()
    {
        (void)find("test:oldest");
        for (int count = 0; count < 1'000; ++count)
            (void)find(QByteArray::number(count).constData());
        (void)find("test:oldest");
        QCOMPARE(m_madeCount, 1'002);
    }

    void init() { m_madeCount = 0; }

private:
    QImage find(const char *key)
    {
        return SymbolPictures::find(QString::fromLatin1(key), [this] {
            QImage image(1, 1, QImage::Format_ARGB32);
            image.fill(QColor(++m_madeCount % 256, 0, 0));
            return image;
        });
    }

    int m_madeCount = 0;
};

const RegisteredTest<SymbolPicturesTest> registered("SymbolPictures");

} // namespace Loadwick

#include "SymbolPicturesTest.moc"
