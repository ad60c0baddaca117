#include "View/engine/RelevanceTarget.h"

#include "Model/JsonPath.h"
#include "Support/Log.h"
#include "View/engine/ModelInterface.h"

namespace {

// Words alone: a table of entries can be most of a document.
void LogIfWorded(const char *words)
{
    if (words)
        qCDebug(lcEngine) << words;
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
    if (!IsJsonValueValid(entry))
        qCCritical(lcEngine) << entryWords.noEntry;
    return entry;
}

bool SRelevanceTarget::IsTestPage() const
{
    return modelInterface == eInterfaceCmdIf;
}
