// The entry of a member's trait that applies at Init: choices of a list, limits of a number.
//
// A member without publishers has it as "value". One that subscribes has a table of entries,
// "valuePair", and takes that of its publishers' defaults: Init looks at the document alone, never
// at another widget. Failures are a missing value and a line on the critical log.
//
//   const QJsonObject limits = ResolveInitEntry(binding, member, trait).toObject();
#pragma once

#include <QJsonArray>
#include <QJsonValue>
#include <QString>

struct SBinding;

QJsonValue ResolveInitEntry(const SBinding &binding, const QJsonValue &member,
                            const QJsonValue &trait);
// The key of several publishers: their defaults, joined by ",". One without a widget on the page
// gives no part, and no comma.
QString BuildInitKey(const SBinding &binding, const QJsonArray &subscribeValueList);
