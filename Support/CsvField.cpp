#include "Support/CsvField.h"

#include <algorithm>

QByteArray CsvField(const QByteArray &text)
{
    const bool isPlain = std::none_of(text.begin(), text.end(), [](char byte) {
        return byte == ',' || byte == '"' || byte == '\r' || byte == '\n';
    });
    if (isPlain)
        return text;
    QByteArray quoted = text;
    quoted.replace('"', "\"\"");
    return '"' + quoted + '"';
}
