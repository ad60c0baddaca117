#include "Support/FilePathRecordSentry.h"

#include <exception>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include "Support/CalIniFile.h"

namespace {

constexpr char kSection[] = "Last User Open Path";
constexpr char kKey[] = "last_open_path";

}  // namespace

CFilePathRecordSentry::CFilePathRecordSentry(const QString &settingsFile)
    : m_settingsFile(settingsFile)
{
    ReadLastPath();
}

CFilePathRecordSentry::~CFilePathRecordSentry()
{
    WriteLastPath();
}

QString CFilePathRecordSentry::DefaultSettingsFile()
{
    return QCoreApplication::applicationDirPath() + "/../configs/User_Latest_Settings.txt";
}

void CFilePathRecordSentry::ReadLastPath()
{
    try {
        CCalIniFile file(m_settingsFile.toStdWString().c_str());
        m_lastPath = QString::fromStdString(file.ReadString(kSection, kKey, ""));
    } catch (const std::exception &) {
        m_lastPath.clear();
    }
}

void CFilePathRecordSentry::WriteLastPath() const
{
    try {
        QDir().mkpath(QFileInfo(m_settingsFile).path());
        CCalIniFile file(m_settingsFile.toStdWString().c_str());
        file.WriteString(kSection, kKey, m_lastPath.toStdString());
    } catch (const std::exception &) {
        // Lost without a word: the user loses a convenience, no data.
    }
}
