#include "export/ChartFile.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QSvgGenerator>

namespace Loadwick::ChartFile {
namespace {

constexpr int pixelsPerPoint = 2;
constexpr int highestImage = 32'000; // above it, many programs open no picture

QSize sizeOf(const QQuickPaintedItem &chart, const PictureFrame &frame)
{
    return frame.sizeAround(chart.size())
        .boundedTo(QSize(highestImage, highestImage) / pixelsPerPoint);
}

void paint(QQuickPaintedItem &chart, const PictureFrame &frame, QPainter &painter)
{
    painter.setRenderHint(QPainter::Antialiasing);
    frame.paint(painter, sizeOf(chart, frame));
    chart.paint(&painter);
}

} // namespace

Bytes png(QQuickPaintedItem &chart, const PictureFrame &frame)
{
    QImage image(sizeOf(chart, frame) * pixelsPerPoint, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.scale(pixelsPerPoint, pixelsPerPoint);
    paint(chart, frame, painter);
    painter.end();
    return [image] {
        QBuffer file;
        file.open(QIODevice::WriteOnly);
        image.save(&file, "PNG");
        return file.data();
    };
}

Bytes svg(QQuickPaintedItem &chart, const PictureFrame &frame)
{
    QBuffer file;
    QSvgGenerator generator;
    generator.setOutputDevice(&file);
    generator.setTitle(frame.title());
    generator.setSize(sizeOf(chart, frame));
    generator.setViewBox(QRect(QPoint(0, 0), sizeOf(chart, frame)));
    QPainter painter(&generator);
    paint(chart, frame, painter);
    painter.end();
    return [bytes = file.data()] { return bytes; };
}

} // namespace Loadwick::ChartFile
