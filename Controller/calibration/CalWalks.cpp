#include "Controller/calibration/CalWalks.h"

namespace {

using Apt = SAptRouteBwRecord;

// A number of each PA control level; the members are numbered from 1.
struct SLevelRow
{
    const char *group;
    const char *member;
    ECalText kind;
    CCalCell (*cell)(SAptLevel &level);
    const char *failed;
};
constexpr SLevelRow kLevelRows[] = {
    {"calDataIf.data.group2", "paMode", ECalText::Number,
     [](SAptLevel &level) { return CCalCell(level.paMode); }, "Update pa mode failed"},
    {"calDataIf.data.group3", "pRf", ECalText::WholeDb,
     [](SAptLevel &level) { return CCalCell(level.prf); }, "Update prf failed"},
    {"calDataIf.data.group4", "paGain", ECalText::Db,
     [](SAptLevel &level) { return CCalCell(level.paGain); }, "Update paGain failed"},
    {"calDataIf.data.group5", "dc2dcLevel", ECalText::Option,
     [](SAptLevel &level) { return CCalCell(level.dc2dcLevel); }, "Update dc2dcLevel failed"},
    {"calDataIf.data.group6", "256QAMusage", ECalText::Number,
     [](SAptLevel &level) { return CCalCell(level.usage256Qam); }, "Update 256QAMusage failed"},
};

// Numbers of each PA mode, in the order high, middle, low.
struct SPaModeRow
{
    const char *group;
    const char *members[kVondAptPaModes];
    int columns;
    CCalCell (*cell)(Apt &record, int mode, int column);
    const char *failed;  // "%1" is the member
};
constexpr SPaModeRow kPaModeRows[] = {
    {"calDataIf.data.group7",
     {"paHighPaGain", "paMiddlePaGain", "paLowPaGain"},
     kVondCalMaxSubbands,
     [](Apt &r, int mode, int column) { return CCalCell(r.paGain[mode][column]); },
     "Update subband pa gain failed"},
    {"calDataIf.data.group8",
     {"paHighPaGain", "paMiddlePaGain", "paLowPaGain"},
     kVondCalTemperatures,
     [](Apt &r, int mode, int column) { return CCalCell(r.paGainTempOffset[mode][column]); },
     "Update pa gain temp offset failed"},
    {"calDataIf.data.group9",
     {"paHighPd", "paMiddlePd", "paLowPd"},
     kVondCalMaxSubbands,
     [](Apt &r, int mode, int column) { return CCalCell(r.powerDetector[mode][column]); },
     "Update subband pd value failed"},
    {"calDataIf.data.group10",
     {"paHighPd", "paMiddlePd", "paLowPd"},
     kVondCalTemperatures,
     [](Apt &r, int mode, int column) { return CCalCell(r.powerDetectorTempOffset[mode][column]); },
     "Update pd value offset failed"},
};
constexpr SPaModeRow kCouplerLoss = {
    "calDataIf.data.group11",
    {"couplerLossHigh", "couplerLossMiddle", "couplerLossLow"},
    kOneText,
    [](Apt &r, int mode, int) { return CCalCell(r.couplerLoss[mode]); },
    "Update %1 failed"};

// Losses of numbered members; the log line is of a type 1 page's packaged texts.
struct SLossRow
{
    const char *group;
    EVondRxPath path;
    const char *failed;  // "%1" is the member
    const char *fillLog;
};
constexpr SLossRow kType1Rows[] = {
    {"calDataIf.data.group2", EVondRxPath::Main, "Update Main %1 failed",
     "GetType1PathLossCmdV7: lnaArrayM:"},
    {"calDataIf.data.group3", EVondRxPath::Div, "Update Div %1 failed",
     "GetType1PathLossCmdV7: lnaArrayP:"},
};
constexpr SLossRow kGainByGainRows[] = {
    {"calDataIf.data.group6", EVondRxPath::Main, "Update Main %1 failed", nullptr},
    {"calDataIf.data.group7", EVondRxPath::Div, "Update Div %1 failed", nullptr},
};

struct SPartialOnRow
{
    const char *member;
    EVondRxPath path;
    const char *failed;
};
constexpr SPartialOnRow kPartialOnRows[] = {
    {"main", EVondRxPath::Main, "Update Main partial-on failed"},
    {"div", EVondRxPath::Div, "Update Div partial-on failed"},
};

QString Numbered(const char *member, int number)
{
    return QLatin1String(member) + QString::number(number);
}

void MoveLevels(ICalMove &move, Apt &record)
{
    for (int n = 0; n < kVondAptLevels; ++n) {
        for (const SLevelRow &row : kLevelRows)
            move.Field({row.group, Numbered(row.member, n + 1), row.kind, kOneText,
                        [&](int) { return row.cell(record.level[n]); }, row.failed});
    }
}

void MovePaModes(ICalMove &move, Apt &record, const SPaModeRow &row)
{
    for (int mode = 0; mode < kVondAptPaModes; ++mode)
        move.Field({row.group, QString::fromLatin1(row.members[mode]), ECalText::Db, row.columns,
                    [&](int column) { return row.cell(record, mode, column); }, row.failed});
}

// What both types of path loss have in common.
template <typename Record>
void MoveOffsetAndFrequencies(ICalMove &move, Record &record)
{
    constexpr bool kShownToFirst0 = false;
    move.Field({"calDataIf.data.group1", QStringLiteral("plOffset"), ECalText::Db,
                kVondCalTemperatures, [&](int column) { return CCalCell(record.plOffset[column]); },
                "Update tempOffset failed"});
    move.Frequencies({"calDataIf.data.group4", "freq", record.freq, record.blockCount,
                      kShownToFirst0, "Update dl freq failed"});
}

bool IsIndex(int index, int count)
{
    return index >= 0 && index < count;
}

}  // namespace

void MoveApt(ICalMove &move, SAptRouteBwRecord &record)
{
    move.Field({"calDataIf.data.group1", QStringLiteral("paControlLevel"), ECalText::Number,
                kOneText, [&](int) { return CCalCell(record.paControlLevel); },
                "Update PA control level failed"});
    MoveLevels(move, record);
    for (const SPaModeRow &row : kPaModeRows)
        MovePaModes(move, record, row);
    move.Field({"calDataIf.data.group11", QStringLiteral("normalTempIndex"), ECalText::Number,
                kOneText, [&](int) { return CCalCell(record.normalTempIndex); },
                "Update normalTempIndex failed"});
    MovePaModes(move, record, kCouplerLoss);
    constexpr bool kShownToFirst0 = true;
    move.Frequencies({"calDataIf.data.group12", "ulFreq", record.freq, record.blockCount,
                      kShownToFirst0, "Update ul freq failed"});
}

void MoveType1(ICalMove &move, SMMType1PathlossByRouteV7 &record, const SLossView &view)
{
    MoveOffsetAndFrequencies(move, record);
    for (int slot = 0; view.hasGains && slot < kVondLossGainSlots; ++slot) {
        for (const SLossRow &row : kType1Rows) {
            const int pair = VondType1LossPair(row.path, slot);
            move.Field(
                {row.group, Numbered("lna", slot), ECalText::Db, kVondCalMaxSubbands,
                 [&](int subband) { return CCalCell(record.loss[subband][pair].*view.half); },
                 row.failed, row.fillLog, view.captions.value(slot)});
        }
    }
}

void MoveType2(ICalMove &move, SMMType2PathlossByRouteV7 &record, const SLossView &view)
{
    MoveOffsetAndFrequencies(move, record);
    if (!view.hasGains || !IsIndex(view.freqIdx, kVondCalMaxSubbands) ||
        !IsIndex(view.path, kVondSrxPaths) || !IsIndex(view.bigG, kVondGainRows))
        return;
    auto &loss = record.loss[view.freqIdx];
    for (const SPartialOnRow &row : kPartialOnRows) {
        const auto cell = [&](int slot) {
            return CCalCell(loss[VondPartialOnPair(row.path, view.path, slot)].*view.half);
        };
        move.Field({"calDataIf.data.group5", QString::fromLatin1(row.member), ECalText::Db,
                    kVondLossGainSlots, cell, row.failed});
    }
    for (int smallG = 0; smallG < kVondGainColumns; ++smallG) {
        for (const SLossRow &row : kGainByGainRows) {
            const auto cell = [&](int subGain) {
                const int pair =
                    VondGainByGainPair(row.path, view.path, view.bigG, smallG, subGain);
                return CCalCell(loss[pair].*view.half);
            };
            move.Field({row.group, Numbered("gain", smallG), ECalText::Db, kVondSubGains, cell,
                        row.failed});
        }
    }
}
