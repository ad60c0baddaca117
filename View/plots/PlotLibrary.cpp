#include "View/plots/PlotLibrary.h"

#include <vector>

#include <dlfcn.h>
#include <link.h>

#include <QFile>
#include <QFileInfo>

#include "Support/Log.h"

namespace {

constexpr char kPlotLibrary[] = "libQuorlinPlots.so";
// The name of Debian's. One of another name costs a load to find out.
constexpr char kQwtLibrary[] = "libqwt-qt5.so.6";
constexpr char kNoLibrary[] =
    "Plots need %1 beside the tool. It comes with the Debian package quorlin-rf.";
constexpr char kNoQwt[] =
    "Plots need Qwt. It comes with the Debian package libqwt-qt5-6; then start the tool anew.";
constexpr char kOtherVersion[] =
    "%1 is of another version than the tool. Install the Debian package quorlin-rf anew.";

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int kBinding = 0;
#else
constexpr int kBinding = RTLD_DEEPBIND;
#endif

// The file that this code was loaded from.
QString OwnFile()
{
    Dl_info info = {};
    return dladdr(reinterpret_cast<void *>(&OwnFile), &info) ? QFile::decodeName(info.dli_fname)
                                                             : QString();
}

QString LibraryFile()
{
    return QFileInfo(OwnFile()).absolutePath() + QLatin1Char('/') + QLatin1String(kPlotLibrary);
}

// In a folder that the loader looks into for this code.
bool IsInSearchPath(const char *library)
{
    void *const self =
        dlopen(QFile::encodeName(OwnFile()).constData(), RTLD_LAZY | RTLD_LOCAL | RTLD_NOLOAD);
    if (!self)
        return false;
    Dl_serinfo size = {};
    bool isFound = false;
    if (dlinfo(self, RTLD_DI_SERINFOSIZE, &size) == 0) {
        std::vector<char> memory(size.dls_size);
        auto *const paths = reinterpret_cast<Dl_serinfo *>(memory.data());
        if (dlinfo(self, RTLD_DI_SERINFOSIZE, paths) == 0 &&
            dlinfo(self, RTLD_DI_SERINFO, paths) == 0) {
            for (unsigned int i = 0; i < paths->dls_cnt && !isFound; ++i)
                isFound = QFile::exists(QFile::decodeName(paths->dls_serpath[i].dls_name) +
                                        QLatin1Char('/') + QLatin1String(library));
        }
    }
    dlclose(self);
    return isFound;
}

}  // namespace

CPlotLibrary &CPlotLibrary::Get()
{
    static CPlotLibrary library;
    return library;
}

QString CPlotLibrary::Missing()
{
    if (m_isLoaded)
        return m_missing;
    if (!QFile::exists(LibraryFile()))
        return QString::fromLatin1(kNoLibrary).arg(QLatin1String(kPlotLibrary));
    if (!IsInSearchPath(kQwtLibrary))
        Load();
    return m_missing;
}

IPlot *CPlotLibrary::Make(QWidget *parent)
{
    if (!Missing().isEmpty())
        return nullptr;
    Load();
    return m_make ? m_make(kPlotVersion, parent) : nullptr;
}

// It is never unloaded: plots may stand open to the end of the process.
void CPlotLibrary::Load()
{
    if (m_isLoaded)
        return;
    m_isLoaded = true;
    void *const library =
        dlopen(QFile::encodeName(LibraryFile()).constData(), RTLD_NOW | RTLD_LOCAL | kBinding);
    if (!library) {
        qCWarning(lcForm) << "No plots:" << dlerror();
        m_missing = QLatin1String(kNoQwt);
        return;
    }
    m_make = reinterpret_cast<MakePlot>(dlsym(library, kPlotFunction));
    IPlot *const plot = m_make ? m_make(kPlotVersion, nullptr) : nullptr;
    if (!plot) {
        m_make = nullptr;
        m_missing = QString::fromLatin1(kOtherVersion).arg(QLatin1String(kPlotLibrary));
    }
    delete plot;
}
