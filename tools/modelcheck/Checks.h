// The checks, one function a subject. A check skips what another one reports, such as a relation
// through a member of unknown type.
#pragma once

#include "tools/modelcheck/Finding.h"
#include "tools/modelcheck/Form.h"
#include "tools/modelcheck/Page.h"

// Keys of every level above the trait's values, member lists, groupType and dataType.
void CheckDocumentKeys(const SPage &page, const SReport &report);
// value, valuePair and enableStatusPair: their forms, keys and limits.
void CheckEntries(const SPage &page, const SReport &report);
// Defaults against the entry that is in force at the start.
void CheckDefaults(const SPage &page, const SReport &report);
// Publishers against subscribers, for values and for enable status.
void CheckRelations(const SPage &page, const SReport &report);
// Members that publish to themselves through others.
void CheckCycles(const SPage &page, const SReport &report);
// Members against widgets. What the form breaks goes to the form's report.
void CheckWidgets(const SPage &page, const SForm &form, const SReport &pageReport,
                  const SReport &formReport);

// "list[element]": an element of a list of paths or an entry of a table, named by what it says, so
// that a place in an allow list does not shift when the list grows.
inline QString Element(const QString &path, const QString &element)
{
    return path + QLatin1Char('[') + element + QLatin1Char(']');
}
