// What the tool remembers of a user between two sessions: one file, quorlin-rf/settings.ini in the
// folder for settings of all programs, whatever the host is called.
//
// A key is "subject/name". A value that the file lacks is invalid. Where the file cannot be written or
// read, values hold for this session. A file that is no INI file is kept as settings.ini.broken, and a
// new one begun. What several processes write is merged, key by key. The host's own QSettings are not touched.
//
// GUI thread. The object lives until the process ends; values reach the disk with the event loop, and
// with Save().
//
//   CSettings::Get().SetValue("compare/geometry", window->saveGeometry());
//   window->restoreGeometry(CSettings::Get().Value("compare/geometry").toByteArray());
#pragma once

#include <QSettings>
#include <QString>
#include <QVariant>

class CSettings
{
public:
    static CSettings &Get();

    // For a test; the tool uses Get().
    explicit CSettings(const QString &file);

    // $XDG_CONFIG_HOME/quorlin-rf/settings.ini, as a rule in ~/.config
    static QString DefaultFile();

    QVariant Value(const QString &key) const { return m_settings.value(key); }
    void SetValue(const QString &key, const QVariant &value);
    // False when the file does not have the values.
    bool Save();

private:
    QSettings m_settings;
};
