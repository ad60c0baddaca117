// The way back of calibration data: requests of the view controller, which the core answers at once.
#include "ViewController/QuorlinViewCtrl.h"

#include "Controller/core/NrCore.h"

QJsonObject CQuorlinViewCtrl::GetCalBase(ECalItem item, const QJsonObject &document)
{
    return GetCore().GetCalBase(item, document).value_or(QJsonObject());
}

SCalChangedCells CQuorlinViewCtrl::CountCalChanges(ECalItem item, const QJsonObject &document,
                                                   bool hasEdits)
{
    return GetCore().CountCalChanges(item, document, hasEdits);
}

CalChange CQuorlinViewCtrl::RevertCalRecord(ECalItem item, const QJsonObject &document)
{
    return GetCore().RevertCalRecord(item, document);
}

CalChange CQuorlinViewCtrl::RevertCalItem(ECalItem item, const QJsonObject &document)
{
    return GetCore().RevertCalItem(item, document);
}

CalCopyTargets CQuorlinViewCtrl::FindCopyTargets(ECalItem item, const QJsonObject &document)
{
    return GetCore().FindCopyTargets(item, document);
}

CalChange CQuorlinViewCtrl::CopyCalRecord(ECalItem item, const QJsonObject &document,
                                          const CalCopyTargets &targets)
{
    return GetCore().CopyCalRecord(item, document, targets);
}

void CQuorlinViewCtrl::ApplyCalChange(ECalItem item, const QJsonObject &document,
                                      const CalChange &change, ECalWay way)
{
    if (change)
        GetCore().ApplyCalChange(item, document, *change, way);
}

CalChange CQuorlinViewCtrl::TakeFlowChange(ECalItem item)
{
    return GetCore().TakeFlowChange(item);
}
