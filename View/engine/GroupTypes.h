// The group types of the document format, one row each.
//
// The groupType of a group says how its members are shown. A row has what each walk does with a
// member, and how a member follows its publishers. A null function means that the group type does
// not support it; whoever asks says so on the critical log. The walks and relevance know nothing of
// a group type but its row, so a new one is a new row. GUI thread.
//
//   const SGroupType *type = FindGroupType(GroupTypeOf(document, path));
//   if (type && type->init)
//       type->init(binding, path, widget);
#pragma once

#include <QString>

class QJsonObject;
class QWidget;
struct SBinding;
struct SRelevanceTarget;

// One member in one walk: its path, and the widget that is named after it.
using BindMember = void (*)(const SBinding &binding, const QString &path, QWidget *widget);
// A member that follows a change of its publishers.
using ApplyRelevance = void (*)(const SRelevanceTarget &target);

struct SGroupType
{
    int number = 0;                         // "groupType" of a group
    BindMember init = nullptr;              // fills the widget from the document
    BindMember update = nullptr;            // shows a result document
    BindMember append = nullptr;            // adds the rows that a result document has more
    BindMember package = nullptr;           // writes what the widget holds into the document
    ApplyRelevance relateValue = nullptr;   // takes new choices, limits and value
    ApplyRelevance relateStatus = nullptr;  // is enabled or disabled
};

// Null when the document format has no such group type.
const SGroupType *FindGroupType(int number);
// The groupType of the member's group; 0 when the path holds no group.
int GroupTypeOf(const QJsonObject &document, const QString &memberPath);
