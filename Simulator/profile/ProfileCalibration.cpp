#include "Simulator/profile/ProfileCalibration.h"

#include "Simulator/profile/CalKinds.h"
#include "Simulator/profile/NumberTable.h"

namespace {

template <class Block>
void ReadSubbands(CJsonReader &reader, const char *key, SProfileCalibration &calibration)
{
    constexpr int kMost = SCalKind<Block>::kBlocksOfRecord * kVondCalBlockSubbands;
    SProfileSubbands &rule = calibration.*SCalKind<Block>::kRule;
    ReadNumberTable(reader, {key, "n", 0.0, kMost}, rule.fallback, rule.byBand);
}

ETxEntries ReadTxEntries(CJsonReader &reader)
{
    constexpr const char *kNames[] = {"bandwidth first", "count first", "in turn"};
    constexpr std::size_t kLongest = 15;
    const std::string text = reader.Text("txEntries", kLongest, kNames[0]);
    for (int i = 0; i < 3; ++i) {
        if (text == kNames[i])
            return static_cast<ETxEntries>(i);
    }
    CJsonReader::Fail(reader.Place("txEntries"), "unknown order " + text);
}

}  // namespace

void ReadCalibration(CJsonReader &reader, SProfile &profile)
{
    if (!reader.Has("calibration"))
        return;
    SProfileCalibration &calibration = profile.calibration;
    CJsonReader part(reader.Take("calibration"), "calibration");
    calibration.seed = part.Integer<uint32_t>("seed", 0, UINT32_MAX, calibration.seed);
    calibration.txEntries = ReadTxEntries(part);
    ReadSubbands<SAptBlock>(part, "txSubbands", calibration);
    ReadSubbands<SMMType1PathlossBlockV7>(part, "rxType1Subbands", calibration);
    ReadSubbands<SMMType2PathlossBlockV7>(part, "rxType2Subbands", calibration);
    part.Done();
}
