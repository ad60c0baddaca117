// Dotted paths: the one way to read and write a data model document.
//
// A path such as "cmdIf.request.group1.memberProperty.band.trait.defaultValue" names a value by the
// keys that lead to it. A path splits at each point, so a key with a point cannot be addressed. A
// value that is Undefined or Null counts as missing everywhere in this system; a path through
// something that is no object finds nothing behind it.
//
// Reads give copies (Qt's JSON is implicitly shared, so a copy is cheap). Writes rebuild the
// objects along the path and either succeed whole or leave the document as it was. Failures are a
// bool or a missing value, and a line on the debug log; nothing throws. All functions work on
// objects that the caller owns, on any thread.
//
//   if (HasJsonValue(document, "modelIntegrity")) ...
//   ModifyJsonValue(document, "cmdIf.response.group1.memberProperty.pdValue.trait.defaultValue",
//                   "-10.5", 0);
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>

// True when the value is neither Undefined nor Null.
bool IsJsonValueValid(const QJsonValue &value);

// The value at the path. A miss on the first segment leaves a Null entry under that key in object,
// as Qt's mutable index operator does; such an entry still counts as missing.
QJsonValue GetJsonValue(QJsonObject &object, const QString &path);
// The same without touching the object: a miss is Undefined.
QJsonValue GetJsonValueConst(const QJsonObject &object, const QString &path);
// True when the path exists and its value is valid.
bool HasJsonValue(const QJsonObject &object, const QString &path);

// Replaces the value at the path, which must exist and not be Null. Callers pass depth 0; with it a
// failure also logs the whole path.
bool ModifyJsonValue(QJsonObject &object, const QString &path, const QJsonValue &value, int depth);
// Gives the object at the path the key, holding a new object of subKey alone: what key held is
// gone.
bool InsertJsonObject(QJsonObject &object, const QString &path, const QString &key,
                      const QString &subKey, const QJsonValue &value);
// Removes key from the object at parentPath.
// Prescribed; see docs/decisions/0036-prescribed-surface.md
bool RemoveJsonValue(QJsonObject &object, const QString &parentPath, const QString &key);

// The string at the path as a decimal number; 0 for anything else, a JSON number included.
int GetJsonIntFromString(QJsonObject &object, const QString &path);
// Index of the first element whose string equals text, case-sensitive; -1 when there is none.
int FindStringInJsonArray(const QJsonArray &array, const QString &text);

// "cmdIf." or "calDataIf." in front of a path such as "request.group1.memberProperty.band".
QString AbsoluteModelPath(const QString &relativePath, bool isCmdIf);
