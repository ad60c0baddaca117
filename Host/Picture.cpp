#include "Host/Picture.h"

#include <algorithm>

#include <QBuffer>
#include <QImageWriter>
#include <QPainter>
#include <QPixmap>
#include <QWidget>

#include "Support/WholeFile.h"

QImage PictureOf(const QList<QWidget *> &windows)
{
    constexpr int kGap = 8;
    QList<QImage> images;
    QSize size(0, 0);
    for (QWidget *window : windows) {
        if (!window || !window->isVisible())
            continue;
        images << window->grab().toImage();
        images.last().setDevicePixelRatio(1);
        size.rwidth() += images.last().width() + (images.size() > 1 ? kGap : 0);
        size.rheight() = std::max(size.height(), images.last().height());
    }
    QImage picture(size, QImage::Format_ARGB32);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    int left = 0;
    for (const QImage &image : images) {
        painter.drawImage(left, 0, image);
        left += image.width() + kGap;
    }
    return picture;
}

bool SavePicture(const QImage &picture, const QString &file, QString &error)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImageWriter writer(&buffer, "png");
    const QString why = writer.write(picture) ? SaveWhole(file, bytes) : writer.errorString();
    if (!why.isEmpty())
        error = QString("Can't save a picture as %1: %2").arg(file, why);
    return why.isEmpty();
}
