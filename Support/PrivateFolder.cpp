#include "Support/PrivateFolder.h"

#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

bool MakePrivateFolder(const QString &folder)
{
    const QString path = QDir::cleanPath(QDir(folder).absolutePath());
    if (QFileInfo(path).isDir())
        return true;
    if (path == QDir::rootPath() || !MakePrivateFolder(QFileInfo(path).path()))
        return false;
    // Another process may have made it meanwhile.
    return ::mkdir(QFile::encodeName(path).constData(), S_IRWXU) == 0 || QFileInfo(path).isDir();
}
