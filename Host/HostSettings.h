// What the bench host remembers between two sessions, in a file of its own:
// $XDG_CONFIG_HOME/Quorlin RF/quorlin-host.ini, as a rule in ~/.config. A key is "subject/name". Where
// the file can't be written, values hold for this session. GUI thread.
//
//     CHostSettings().Set("profile/last", "handset");
//     const QString last = CHostSettings().Value("profile/last").toString();
#pragma once

#include <QSettings>
#include <QString>
#include <QVariant>

class CHostSettings
{
public:
    CHostSettings();

    // Invalid when the file lacks it.
    QVariant Value(const QString &key) const { return m_settings.value(key); }
    void Set(const QString &key, const QVariant &value) { m_settings.setValue(key, value); }
    void Clear() { m_settings.clear(); }

private:
    QSettings m_settings;
};
