// A member that follows a change of its publishers: what a group type gets to see of relevance.
//
// Made by CRelevance for one target of one change. GUI thread.
//
//   const QJsonValue entry = target.FindEntry(target.words.scalar.entry);
//   if (!IsJsonValueValid(entry))
//       return;   // the target keeps what it shows
#pragma once

#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include "View/engine/ChangeRecorder.h"
#include "View/engine/RelevanceWords.h"

class CWidgetIndex;

struct SRelevanceTarget
{
    const QJsonObject &document;
    int modelInterface;         // EModelInterface
    const CWidgetIndex &index;  // of the page's widgets
    QString path;               // of the target, absolute
    QString key;                // the publishers' current texts
    const char *table;          // of entries in the target's trait, by key: "valuePair"
    const SRelevanceWords &words;
    CChangeRecorder *changes = nullptr;  // of the page; null: none
    int member = -1;                     // ids of the target
    int publisher = -1;                  // and of the member that changed

    QJsonObject Trait() const;
    // The entry for the key; missing, with a line on the critical log, when there is none.
    QJsonValue FindEntry(const SEntryWords &entryWords) const;
    // A test page's numbers start in the middle of new limits.
    bool IsTestPage() const;
    // Why the target takes this entry.
    SChangeReason Reason(const QJsonValue &entry) const;
};
