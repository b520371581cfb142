#include "icons/Symbol.h"

#include "support/TestRegistry.h"

#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTest>

namespace Loadwick {
namespace {

QImage painted(Symbol &symbol, qreal scale = 1)
{
    QImage image((symbol.size() * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    symbol.paint(&painter);
    return image;
}

bool isEmpty(const QImage &image)
{
    QImage nothing = image;
    nothing.fill(Qt::transparent);
    return image == nothing;
}

// Partly covered pixels: the edge of the drawing.
int softPixels(const QImage &image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += qAlpha(image.pixel(x, y)) > 0 && qAlpha(image.pixel(x, y)) < 255 ? 1 : 0;
    return count;
}

} // namespace

class SymbolTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isSixteenPixelsWideByItself()
    {
        const Symbol symbol;
        QCOMPARE(symbol.implicitWidth(), 16.0);
        QCOMPARE(symbol.implicitHeight(), 16.0);
    }

    void paintsInItsTintOnly()
    {
        Symbol symbol;
        symbol.setSize({48, 48});
        symbol.setName(QStringLiteral("folder.fill"));
        symbol.setTint(QColor(36, 96, 216));
        const QImage image = painted(symbol);
        QCOMPARE(image.pixelColor(24, 28), QColor(36, 96, 216));
        QCOMPARE(qAlpha(image.pixel(0, 0)), 0);
    }

    void aTranslucentTintIsEvenlyTranslucent()
    {
        Symbol symbol;
        symbol.setSize({48, 48});
        symbol.setName(QStringLiteral("folder.fill"));
        symbol.setTint(QColor(0, 0, 0, 100));
        const QImage image = painted(symbol);
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                QVERIFY(qAlpha(image.pixel(x, y)) <= 100);
        QCOMPARE(qAlpha(image.pixel(24, 28)), 100);
    }

    void anUnknownNamePaintsNothingAndWarns()
    {
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral("symbol \"unicorn\"")));
        Symbol symbol;
        symbol.setSize({16, 16});
        symbol.setName(QStringLiteral("unicorn"));
        QVERIFY(isEmpty(painted(symbol)));
    }

    void anEmptyNameSilentlyPaintsNothing()
    {
        Symbol symbol;
        symbol.setSize({16, 16});
        symbol.setName(QStringLiteral("circle"));
        symbol.setName(QString());
        QVERIFY(isEmpty(painted(symbol)));
    }

    void isDrawnAtTheResolutionOfTheScreen()
    {
        Symbol small;
        small.setSize({24, 24});
        small.setName(QStringLiteral("square.grid.2x2"));
        Symbol large;
        large.setSize({72, 72});
        large.setName(QStringLiteral("square.grid.2x2"));
        QImage scaled = painted(small, 3);
        scaled.setDevicePixelRatio(1);
        QCOMPARE(scaled, painted(large));
    }

    void isCentredInAnOblongItem()
    {
        Symbol symbol;
        symbol.setSize({64, 16});
        symbol.setName(QStringLiteral("checkmark.circle.fill"));
        const QImage image = painted(symbol);
        QVERIFY(isEmpty(image.copy(0, 0, 24, 16)));
        QVERIFY(isEmpty(image.copy(40, 0, 24, 16)));
        QVERIFY(!isEmpty(image.copy(24, 0, 16, 16)));
    }

    void turnsWithItsAngle()
    {
        Symbol right;
        right.setSize({40, 40});
        right.setName(QStringLiteral("chevron.right"));
        const QImage before = painted(right);
        right.setAngle(90);
        QVERIFY(painted(right) != before);
        right.setAngle(45);
        QVERIFY2(softPixels(painted(right)) > 20, "a turned edge is smooth");
    }

    void signalsChanges()
    {
        Symbol symbol;
        const QSignalSpy names(&symbol, &Symbol::nameChanged);
        const QSignalSpy tints(&symbol, &Symbol::tintChanged);
        const QSignalSpy angles(&symbol, &Symbol::angleChanged);
        for (int time = 0; time < 2; ++time) {
            symbol.setName(QStringLiteral("circle"));
            symbol.setTint(Qt::red);
            symbol.setAngle(10);
        }
        QCOMPARE(names.size(), 1);
        QCOMPARE(tints.size(), 1);
        QCOMPARE(angles.size(), 1);
    }

    void cachesAPicture() { QCOMPARE(picture("test:once"), picture("test:once")); }

    void anotherKeyHasAnotherPicture() { QVERIFY(picture("test:one") != picture("test:other")); }

    void evictsTheLeastRecentlyUsedPictures()
    {
        m_madeCount = 0;
        (void)picture("test:oldest");
        for (int count = 0; count < 1'000; ++count)
            (void)picture(QByteArray::number(count).constData());
        (void)picture("test:oldest");
        QCOMPARE(m_madeCount, 1'002);
    }

    void keepsNoPictureOfAMovement()
    {
        Symbol symbol;
        symbol.setSize({8, 8});
        symbol.setName(QStringLiteral("chevron.right"));
        m_madeCount = 0;
        (void)picture("test:kept");
        for (int count = 0; count < 1'000; ++count) {
            symbol.setAngle(0.0899 * (count + 1));
            (void)painted(symbol);
        }
        (void)picture("test:kept");
        QCOMPARE(m_madeCount, 1);
    }

private:
    /// A different colour each time it is rendered.
    QImage picture(const char *key)
    {
        return SymbolPictures::find(QString::fromLatin1(key), [this] {
            QImage image(1, 1, QImage::Format_ARGB32);
            image.fill(QColor(++m_madeCount % 256, 0, 0));
            return image;
        });
    }

    int m_madeCount = 0;
};

const RegisteredTest<SymbolTest> registered("Symbol");

} // namespace Loadwick

#include "SymbolTest.moc"
