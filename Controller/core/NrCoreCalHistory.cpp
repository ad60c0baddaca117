// The way back of calibration data: requests of a page to its item's history.
#include "Controller/core/NrCore.h"

#include <set>
#include <utility>

#include "Controller/fields/CommandFields.h"
#include "Operations/calibration/CalCopy.h"

namespace {

uint16_t BandOf(const QJsonObject &document)
{
    return BandNumber(CPackagedGroup(document, "calDataIf.config.group1").Text("band"));
}

QString CopyTargetText(const SCalPlace &place, ECalRoute kind)
{
    QString text = QStringLiteral("Route %1").arg(place.route);
    if (HasRegions(kind))
        text += QStringLiteral(", BW%1").arg(place.region);
    return text;
}

}  // namespace

template <typename Use>
auto CNrCore::UseHistory(ECalItem item, const QJsonObject &document, Use use)
{
    using Answer = decltype(use(*CalItem(item).operation, *CalItem(item).history, SCalName()));
    if (CalView(item).generation != 1)
        return Answer();
    const SCalName name = FindCalItem(item).select(document);
    const CLockSentry lock(CalItem(item).lock);
    if (!CalItem(item).history->Knows(name))
        return Answer();
    return use(*CalItem(item).operation, *CalItem(item).history, name);
}

std::optional<QJsonObject> CNrCore::GetCalBase(ECalItem item, const QJsonObject &document)
{
    const SCalView view = CalView(item);
    return UseHistory(item, document,
                      [&](ICalItemByL1Operation &, CCalHistory &history,
                          const SCalName &name) -> std::optional<QJsonObject> {
                          if (!history.Base().StateOf(name)->isValid)
                              return std::nullopt;
                          return FindCalItem(item).show(history.Base(), document, view.gains);
                      });
}

// What the page shows is taken in for the count alone.
SCalChangedCells CNrCore::CountCalChanges(ECalItem item, const QJsonObject &document, bool hasEdits)
{
    return UseHistory(
        item, document,
        [&](ICalItemByL1Operation &operation, CCalHistory &history, const SCalName &name) {
            const auto count = [&] {
                return SCalChangedCells{.inAll = history.Count(),
                                        .inRecord = history.CountOf(name)};
            };
            if (!hasEdits)
                return count();
            const SCalState own = *operation.StateOf(name);
            FindCalItem(item).store(operation, document);
            history.Recount(operation, name);
            const SCalChangedCells cells = count();
            operation.Restore(own);
            history.Recount(operation, name);
            return cells;
        });
}

CalChange CNrCore::RevertCalRecord(ECalItem item, const QJsonObject &document)
{
    return UseHistory(
        item, document,
        [&](ICalItemByL1Operation &operation, CCalHistory &history, const SCalName &name) {
            FindCalItem(item).store(operation, document);
            return history.Change(operation, {name}, [&] { history.Revert(operation, {name}); });
        });
}

CalChange CNrCore::RevertCalItem(ECalItem item, const QJsonObject &document)
{
    return UseHistory(
        item, document,
        [&](ICalItemByL1Operation &operation, CCalHistory &history, const SCalName &name) {
            FindCalItem(item).store(operation, document);
            history.Recount(operation, name);
            const std::vector<SCalName> names = history.ChangedNames();
            return history.Change(operation, names, [&] { history.Revert(operation, names); });
        });
}

// A route may stand in the table more than once.
CalCopyTargets CNrCore::FindCopyTargets(ECalItem item, const QJsonObject &document)
{
    return UseHistory(item, document,
                      [&](ICalItemByL1Operation &, CCalHistory &history, const SCalName &name) {
                          CalCopyTargets targets;
                          std::set<SCalName> seen = {name};
                          for (const SCalPlace &place : history.Places(name.kind)) {
                              if (place.band == BandOf(document) &&
                                  seen.insert({name.kind, place.route, place.region}).second)
                                  targets.append({.route = place.route,
                                                  .region = place.region,
                                                  .text = CopyTargetText(place, name.kind)});
                          }
                          return targets;
                      });
}

CalChange CNrCore::CopyCalRecord(ECalItem item, const QJsonObject &document,
                                 const CalCopyTargets &targets)
{
    return UseHistory(
        item, document,
        [&](ICalItemByL1Operation &operation, CCalHistory &history, const SCalName &name) {
            FindCalItem(item).store(operation, document);
            history.Recount(operation, name);
            std::vector<SCalName> names;
            for (const SCalCopyTarget &target : targets) {
                const SCalName other = {name.kind, static_cast<uint16_t>(target.route),
                                        target.region};
                if (other != name && history.Knows(other))
                    names.push_back(other);
            }
            const SCalState from = *operation.StateOf(name);
            return history.Change(operation, names, [&] {
                for (const SCalName &other : names)
                    operation.Restore(
                        CopiedRecord(from, *operation.StateOf(other), BandOf(document)));
            });
        });
}

void CNrCore::ApplyCalChange(ECalItem item, const QJsonObject &document, const SCalChange &change,
                             ECalWay way)
{
    if (CalView(item).generation != 1)
        return;
    const CLockSentry lock(CalItem(item).lock);
    ICalItemByL1Operation &operation = *CalItem(item).operation;
    FindCalItem(item).store(operation, document);
    CalItem(item).history->Recount(operation, FindCalItem(item).select(document));
    CalItem(item).history->Apply(operation, change, way);
}

CalChange CNrCore::TakeFlowChange(ECalItem item)
{
    const CLockSentry lock(CalItem(item).lock);
    return std::exchange(CalItem(item).flowChange, nullptr);
}
