// groupType 1 as the target of a change.
#include "View/engine/ScalarGroup.h"

#include <QWidget>

#include "Model/JsonPath.h"
#include "Support/Log.h"
#include "View/engine/DataTypes.h"
#include "View/engine/RelevanceTarget.h"
#include "View/engine/WidgetIndex.h"

namespace {

// Null when the target stays as it is.
QWidget *FindTarget(const SRelevanceTarget &target)
{
    const SScalarTargetWords &words = target.words.scalar;
    QWidget *widget = target.index.Find(target.path);
    if (!widget) {
        qCCritical(lcEngine) << words.none;
        return nullptr;
    }
    qCDebug(lcEngine) << words.found;
    if (!widget->isVisible()) {
        qCDebug(lcEngine) << words.hidden;
        return nullptr;
    }
    return widget;
}

// The widget's own flag, whatever its page's.
bool IsOn(const QWidget *widget)
{
    return !widget->testAttribute(Qt::WA_ForceDisabled);
}

}  // namespace

void ApplyScalarValueRelevance(const SRelevanceTarget &target)
{
    QWidget *widget = FindTarget(target);
    if (!widget)
        return;
    const QJsonValue entry = target.FindEntry(target.words.scalar.entry);
    if (!IsJsonValueValid(entry))
        return;
    const QJsonObject trait = target.Trait();
    const SDataType *type =
        FindScalarType(trait.value(QLatin1String("dataType")).toString(), widget);
    if (!type || !type->relate) {
        qCCritical(lcEngine) << "---> [Fail][Value Relevance][type1] Cannot get the mapping of "
                                "dataType and widget <--- ";
        return;
    }
    qCDebug(lcEngine) << type->relateLog;
    const CChangeStep step(target.changes, target.Reason(entry), target.member, -1, widget);
    type->relate(widget, {
                             .entry = entry,
                             .defaultText = trait.value(QLatin1String("defaultValue")).toString(),
                             .isTestPage = target.IsTestPage(),
                         });
}

void ApplyScalarStatusRelevance(const SRelevanceTarget &target)
{
    QWidget *widget = FindTarget(target);
    if (!widget)
        return;
    const QJsonValue entry = target.FindEntry(target.words.scalar.entry);
    if (!IsJsonValueValid(entry))
        return;
    const SChangeReason reason = target.Reason(entry);
    const bool wasOn = IsOn(widget);
    widget->setEnabled(entry.toInt() != 0);
    if (target.changes && IsOn(widget) != wasOn)
        target.changes->Enable(reason, target.member, -1, !wasOn);
    const CChangeScope scope(target.changes, reason);
    const SDataType *type = FindScalarTypeOfWidget(widget);
    if (type && type->statusChanged)
        type->statusChanged(widget);
}
