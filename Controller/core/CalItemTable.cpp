#include "Controller/core/CalItemTable.h"

#include <algorithm>
#include <array>

#include "Controller/calibration/AptDocument.h"
#include "Controller/calibration/PathLossDocument.h"

namespace {

template <typename Item>
std::unique_ptr<ICalItemByL1Operation> Make()
{
    return std::make_unique<Item>(ERadioKind::Nr);
}

template <typename Item, auto ShowDocument>
std::optional<QJsonObject> Show(const ICalItemByL1Operation &item, const QJsonObject &document,
                                const SSupportedGains &gains)
{
    return ShowDocument(static_cast<const Item &>(item), document, gains);
}

template <typename Item, auto StoreDocument>
void Store(ICalItemByL1Operation &item, const QJsonObject &document)
{
    StoreDocument(static_cast<Item &>(item), document);
}

constexpr std::array kCalItems = {
    SCalItemRow{.id = ECalItem::PathLoss,
                .name = "RX PathLoss",
                .key = "rx-path-loss",
                .page = EPageId::RxPathLoss,
                .showsGains = true,
                .make = &Make<CMultiRatPathLossV7>,
                .select = &SelectedPathLossRecord,
                .show = &Show<CMultiRatPathLossV7, ShowPathLossDocument>,
                .store = &Store<CMultiRatPathLossV7, StorePathLossDocument>},
    SCalItemRow{.id = ECalItem::Apt,
                .name = "APT Profile",
                .key = "apt",
                .page = EPageId::AptProfile,
                .showsGains = false,
                .make = &Make<CMultiRatAptProfileV7>,
                .select = &SelectedAptRecord,
                .show = &Show<CMultiRatAptProfileV7, ShowAptDocument>,
                .store = &Store<CMultiRatAptProfileV7, StoreAptDocument>},
};

constexpr bool ItemPositionsAreIds()
{
    for (size_t i = 0; i < kCalItems.size(); ++i) {
        if (Index(kCalItems[i].id) != i)
            return false;
    }
    return kCalItems.size() == kCalItemCount;
}
static_assert(ItemPositionsAreIds(), "kCalItems is indexed by item id");

template <typename Matches>
std::optional<ECalItem> Find(Matches matches)
{
    const auto *const row = std::find_if(kCalItems.begin(), kCalItems.end(), matches);
    return row == kCalItems.end() ? std::nullopt : std::optional(row->id);
}

}  // namespace

const SCalItemRow &FindCalItem(ECalItem item)
{
    return kCalItems[Index(item)];
}

QString CalItemName(ECalItem item)
{
    return QString::fromLatin1(FindCalItem(item).name);
}

QStringList CalItemNames()
{
    QStringList names;
    for (const SCalItemRow &row : kCalItems)
        names.append(QString::fromLatin1(row.name));
    return names;
}

std::optional<ECalItem> CalItemByName(const QString &name)
{
    return Find([&](const SCalItemRow &row) { return name == QLatin1String(row.name); });
}

std::optional<ECalItem> CalItemByKey(const QString &key)
{
    return Find([&](const SCalItemRow &row) { return key == QLatin1String(row.key); });
}

std::optional<ECalItem> CalItemOfPage(EPageId page)
{
    return Find([page](const SCalItemRow &row) { return row.page == page; });
}
