#include "Support/ToolVersion.h"

QString ToolVersion()
{
    return QStringLiteral(QUORLIN_VERSION);
}
