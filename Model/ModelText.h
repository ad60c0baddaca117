// Documents as text, the one place where they are printed and parsed.
//
// Nothing throws: a text that does not parse, or whose root is no object, gives an empty object.
//
//   QJsonObject document = ModelFromText(text);
//   std::string back = ModelToText(document);
#pragma once

#include <string>

#include <QJsonObject>

QJsonObject ModelFromText(const std::string &text);
std::string ModelToText(const QJsonObject &document);

// How many documents were parsed and printed so far: by the calling thread, and by all. For tests.
struct SModelTextCount
{
    int parsed = 0;
    int printed = 0;
};
SModelTextCount ModelTextCountHere();
SModelTextCount ModelTextCountInAll();
