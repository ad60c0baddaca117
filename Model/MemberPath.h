// Names of widgets and paths of members.
//
// A widget is tied to the document by its objectName alone.
// "cmdIf_request_group1_memberProperty_band" is the path
// "cmdIf.request.group1.memberProperty.band": every "_" stands for a point, so no section, group or
// member key may hold either. The same name with "_caption" behind it names the member's caption.
// All functions are pure text work, on any thread; a path without "memberProperty" has an empty
// group.
//
//   const QString path = PathFromObjectName(widget->objectName());
//   GroupPrefix(path);            // "cmdIf.request.group1."
//   GroupPropertyPath(path);      // "cmdIf.request.group1.memberProperty"
//   MemberKey(path);              // "band"
#pragma once

#include <QString>

inline const QLatin1String kMemberProperty("memberProperty");  // in a member's path
inline const QLatin1String kMemberValue("memberValue");        // in the path of its packaged value
inline const QLatin1String kRequestName("cmdIf_request_");     // begins the name of a test's input

// Every "_" turned into ".".
QString PathFromObjectName(const QString &objectName);

// A name that the engine binds: it holds "cmdIf_" or "calDataIf_".
bool IsBoundName(const QString &objectName);
// A name of a caption: it holds the word "caption" anywhere.
bool IsCaptionName(const QString &objectName);
// A bound name of a member that results are shown in: "cmdIf_response_" or "calDataIf_data_".
bool IsResultName(const QString &objectName);

// The part of the path in front of "memberProperty", with its point; empty when there is none.
QString GroupPrefix(const QString &memberPath);
// The group without its point: the path of the group object.
QString GroupPath(const QString &memberPath);
// (group) + "memberProperty".
QString GroupPropertyPath(const QString &memberPath);
// (group) + "memberValue".
QString GroupValuePath(const QString &memberPath);
// The text behind the last point.
QString MemberKey(const QString &memberPath);
// The path without its last segment.
QString ParentPath(const QString &path);
