#include "Operations/calibration/PathLossSections.h"

#include <algorithm>
#include <iterator>
#include <memory>

#include "Operations/calibration/CalBlockCount.h"
#include "Operations/calibration/CalKeys.h"

namespace {

constexpr int kPaths = 2;  // by EVondRxPath

// What differs between the two types. Section forms by radio kind, then path; empty when a first
// route of a band has no form of its own.
struct STypeForm
{
    ECalRoute route;
    const char *name;
    bool plainFirst;  // the first route of a band has a form without a number
    const char *first[2][kPaths];
    const char *further[2][kPaths];
    bool (*appendKeys)(const SMMRfRxGainInfoV7 &, EPowerMode, std::vector<SGainKey> &);
    const char *tooMany[2];  // by ECalAccess
};

constexpr STypeForm kType1{
    ECalRoute::Type1,
    "T1 ",
    true,
    {{"LTE BAND%d RX loss", "LTE BAND%d RXD loss"}, {"NR n%d RX loss", "NR n%d RXD loss"}},
    {{"LTE BAND%d Route CA%d RX loss", "LTE BAND%d Route CA%d RXD loss"},
     {"NR n%d Route CA%d RX loss", "NR n%d Route CA%d RXD loss"}},
    AppendType1Keys,
    {"Type1 max LAN(gain mode) count from L1 capability is over 8",
     "Type1 LAN(gain mode) count from L1 capability is over 8"}};

constexpr STypeForm kType2{
    ECalRoute::Type2,
    "T2 ",
    false,
    {},
    {{"LTE BAND%d Route NCCA%d RX loss", "LTE BAND%d Route NCCA%d RXD loss"},
     {"NR n%d Route NCCA%d RX loss", "NR n%d Route NCCA%d RXD loss"}},
    AppendType2Keys,
    {"Type2 partial-on max LAN(gain mode) count from L1 capability is over 8",
     "Type2 partial-on max LAN(gain mode) count from L1 capability is over 8"}};

template <typename Record>
constexpr const STypeForm &kForm = kType1;
template <>
constexpr const STypeForm &kForm<SMMType2PathlossByRouteV7> = kType2;

// What both sections of a route hold, in the order of writing, behind the chip's name.
template <typename Record>
constexpr SCalKey<Record> kKeys[] = {
    {"Comp Route", ECalValue::Number, 1, "0", [](Record &r, int) { return CCalCells(r.route); }},
    {"DL Frequency(1KHz)", ECalValue::Number, 1, "0",
     [](Record &r, int) { return CCalCells(r.freq); }},
    {"Temperature Offset", ECalValue::Db, 1, "0",
     [](Record &r, int) { return CCalCells(r.plOffset); }},
};

// The losses of a key's gain on a path, by subband.
template <typename Record>
CCalCells LossCells(Record &record, const SGainKey &key, int path)
{
    SMMLossPair &first = record.loss[0][key.pair[path]];
    return {key.mode == EPowerMode::Hpm ? first.hpm : first.lpm, kVondCalMaxSubbands,
            sizeof record.loss[0]};
}

template <typename Record>
bool IsWritten(const Record &record, const SGainKey &key, int path)
{
    return key.use != EGainKey::IfUsed ||
           std::any_of(std::begin(record.loss), std::end(record.loss), [&](const auto &subband) {
               const SMMLossPair &loss = subband[key.pair[path]];
               return (key.mode == EPowerMode::Hpm ? loss.hpm : loss.lpm) != 0;
           });
}

template <typename Record>
SCalFault ReadGains(const CIniLines &section, const std::vector<SGainKey> &keys, int path,
                    Record &record, CCalValueWatch &watch)
{
    for (const SGainKey &key : keys) {
        if (const wchar_t *text = section.Find(key.key)) {
            watch.BeginKey(section.Name(), key.key);
            LossCells(record, key, path).Read(text, ECalValue::Db, &watch);
        } else if (key.use == EGainKey::Required) {
            return {
                kCalIncomplete,
                QLatin1String("Target supports [") + QString::fromStdString(key.key) +
                    QLatin1String("], But it does not exist in the file. Please check you file.")};
        }
    }
    return {};
}

}  // namespace

template <typename Record>
ECalRoute CPathLossSections<Record>::Kind() const
{
    return kForm<Record>.route;
}

template <typename Record>
const char *CPathLossSections<Record>::Name() const
{
    return kForm<Record>.name;
}

template <typename Record>
std::vector<std::string> CPathLossSections<Record>::SectionsOf(ERadioKind kind,
                                                               const SCalPlace &place) const
{
    const STypeForm &form = kForm<Record>;
    const bool plain = form.plainFirst && place.ordinal == 0;
    std::vector<std::string> names;
    for (int path = 0; path < kPaths; ++path) {
        const auto &forms = plain ? form.first : form.further;
        names.push_back(FormText(forms[static_cast<int>(kind)][path],
                                 {std::to_string(place.band), std::to_string(place.ordinal)}));
    }
    return names;
}

template <typename Record>
SCalFault CPathLossSections<Record>::Begin(const CTargetCapability &target, ERadioKind kind,
                                           ECalAccess access)
{
    m_gainKeys.clear();
    for (EPowerMode mode : {EPowerMode::Hpm, EPowerMode::Lpm}) {
        const SMMRfRxGainInfoV7 *gains =
            target.GetSupportRxGainInfoV7(kind, static_cast<uint32_t>(mode));
        if (!gains)
            return {kCalGeneralError, QString::fromLatin1(kNoRouteInfo)};
        if (kForm<Record>.appendKeys(*gains, mode, m_gainKeys))
            continue;
        return {access == ECalAccess::Read ? kCalFileProblem : kCalNoFile,
                QString::fromLatin1(kForm<Record>.tooMany[static_cast<int>(access)])};
    }
    return {};
}

template <typename Record>
SCalFault CPathLossSections<Record>::Read(const SCalPlace &place, const CalFileSections &sections,
                                          CCalValueWatch &watch)
{
    const auto record = std::make_unique<Record>(m_store.At(place));
    watch.BeginRecord(Kind(), place, record.get());
    EAbsentKey absent = EAbsentKey::Default;
    for (int path = 0; path < kPaths; ++path) {
        if (!sections[path])
            continue;
        ReadKeys(*sections[path], kKeys<Record>, absent, *record, watch);
        absent = EAbsentKey::Keep;
        if (SCalFault fault = ReadGains(*sections[path], m_gainKeys, path, *record, watch))
            return fault;
    }
    // The sections' names tell their route; numbers in the sections can't change it.
    record->band = place.band;
    record->route = place.route;
    record->blockCount =
        ImportedBlockCount(*record, m_store.IsValid(place) ? &m_store.At(place) : nullptr);
    watch.EndRecord();
    m_store.At(place) = *record;
    m_store.SetValid(place);
    return {};
}

template <typename Record>
void CPathLossSections<Record>::Write(CIniSection &section, const SCalPlace &place, int index)
{
    Record &record = m_store.At(place);
    WriteKeys(section, kKeys<Record>, record);
    for (const SGainKey &key : m_gainKeys) {
        if (IsWritten(record, key, index))
            LossCells(record, key, index).AppendTo(section.Key(key.key), ECalValue::Db);
    }
}

template class CPathLossSections<SMMType1PathlossByRouteV7>;
template class CPathLossSections<SMMType2PathlossByRouteV7>;
