// The walks over a page's widgets: Init, Update, Append and Package.
//
// A walk visits the bound widgets, reads the member that each is named after, and hands both to the
// row of the member's group type (GroupTypes.h). A member that the document lacks, or a group type
// that does not take the step, is a line on the critical log; the walk goes on. GUI thread.
//
//   Walk(kUpdateWalk, binding);
#pragma once

#include <QList>

#include "View/engine/GroupTypes.h"

// What one walk does, and what it says of itself. A null text is not logged.
struct SWalk
{
    BindMember SGroupType::*step = nullptr;
    bool (*takes)(const QString &objectName) = nullptr;
    bool tellsClass = false;  // names the widget's class beside its name
    const char *start = nullptr;
    const char *member = nullptr;
    const char *missing = nullptr;
    const char *unsupported = nullptr;
    const char *done = nullptr;
};

extern const SWalk kUpdateWalk;   // results, from binding.update
extern const SWalk kAppendWalk;   // the same
extern const SWalk kPackageWalk;  // all members, from the document

void Walk(const SWalk &walk, const SBinding &binding);
// Init fills captions and members from the document. widgets: all of the page, bound or not.
void InitMembers(const SBinding &binding, const QList<QWidget *> &widgets);
