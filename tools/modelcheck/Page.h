// A page's document, taken apart into groups and members for the checks.
//
// Everything that has the shape of a group or a member is taken in, known or not, listed or not, so
// that one slip of the author does not hide the next. Paths are absolute ("cmdIf.request.group1").
// Members come in the order of their paths. Values only, any thread.
//
//   const SPage page = ReadPage(root);
//   const SPageMember *band = page.Find("cmdIf.request.group1.memberProperty.band");
//   page.Target(*band, "request.group1.memberProperty.dlBw");   // a relation's other end
#pragma once

#include <vector>

#include <QJsonObject>
#include <QMap>
#include <QString>
#include <QStringList>

#include "tools/modelcheck/FormatTypes.h"

struct SPageGroup
{
    QString path;
    int type = 0;  // groupType; 0 when it is none of the format's
    QJsonObject object;
    QJsonObject properties;  // memberProperty
    QStringList members;     // texts of memberList
};

struct SPageMember
{
    QString path;
    QString key;
    bool isCmdIf = true;
    int groupType = 0;
    QJsonObject object;
    QJsonObject trait;
    const SFormatType *type = nullptr;  // null when dataType is missing or unknown

    QString TraitPath() const;
    bool Has(const char *key) const;       // among the member's own keys
    bool TraitHas(const char *key) const;  // among the trait's
    QStringList List(const char *key) const;
    // subscribeValue, or the paths of subscribeValueList.
    QStringList Publishers() const;
};

struct SPage
{
    QJsonObject document;
    std::vector<SPageGroup> groups;
    QMap<QString, SPageMember> members;  // by path

    const SPageMember *Find(const QString &path) const;
    // The member at a relative path in a relation of that member; null when there is none.
    const SPageMember *Target(const SPageMember &from, const QString &relativePath) const;
    // The entry in force at the start: value, or what valuePair has for the publishers' defaults.
    QJsonValue StartEntry(const SPageMember &member) const;
};

SPage ReadPage(const QJsonObject &document);

// The path as a relation of the same document writes it: without the interface word.
QString RelativePath(const QString &path);
// The texts of an array; what is no text is left out.
QStringList Texts(const QJsonValue &array);
