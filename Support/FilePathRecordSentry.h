// The directory that the user last opened or saved a file in, remembered between runs.
//
// The constructor reads the path from the settings file, the destructor writes it back. Whatever
// else the file holds stays. A settings file that is missing or can't be read gives an empty path.
// A path that can't be saved is lost without a word; the folder of the settings file is created
// when it is missing.
//
// A widget that is never shown; GUI thread.
//
//     CFilePathRecordSentry record;
//     record.SetLastPath("/home/rf/captures");
#pragma once

#include <QString>
#include <QWidget>

class CFilePathRecordSentry : public QWidget
{
    Q_OBJECT

public:
    explicit CFilePathRecordSentry(const QString &settingsFile = DefaultSettingsFile());
    ~CFilePathRecordSentry() override;

    // configs/User_Latest_Settings.txt beside the folder of the running program.
    static QString DefaultSettingsFile();

    QString GetLastPath() const { return m_lastPath; }
    void SetLastPath(const QString &path) { m_lastPath = path; }

private:
    void ReadLastPath();
    void WriteLastPath() const;

    QString m_settingsFile;
    QString m_lastPath;
};
