// Documents as text. A document crosses threads only as compact JSON in a std::string.
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
