// Paths through INI files: the import of an APT profile.
#include <memory>

#include <QTemporaryDir>

#define SI_NO_CONVERSION
#define SI_IMPLEMENTATION
#include <SimpleIni.h>

#include "Operations/calibration/MultiRatAptProfileV7.h"
#include "Support/CalIniFile.h"
#include "Support/WideText.h"
#include "bench/guard/Counted.h"
#include "bench/guard/GuardPaths.h"

namespace {

// As the tool instantiates the library.
using WideIni = CSimpleIniTempl<wchar_t, SI_NoCase<wchar_t>, CWideTextConverter>;

}  // namespace

// The whole image of the DUT's flash, beside the library's load of the same file.
void CountFilePaths()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("apt.ini");
    const QByteArray bytePath = path.toUtf8();
    const std::wstring widePath = path.toStdWString();
    CMultiRatAptProfileV7 image(ERadioKind::Nr);
    CCalIniFile saved(widePath.c_str());
    if (image.UploadFromFlash() != 0 || image.SaveToFile(&saved) != 0)
        qFatal("no image: %s", qPrintable(image.GetErrorMessage()));

    CMultiRatAptProfileV7 item(ERadioKind::Nr);
    CountPath(
        "aptImport",
        [&] {
            CCalIniFile file(widePath.c_str());
            if (item.LoadFromFile(&file) != 0)
                qFatal("not loaded");
        },
        [&] {
            WideIni ini(true, true, false);
            if (ini.LoadFile(bytePath.constData()) < 0)
                qFatal("not loaded");
        });
}
