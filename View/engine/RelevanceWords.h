// What the two kinds of relevance have in common, and what sets them apart, as data.
//
// Value relevance recomputes the choices and value of a dependent member, status relevance whether
// it is enabled. Both follow a publish list of the document, form a key for each target, and look
// it up in a table of the target's trait. A null log text is not logged.
#pragma once

class CAutoBindingDataModelDockWidget;
class QString;

// Looking up a target's entry for a key.
struct SEntryWords
{
    const char *pair;  // "valuePair" or "enableStatusPair"
    const char *traitFound;
    const char *noTrait;
    const char *pairFound;
    const char *noPair;
    const char *entryFound;
    const char *noEntry;
};

// Finding a target with a widget of its own.
struct SScalarTargetWords
{
    const char *none;
    const char *found;
    const char *hidden;
    SEntryWords entry;
};

// Finding a target that is a row of a table.
struct STableTargetWords
{
    const char *rows;
    const char *columns;
    const char *notATable;
    const char *found;
    const char *none;
    const char *noRow;
    const char *rowFound;
    SEntryWords entry;
};

struct SRelevanceWords
{
    const char *start;
    const char *key;
    const char *publishList;  // key in the publisher's member
    const char *publishFound;
    const char *target;
    const char *groupType;
    const char *subscribeList;  // key in the target's member
    const char *subscribeFound;
    const char *targetKey;
    const char *unsupported;
    const char *done;
    bool needsEnabledSender;  // a disabled publisher publishes no values, but still its status

    void (CAutoBindingDataModelDockWidget::*applyScalar)(const QString &target, const QString &key);
    void (CAutoBindingDataModelDockWidget::*applyTable)(const QString &target, const QString &key);

    SScalarTargetWords scalar;
    STableTargetWords table;
};
