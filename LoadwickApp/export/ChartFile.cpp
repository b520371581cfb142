#include "export/ChartFile.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QSvgGenerator>

namespace Loadwick::ChartFile {
namespace {

constexpr int pixelsPerPoint = 2;
constexpr int margin = 16;
constexpr int highestImage = 32'000; // above it, many programs open no picture

QSize sizeWithMargin(const QQuickPaintedItem &chart)
{
    const QSize size = chart.size().toSize() + QSize(2 * margin, 2 * margin);
    return size.boundedTo(QSize(highestImage, highestImage) / pixelsPerPoint);
}

void paint(QQuickPaintedItem &chart, QPainter &painter, const QColor &ground)
{
    painter.fillRect(QRect(QPoint(0, 0), sizeWithMargin(chart)), ground);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(margin, margin);
    chart.paint(&painter);
}

} // namespace

Bytes png(QQuickPaintedItem &chart, const QColor &ground)
{
    QImage image(sizeWithMargin(chart) * pixelsPerPoint, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.scale(pixelsPerPoint, pixelsPerPoint);
    paint(chart, painter, ground);
    painter.end();
    return [image] {
        QBuffer file;
        file.open(QIODevice::WriteOnly);
        image.save(&file, "PNG");
        return file.data();
    };
}

Bytes svg(QQuickPaintedItem &chart, const QColor &ground)
{
    QBuffer file;
    QSvgGenerator generator;
    generator.setOutputDevice(&file);
    generator.setSize(sizeWithMargin(chart));
    generator.setViewBox(QRect(QPoint(0, 0), sizeWithMargin(chart)));
    QPainter painter(&generator);
    paint(chart, painter, ground);
    painter.end();
    return [bytes = file.data()] { return bytes; };
}

} // namespace Loadwick::ChartFile
