// Documents of the pages, packaged as the builders get them.
//
//   QJsonObject document = PackagedPage("NrPuschTxForceModeV7");
//   Put(document, "cmdIf.request.group1", {{"band", "n78"}});
#pragma once

#include <QJsonObject>
#include <QMap>
#include <QString>
#include <QStringList>

using TextMap = QMap<QString, QString>;

// The page's own document with a memberValue in every group that is packaged: each member's default
// as its text, in a column table one a column.
QJsonObject PackagedPage(const char *name);
// Replaces packaged values of a group, such as "cmdIf.request.group1".
void Put(QJsonObject &document, const QString &group, const TextMap &values);
// Replaces a packaged row of a column table.
void PutRow(QJsonObject &document, const QString &group, const QString &member,
            const QStringList &texts);
// The document at a path as compact text, objects and arrays too.
std::string TextAt(const QJsonObject &document, const QString &path);
