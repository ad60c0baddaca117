#include "View/engine/RelevanceTarget.h"

#include "Model/JsonPath.h"
#include "Support/Log.h"
#include "View/engine/ModelInterface.h"
#include "View/engine/WidgetIndex.h"

namespace {

// Words alone: a table of entries can be most of a document.
void LogIfWorded(const char *words)
{
    if (words)
        qCDebug(lcEngine) << words;
}

// The target stays as it is.
void RecordMiss(const SRelevanceTarget &target)
{
    if (!target.changes)
        return;
    SChangeReason reason = target.Reason({});
    reason.isMissing = true;
    const QString text = ShownText(target.index.Find(target.path));
    target.changes->Add(reason, target.member, -1, text, text);
}

}  // namespace

QJsonObject SRelevanceTarget::Trait() const
{
    return GetJsonValueConst(document, path + QLatin1String(".trait")).toObject();
}

QJsonValue SRelevanceTarget::FindEntry(const SEntryWords &entryWords) const
{
    const QJsonValue trait = GetJsonValueConst(document, path + QLatin1String(".trait"));
    LogIfWorded(entryWords.traitFound);
    if (!IsJsonValueValid(trait)) {
        qCCritical(lcEngine) << entryWords.noTrait;
        return {};
    }
    const QJsonValue pairs = trait.toObject().value(QLatin1String(table));
    LogIfWorded(entryWords.pairFound);
    if (!IsJsonValueValid(pairs)) {
        qCCritical(lcEngine) << entryWords.noPair;
        return {};
    }
    const QJsonValue entry = GetJsonValueConst(pairs.toObject(), key);
    if (entryWords.entryFound)
        qCDebug(lcEngine) << entryWords.entryFound << entry;
    if (!IsJsonValueValid(entry)) {
        qCCritical(lcEngine) << entryWords.noEntry;
        RecordMiss(*this);
    }
    return entry;
}

// A text of its own: one of the document would keep all of the table.
SChangeReason SRelevanceTarget::Reason(const QJsonValue &entry) const
{
    return {.cause = EChangeCause::Relation,
            .publisher = publisher,
            .key = key,
            .entry = entry.isString() ? QJsonValue(entry.toString()) : entry};
}

bool SRelevanceTarget::IsTestPage() const
{
    return modelInterface == eInterfaceCmdIf;
}
