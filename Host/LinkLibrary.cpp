#include "Host/LinkLibrary.h"

#include <utility>

#include <dlfcn.h>

#include <QFile>
#include <QFileInfo>

namespace {

constexpr char kOpenLink[] = "VondLink_Open";
constexpr char kCloseLink[] = "VondLink_Close";

}  // namespace

bool CLinkLibrary::Open(const QString &file, QString &error)
{
    const QFileInfo info(file);
    if (!info.isFile()) {
        error = QString("There is no link library %1.").arg(file);
        return false;
    }
    void *library =
        dlopen(QFile::encodeName(info.absoluteFilePath()).constData(), RTLD_NOW | RTLD_LOCAL);
    if (!library) {
        error = QString("Can't load the link library %1: %2").arg(file, QString(dlerror()));
        return false;
    }
    using OpenLink = uint32_t (*)();
    const auto open = reinterpret_cast<OpenLink>(dlsym(library, kOpenLink));
    const auto close = reinterpret_cast<CloseLink>(dlsym(library, kCloseLink));
    if (!open || !close) {
        error = QString("The link library %1 has no %2.").arg(file, open ? kCloseLink : kOpenLink);
        dlclose(library);
        return false;
    }
    m_handle = open();
    if (m_handle == 0) {
        error = QString("The link library %1 has opened no link.").arg(file);
        return false;
    }
    m_close = close;
    return true;
}

void CLinkLibrary::Close()
{
    if (const CloseLink close = std::exchange(m_close, nullptr))
        close(m_handle);
}
