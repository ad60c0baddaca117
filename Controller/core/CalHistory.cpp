#include "Controller/core/CalHistory.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <utility>

#include "Operations/calibration/CalComparison.h"

namespace {

constexpr char kBlockCount[] = "blockCount";  // follows the frequencies, and no cell shows it

SCalImage ImageOf(const SCalState &state)
{
    SCalPlace place;
    place.route = state.name.route;
    place.region = state.name.region;
    return {.records = {{state.name.kind, place, state.bytes}}};
}

// Keeps what differs of two lists with the same names.
void KeepDifferences(std::vector<SCalState> &before, std::vector<SCalState> &after)
{
    std::vector<SCalState> was;
    std::vector<SCalState> is;
    for (size_t i = 0; i < std::min(before.size(), after.size()); ++i) {
        if (before[i] == after[i])
            continue;
        was.push_back(std::move(before[i]));
        is.push_back(std::move(after[i]));
    }
    before = std::move(was);
    after = std::move(is);
}

std::vector<SCalState> StatesOf(const ICalItemByL1Operation &item,
                                const std::vector<SCalName> &names)
{
    std::vector<SCalState> states;
    states.reserve(names.size());
    for (const SCalName &name : names)
        states.push_back(*item.StateOf(name));
    return states;
}

CalChange Made(SCalChange change)
{
    KeepDifferences(change.before.memory, change.after.memory);
    KeepDifferences(change.before.base, change.after.base);
    if (change.before.memory.empty() && change.before.base.empty())
        return nullptr;
    return std::make_shared<const SCalChange>(std::move(change));
}

}  // namespace

CCalHistory::CCalHistory(std::unique_ptr<Item> base, uint64_t connection)
    : m_base(std::move(base)), m_connection(connection)
{
}

void CCalHistory::Learn()
{
    if (!m_names.empty())
        return;
    for (int kind = 0; kind < static_cast<int>(ECalRoute::Count); ++kind) {
        const auto route = static_cast<ECalRoute>(kind);
        m_places[route] = m_base->Places(route);
        for (const SCalPlace &place : m_places[route])
            m_names.emplace(SCalName{route, place.route, place.region}, 0);
    }
}

void CCalHistory::BeginFlow(Item &item, const std::function<void()> &storePage)
{
    const std::vector<SCalState> memory = item.States();
    storePage();
    m_before = item.States();
    for (size_t i = 0; i < memory.size(); ++i) {
        if (memory[i] != m_before[i])
            item.Restore(memory[i]);
    }
}

CalChange CCalHistory::EndFlow(const Item &item)
{
    Learn();
    SCalChange change = {.connection = m_connection};
    change.before.memory = std::exchange(m_before, {});
    change.before.base = m_base->States();
    m_base->TakeRecords(item.Arrived());
    change.after.memory = item.States();
    change.after.base = m_base->States();
    for (auto &[name, count] : m_names)
        count = Compare(item, name);
    return Made(std::move(change));
}

CalChange CCalHistory::Change(Item &item, const std::vector<SCalName> &names,
                              const std::function<void()> &step)
{
    SCalChange change = {.connection = m_connection};
    change.before.memory = StatesOf(item, names);
    step();
    change.after.memory = StatesOf(item, names);
    for (const SCalName &name : names)
        Recount(item, name);
    return Made(std::move(change));
}

void CCalHistory::Revert(Item &item, const std::vector<SCalName> &names) const
{
    for (const SCalName &name : names) {
        if (const auto base = m_base->StateOf(name); base && base->isValid)
            item.Restore(*base);
    }
}

std::vector<SCalName> CCalHistory::ChangedNames() const
{
    std::vector<SCalName> names;
    for (const auto &[name, count] : m_names) {
        if (count > 0)
            names.push_back(name);
    }
    return names;
}

void CCalHistory::Apply(Item &item, const SCalChange &change, ECalWay way)
{
    if (change.connection != m_connection)
        return;
    const SCalSide &side = way == ECalWay::Back ? change.before : change.after;
    for (const SCalState &state : side.base)
        m_base->Restore(state);
    for (const SCalState &state : side.memory)
        item.Restore(state);
    for (const auto *states : {&side.base, &side.memory}) {
        for (const SCalState &state : *states)
            Recount(item, state.name);
    }
}

int CCalHistory::Count() const
{
    return std::accumulate(m_names.begin(), m_names.end(), 0,
                           [](int sum, const auto &name) { return sum + name.second; });
}

int CCalHistory::CountOf(const SCalName &name) const
{
    const auto found = m_names.find(name);
    return found == m_names.end() ? 0 : found->second;
}

void CCalHistory::Recount(const Item &item, const SCalName &name)
{
    if (const auto found = m_names.find(name); found != m_names.end())
        found->second = Compare(item, name);
}

int CCalHistory::Compare(const Item &item, const SCalName &name) const
{
    const auto base = m_base->StateOf(name);
    const auto own = item.StateOf(name);
    if (!base || !own || !base->isValid || base->bytes == own->bytes)
        return 0;
    const CCalComparison comparison(ImageOf(*base), ImageOf(*own));
    const std::vector<SCalStatistic> fields = comparison.ByField();
    const auto blocks = std::count_if(fields.begin(), fields.end(), [](const SCalStatistic &field) {
        return field.name == kBlockCount;
    });
    return static_cast<int>(comparison.Count()) - static_cast<int>(blocks);
}
