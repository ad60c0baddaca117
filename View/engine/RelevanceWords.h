// The log lines of value relevance and of status relevance.
//
// Words alone: what the two do differently is in Relevance.cpp. A null text is not logged.
//
//   qCDebug(lcEngine) << kValueWords.publish.start << currentText;
#pragma once

// A change on its way to the targets.
struct SPublishWords
{
    const char *start = nullptr;
    const char *key = nullptr;
    const char *publishFound = nullptr;
    const char *target = nullptr;
    const char *groupType = nullptr;
    const char *subscribeFound = nullptr;
    const char *targetKey = nullptr;
    const char *unsupported = nullptr;
    const char *done = nullptr;
};

// The look for a target's entry.
struct SEntryWords
{
    const char *traitFound = nullptr;
    const char *noTrait = nullptr;
    const char *pairFound = nullptr;
    const char *noPair = nullptr;
    const char *entryFound = nullptr;
    const char *noEntry = nullptr;
};

// The look for a target with a widget of its own.
struct SScalarTargetWords
{
    const char *none = nullptr;
    const char *found = nullptr;
    const char *hidden = nullptr;
    SEntryWords entry = {};
};

// The look for a target that is a row of a table.
struct STableTargetWords
{
    const char *rows = nullptr;
    const char *columns = nullptr;
    const char *notATable = nullptr;
    const char *found = nullptr;
    const char *none = nullptr;
    const char *noRow = nullptr;
    const char *rowFound = nullptr;
    SEntryWords entry = {};
};

struct SRelevanceWords
{
    SPublishWords publish = {};
    SScalarTargetWords scalar = {};
    STableTargetWords table = {};
};

extern const SRelevanceWords kValueWords;
extern const SRelevanceWords kStatusWords;
