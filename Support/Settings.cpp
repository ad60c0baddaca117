#include "Support/Settings.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <QTimer>

#include "Support/IniMerge.h"
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
    if (QFileInfo(file).size() > kLongestSettings || IsBroken(file)) {
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

CSettings::CSettings(const QString &file) : m_file(file), m_values(ReadIni(PutAsideIfBroken(file)))
{
}

QString CSettings::DefaultFile()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QLatin1String("/quorlin-rf/settings.ini");
}

void CSettings::SetValue(const QString &key, const QVariant &value)
{
    if (m_values.value(key) == value)
        return;
    if (m_changed.isEmpty())
        QTimer::singleShot(0, &m_loop, [this] { Save(); });
    m_values.insert(key, value);
    m_changed.insert(key, value);
}

bool CSettings::Save()
{
    if (m_changed.isEmpty())
        return true;
    MakePrivateFolder(QFileInfo(m_file).path());  // a failure shows in the next line
    const QString why = MergeIntoIni(m_file, m_changed, m_values);
    if (why.isEmpty())
        m_changed.clear();
    else
        qCWarning(lcForm) << "settings are not saved:" << m_file << why;
    return why.isEmpty();
}
