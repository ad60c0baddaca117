#include "Support/Settings.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include "Support/Log.h"
#include "Support/PrivateFolder.h"

namespace {

// QSettings parses a section when something of it is asked for, and tells no sooner that it can't.
bool IsBroken(const QString &file)
{
    const QSettings settings(file, QSettings::IniFormat);
    settings.allKeys();
    return settings.status() == QSettings::FormatError;
}

const QString &PutAsideIfBroken(const QString &file)
{
    if (IsBroken(file)) {
        const QString broken = file + QLatin1String(".broken");
        QFile::remove(broken);
        QFile::rename(file, broken);
        qCWarning(lcForm) << "settings are no INI file, kept as" << broken;
    }
    return file;
}

}  // namespace

CSettings &CSettings::Get()
{
    // Never destroyed: the process may end while Qt's own statics are gone already.
    static auto *const settings = new CSettings(DefaultFile());
    return *settings;
}

// QSettings would write over a file that it cannot read.
CSettings::CSettings(const QString &file) : m_settings(PutAsideIfBroken(file), QSettings::IniFormat)
{
}

QString CSettings::DefaultFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QLatin1String("/quorlin-rf/settings.ini");
}

void CSettings::SetValue(const QString &key, const QVariant &value)
{
    if (m_settings.value(key) == value)
        return;
    MakePrivateFolder(QFileInfo(m_settings.fileName()).path());  // a failure shows when it is saved
    m_settings.setValue(key, value);
}

bool CSettings::Save()
{
    m_settings.sync();
    const bool isSaved = m_settings.status() == QSettings::NoError;
    if (!isSaved)
        qCWarning(lcForm) << "settings are not saved:" << m_settings.fileName();
    return isSaved;
}
