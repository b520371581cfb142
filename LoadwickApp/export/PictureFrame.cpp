#include "export/PictureFrame.h"

#include <cmath>

#include <QBuffer>
#include <QGuiApplication>
#include <QImage>
#include <QSvgGenerator>
#include <QTextLayout>
#include <QTextOption>

#include "base/XmlText.h"

namespace Loadwick {
namespace {

constexpr int margin = 16;
constexpr double lineGap = 2;
constexpr double chartGap = 16;
constexpr int pixelsPerPoint = 2;
constexpr int tallestImage = 32'000; // many programs open nothing larger

/// Breaks the words into lines of at most that width and returns their total height. A name from
/// outside may be one long word, or contain line feeds.
double layOut(QTextLayout &words, double width)
{
    QTextOption option(QGuiApplication::isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    words.setTextOption(option);
    double height = 0;
    words.beginLayout();
    for (QTextLine line = words.createLine(); line.isValid(); line = words.createLine()) {
        line.setLineWidth(width);
        line.setPosition(QPointF(0, height));
        height += line.height();
    }
    words.endLayout();
    return height;
}

QString withLines(QString words)
{
    return words.replace(QLatin1Char('\n'), QChar(QChar::LineSeparator));
}

double heightOf(const QString &words, const QFont &font, double width)
{
    QTextLayout layout(withLines(words), font);
    return layOut(layout, width);
}

/// Writes the words and moves the painter's origin below them.
void write(QPainter &painter, const QString &words, const QFont &font, double width)
{
    QTextLayout layout(withLines(words), font);
    const double height = layOut(layout, width);
    layout.draw(&painter, QPointF(0, 0));
    painter.translate(0, height + lineGap);
}

const QString placeholder = QStringLiteral("title");

/// A drawing with this title in place of the placeholder. Qt 6.4 does not escape a title, and no
/// version leaves out of a text what XML cannot express.
QByteArray wellFormed(const QByteArray &drawing, const QString &title)
{
    const QString element = QStringLiteral("<title>%1</title>");
    QString document = QString::fromUtf8(drawing);
    document.replace(element.arg(placeholder), element.arg(title.toHtmlEscaped()));
    return expressibleInXml(document).toUtf8();
}

} // namespace

PictureFrame::Bytes PictureFrame::png(PainterItem &chart) const
{
    QImage image(sizeWith(chart) * pixelsPerPoint, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.scale(pixelsPerPoint, pixelsPerPoint);
    paintWith(chart, painter);
    painter.end();
    return [image] {
        QBuffer file;
        file.open(QIODevice::WriteOnly);
        image.save(&file, "PNG");
        return file.data();
    };
}

PictureFrame::Bytes PictureFrame::svg(PainterItem &chart) const
{
    QBuffer file;
    QSvgGenerator generator;
    generator.setOutputDevice(&file);
    generator.setTitle(placeholder);
    generator.setSize(sizeWith(chart));
    generator.setViewBox(QRect(QPoint(0, 0), sizeWith(chart)));
    QPainter painter(&generator);
    paintWith(chart, painter);
    painter.end();
    return [bytes = wellFormed(file.data(), m_title)] { return bytes; };
}

QSize PictureFrame::sizeWith(const PainterItem &chart) const
{
    return sizeAround(chart.size()).boundedTo(QSize(tallestImage, tallestImage) / pixelsPerPoint);
}

void PictureFrame::paintWith(PainterItem &chart, QPainter &painter) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    paint(painter, sizeWith(chart));
    chart.paint(&painter);
}

QSize PictureFrame::sizeAround(const QSizeF &chart) const
{
    const double height = headingHeight(chart.width()) + chart.height();
    return QSize(2 * margin, 2 * margin) +
           QSize(static_cast<int>(std::round(chart.width())), static_cast<int>(std::ceil(height)));
}

void PictureFrame::paint(QPainter &painter, const QSize &size) const
{
    const double width = size.width() - 2 * margin;
    painter.fillRect(QRect(QPoint(0, 0), size), m_ground);
    painter.translate(margin, margin);
    painter.setPen(m_textColor);
    write(painter, m_title, m_titleFont, width);
    painter.setPen(m_secondaryTextColor);
    for (const QString &line : m_lines)
        write(painter, line, m_font, width);
    painter.translate(0, chartGap);
}

double PictureFrame::headingHeight(double width) const
{
    double height = heightOf(m_title, m_titleFont, width) + lineGap;
    for (const QString &line : m_lines)
        height += heightOf(line, m_font, width) + lineGap;
    return height + chartGap;
}

} // namespace Loadwick

#include "moc_PictureFrame.cpp"
