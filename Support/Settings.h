// What the tool remembers of a user between two sessions: one file, quorlin-rf/settings.ini in the
// folder for settings of all programs, whatever the host is called.
//
// A key is "subject/name". A value that the file lacks is invalid. Where the file cannot be written or
// read, values hold for this session, and the next save tries again; the file is as it was. A file that is no
// INI file, or far too long for one, is kept as settings.ini.broken, and a new one begun. What several
// processes write is merged, key by key. The host's own QSettings are not touched.
//
// GUI thread. The object lives until the process ends; values reach the disk with the event loop, and
// with Save().
//
//   CSettings::Get().SetValue("compare/geometry", window->saveGeometry());
//   window->restoreGeometry(CSettings::Get().Value("compare/geometry").toByteArray());
#pragma once

#include <QObject>
#include <QString>
#include <QVariantMap>

class CSettings
{
public:
    static CSettings &Get();

    // For a test; the tool uses Get().
    explicit CSettings(const QString &file);
    ~CSettings() { Save(); }
    CSettings(const CSettings &) = delete;
    CSettings &operator=(const CSettings &) = delete;

    // $XDG_CONFIG_HOME/quorlin-rf/settings.ini, as a rule in ~/.config
    static QString DefaultFile();

    QVariant Value(const QString &key) const { return m_values.value(key); }
    void SetValue(const QString &key, const QVariant &value);
    // False when the file does not have the values.
    bool Save();

private:
    const QString m_file;
    QVariantMap m_values;
    QVariantMap m_changed;  // since the last save
    QObject m_loop;         // what saves with the event loop
};
