// Members that have a widget of their own: groupType 1.
//
// The member's data type and the widget's exact class must fit, as DataTypes.h lists. These are the
// functions of the group type's row (GroupTypes.h). A failure is a line on the critical log, and the
// widget stays as it was. GUI thread.
#pragma once

#include <QString>

class QWidget;
struct SBinding;
struct SRelevanceTarget;

// Hides a member without support; else fills the widget and has its changes followed.
void InitScalarMember(const SBinding &binding, const QString &path, QWidget *widget);
void UpdateScalarMember(const SBinding &binding, const QString &path, QWidget *widget);
// Goes by the widget's class, whatever the document says of the member.
void PackageScalarMember(const SBinding &binding, const QString &path, QWidget *widget);

// A target that is not visible stays as it is.
void ApplyScalarValueRelevance(const SRelevanceTarget &target);
void ApplyScalarStatusRelevance(const SRelevanceTarget &target);
