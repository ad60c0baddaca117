// Pictures of windows. GUI thread.
//
//     const QImage picture = PictureOf({&host, FindToolWindow()});   // side by side
//     QString error;
//     if (!SavePicture(picture, "bench.png", error))
//         Complain(error);
#pragma once

#include <QImage>
#include <QList>
#include <QString>

class QWidget;

// The windows that are visible, from left to right, each with all its pixels.
QImage PictureOf(const QList<QWidget *> &windows);

// As PNG. On failure, error says why.
bool SavePicture(const QImage &picture, const QString &file, QString &error);
