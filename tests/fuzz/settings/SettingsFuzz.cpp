// Any bytes as a settings file of a page, and as what the tool remembers of a user.
//
// A page's file is read, or there is one line that tells why not; what was read makes a file that reads the
// same. What the tool remembers: each value can be asked for as the types that the tool uses, a value that
// is set is there, also in the next session, and a file that is none is kept beside it.
#include "Support/Settings.h"

#include <memory>

#include <QFile>
#include <QRect>
#include <QTemporaryDir>

#include "View/settings/SettingsFile.h"
#include "tests/fuzz/common/FuzzTarget.h"

namespace {

std::unique_ptr<QTemporaryDir> s_folder;

void CheckPageFile(const QByteArray &bytes)
{
    QString reason;
    const std::optional<SSettingsFile> file = ReadSettings(bytes, reason);
    Require(file.has_value() == reason.isEmpty(), "a file is read, or there is a reason");
    if (!file) {
        Require(reason.endsWith(QLatin1Char('.')), "a reason is a sentence");
        return;
    }
    Require(!file->page.isEmpty() && !file->section.isEmpty(), "a file has a page and a section");
    const std::optional<SSettingsFile> again = ReadSettings(SettingsText(*file), reason);
    Require(again && again->page == file->page && again->version == file->version &&
                again->section == file->section && again->groups == file->groups,
            "what was read makes a file that reads the same");
}

void CheckRemembered(const QByteArray &bytes)
{
    const QString name = s_folder->filePath(QStringLiteral("settings.ini"));
    const QString broken = name + QLatin1String(".broken");
    QFile::remove(broken);
    QFile file(name);
    Require(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(),
            "the folder of the target can be written to");
    file.close();
    const QString key = QStringLiteral("compare/geometry");
    const QByteArray value("a\0\xff\"\n", 5);
    {
        CSettings settings(name);
        settings.Value(key).toByteArray();
        settings.Value(QStringLiteral("files/folder")).toString();
        settings.Value(QStringLiteral("General/size")).toRect();
        settings.SetValue(key, value);
        Require(settings.Value(key).toByteArray() == value, "a value that was set is there");
        Require(settings.Save(), "values can be saved");
    }
    CSettings next(name);
    Require(next.Value(key).toByteArray() == value, "a saved value is there in the next session");
    QFile kept(broken);
    Require(!kept.exists() || (kept.open(QIODevice::ReadOnly) && kept.readAll() == bytes),
            "a file that is none is kept as it was");
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    SwitchLogsOff();
    s_folder = std::make_unique<QTemporaryDir>();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<int>(size));
    CheckPageFile(bytes);
    CheckRemembered(bytes);
    return 0;
}
