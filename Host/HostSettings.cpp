#include "Host/HostSettings.h"

CHostSettings::CHostSettings()
    : m_settings(QSettings::IniFormat, QSettings::UserScope, "Quorlin RF", "quorlin-host")
{
}
