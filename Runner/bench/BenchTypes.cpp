#include "Runner/bench/BenchTypes.h"

QString SRefusal::Text() const
{
    return allowed.isEmpty() ? reason : reason + QStringLiteral(" Allowed: ") + allowed + '.';
}
