// Stands in where a target has no mutator of its own: inputs change by their bytes alone.
#include "tests/fuzz/common/FuzzTarget.h"

QByteArray MutateFuzzInput(const QByteArray &input, std::mt19937 &)
{
    return input;
}
