#include "Support/WholeFile.h"

#include <QSaveFile>

QString SaveWhole(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    const bool isSaved =
        file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
    return isSaved ? QString() : file.errorString();
}
