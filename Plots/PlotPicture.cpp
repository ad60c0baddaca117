// Pictures of a plot. Qwt writes vector files by name alone, so they go by way of a folder of their own.
#include "Plots/Plot.h"

#include <QBuffer>
#include <QFile>
#include <QPainter>
#include <QTemporaryDir>
#include <qwt_plot_renderer.h>

namespace {

constexpr int kScale = 2;            // of a picture in pixels, to the screen
constexpr double kDotsPerInch = 96;  // a vector picture has the size of the plot on such a screen
constexpr double kMillimetresPerInch = 25.4;

QByteArray PixelPicture(QwtPlotRenderer &renderer, QwtPlot *plot)
{
    QImage image(plot->size() * kScale, QImage::Format_ARGB32_Premultiplied);
    image.fill(plot->palette().color(QPalette::Window));
    QPainter painter(&image);
    painter.scale(kScale, kScale);
    renderer.render(plot, &painter, plot->rect());
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    return image.save(&buffer, "PNG") ? bytes : QByteArray();
}

QByteArray VectorPicture(QwtPlotRenderer &renderer, QwtPlot *plot, const QString &suffix)
{
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("plot.") + suffix);
    const QSizeF size = QSizeF(plot->size()) / kDotsPerInch * kMillimetresPerInch;
    renderer.renderDocument(plot, name, suffix, size, static_cast<int>(kDotsPerInch));
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

QByteArray CPlot::Picture(EPlotPicture format) const
{
    // Rendering changes a plot and brings it back; who asks sees none of it.
    auto *const plot = const_cast<CPlot *>(this);
    QwtPlotRenderer renderer;
    if (format == EPlotPicture::Png)
        return PixelPicture(renderer, plot);
    return VectorPicture(renderer, plot,
                         format == EPlotPicture::Svg ? QStringLiteral("svg")
                                                     : QStringLiteral("pdf"));
}
