#include "export/PictureFrame.h"

#include <QGuiApplication>
#include <QImage>
#include <QTest>
#include <QXmlStreamReader>

#include "charts/DonutChart.h"
#include "support/TestRegistry.h"

namespace Loadwick {
namespace {

constexpr QSizeF chart(400, 100);

std::unique_ptr<PictureFrame> frame(const QString &title, const QStringList &lines)
{
    auto frame = std::make_unique<PictureFrame>();
    frame->setProperty("title", title);
    frame->setProperty("lines", lines);
    frame->setProperty("textColor", QColor(Qt::black));
    frame->setProperty("secondaryTextColor", QColor(Qt::blue));
    frame->setProperty("ground", QColor(Qt::white));
    return frame;
}

QImage picture(const PictureFrame &frame, QPointF *origin = nullptr)
{
    QImage image(frame.sizeAround(chart), QImage::Format_RGB32);
    image.fill(Qt::red);
    QPainter painter(&image);
    frame.paint(painter, image.size());
    if (origin != nullptr)
        *origin = painter.transform().map(QPointF(0, 0));
    return image;
}

/// The outermost columns that differ from the ground.
QPair<int, int> inkedColumns(const QImage &image)
{
    int first = image.width();
    int last = -1;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) == qRgb(255, 255, 255))
                continue;
            first = std::min(first, x);
            last = std::max(last, x);
        }
    }
    return {first, last};
}

} // namespace

class PictureFrameTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }

    void theChartIsBelowTheWordsWithinTheMargin()
    {
        QPointF origin;
        const QImage image = picture(*frame(words(), {words()}), &origin);
        QCOMPARE(image.width(), 432);
        QCOMPARE(origin.x(), 16.0);
        QVERIFY(origin.y() > 32);
        QVERIFY(origin.y() + chart.height() + 16 <= image.height());
        QVERIFY(origin.y() + chart.height() + 16 > image.height() - 2);
    }

    void everyLineAddsHeight()
    {
        const int one = frame(words(), {words()})->sizeAround(chart).height();
        const int two = frame(words(), {words(), words()})->sizeAround(chart).height();
        QVERIFY(two > one + 8);
    }

    void aLongWordIsBroken()
    {
        const auto [first, last] = inkedColumns(picture(*frame(QString(300, u'n'), {})));
        QVERIFY(first >= 14);
        QVERIFY(last <= 432 - 14);
    }

    void aLineFeedInANameBreaksTheLine()
    {
        const int one = frame(QStringLiteral("a b"), {})->sizeAround(chart).height();
        const int two = frame(QStringLiteral("a\nb"), {})->sizeAround(chart).height();
        QVERIFY(two > one + 8);
    }

    void alignsWordsRightInRightToLeftLayouts()
    {
        QVERIFY(inkedColumns(picture(*frame(words(), {}))).first < 60);
        QGuiApplication::setLayoutDirection(Qt::RightToLeft);
        QVERIFY(inkedColumns(picture(*frame(words(), {}))).first > 60);
    }

    void aDrawingOfAnyNameIsWellFormed()
    {
        const QString name = QStringLiteral("R&D <1> \"a\" ") + QChar(0x1B) + QChar(0xFFFE);
        DonutChart donut;
        donut.setSize(chart);
        QXmlStreamReader reader(frame(name, {name})->svg(donut)());
        QString title;
        while (!reader.atEnd())
            if (reader.readNext() == QXmlStreamReader::StartElement &&
                reader.name() == QLatin1String("title"))
                title = reader.readElementText();
        QCOMPARE(reader.errorString(), QString());
        QCOMPARE(title, QStringLiteral("R&D <1> \"a\" \uFFFD\uFFFD"));
    }

private:
    static QString words() { return QStringLiteral("Startup tokens"); }
};

const RegisteredTest<PictureFrameTest> registered("PictureFrame");

} // namespace Loadwick

#include "PictureFrameTest.moc"
