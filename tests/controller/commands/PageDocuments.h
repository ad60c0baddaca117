// Documents of the pages, packaged as the builders get them: a memberValue stands in every group
// that a page packages, each member's default as its text, in a column table one a column.
//
//   QJsonObject document = PackagedPage("NrPuschTxForceModeV7");
//   Put(document, "cmdIf.request.group1", {{"band", "n78"}});
#pragma once

#include <map>
#include <string>

#include <QJsonObject>
#include <QMap>
#include <QString>
#include <QStringList>

using TextMap = QMap<QString, QString>;

QJsonObject PackagedDocument(QJsonObject document);
// The page's own document, that no DUT has patched.
QJsonObject PackagedPage(const char *name);
// Replaces packaged values of a group, such as "cmdIf.request.group1".
void Put(QJsonObject &document, const QString &group, const TextMap &values);
// Replaces a packaged row of a column table.
void PutRow(QJsonObject &document, const QString &group, const QString &member,
            const QStringList &texts);
// The document at a path as compact text, objects and arrays too.
std::string TextAt(const QJsonObject &document, const QString &path);

// What stands in a document and did not before, or not so: path to compact text, "" for what is
// gone.
using Changes = std::map<std::string, std::string>;
Changes ChangesBetween(const QJsonObject &before, const QJsonObject &after);
// Those that reports of failures make in a document without any.
Changes ReportsOf(const QStringList &messages);
