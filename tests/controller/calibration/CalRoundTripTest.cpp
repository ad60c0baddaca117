// What a page is shown and gives back untouched leaves the record as it was, byte for byte.
#include <gtest/gtest.h>

#include "Controller/calibration/CalCmdBuilder.h"
#include "Controller/calibration/CalResponseBuilder.h"
#include "Model/ModelText.h"
#include "tests/controller/calibration/CalPages.h"
#include "tests/operations/TargetFixture.h"

namespace {

constexpr int kFrequencyCounts[] = {0, 1, 15, 16, 17, 63, 64};
constexpr EEditors kEditors[] = {EEditors::None, EEditors::OfThePage};

class CalRoundTripTest : public CTargetTest
{
protected:
    SAptRouteBwRecord Back(const SAptRouteBwRecord &shown, EEditors editors,
                           const SAptRouteBwRecord &into) const
    {
        const std::string text =
            m_show.GetAptDataModelV7(Packaged(CalPage(kAptPage), editors), shown);
        const QJsonObject document = ModelFromText(text);
        EXPECT_FALSE(document.contains("modelIntegrity"));
        return m_fill.GetAptCmdV7(Packaged(document, editors), into);
    }
    SMMType1PathlossByRouteV7 Back(const SMMType1PathlossByRouteV7 &shown, EEditors editors,
                                   const SMMType1PathlossByRouteV7 &into,
                                   const SSelection &selection = {}) const
    {
        return LossBack(shown, editors, into, selection,
                        &CCalResponseBuilder::GetType1PathLossDataModelV7,
                        &CCalCmdBuilder::GetType1PathLossCmdV7);
    }
    SMMType2PathlossByRouteV7 Back(const SMMType2PathlossByRouteV7 &shown, EEditors editors,
                                   const SMMType2PathlossByRouteV7 &into,
                                   const SSelection &selection = {}) const
    {
        return LossBack(shown, editors, into, selection,
                        &CCalResponseBuilder::GetType2PathLossDataModelV7,
                        &CCalCmdBuilder::GetType2PathLossCmdV7);
    }

private:
    template <typename Record, typename Show, typename Fill>
    Record LossBack(const Record &shown, EEditors editors, const Record &into,
                    const SSelection &selection, Show show, Fill fill) const
    {
        QJsonObject page = Packaged(CalPage(kPathLossPage), editors);
        Select(page, selection);
        const QJsonObject document = ModelFromText((m_show.*show)(page, shown));
        EXPECT_FALSE(document.contains("modelIntegrity"));
        return (m_fill.*fill)(Packaged(document, editors), into);
    }

    CCalResponseBuilder m_show;
    CCalCmdBuilder m_fill;
};

TEST_F(CalRoundTripTest, AptRecordIsUntouchedByBeingShown)
{
    for (EEditors editors : kEditors) {
        for (int frequencies : kFrequencyCounts) {
            for (unsigned seed = 1; seed <= 3; ++seed) {
                const SAptRouteBwRecord record = ExtremeApt(seed, frequencies);
                EXPECT_TRUE(SameBytes(Back(record, editors, record), record))
                    << frequencies << " frequencies, seed " << seed;
            }
        }
    }
}

// What a page has no words for is left out: fractions of prf, voltages that are no option, modes.
TEST_F(CalRoundTripTest, AptDocumentHoldsTheWholeRecord)
{
    for (int frequencies : kFrequencyCounts) {
        SAptRouteBwRecord record = ExtremeApt(11, frequencies);
        record.band = record.route = 0;
        record.paModeCount = record.reserved7 = 0;
        for (SAptLevel &level : record.level) {
            level.prf = static_cast<int16_t>(level.prf / 32 * 32);
            level.dc2dcLevel = static_cast<uint8_t>(level.dc2dcLevel % 55 + 1);
            level.reserved3 = 0;
        }
        for (uint8_t &index : record.prfIndex)
            index = 0;
        EXPECT_TRUE(SameBytes(Back(record, EEditors::None, {}), record)) << frequencies;
    }
}

TEST_F(CalRoundTripTest, Type1RecordIsUntouchedByBeingShown)
{
    for (EEditors editors : kEditors) {
        for (int frequencies : kFrequencyCounts) {
            const auto record = ExtremeLoss<SMMType1PathlossByRouteV7>(3, frequencies);
            for (const char *powerMode : {"HPM", "LPM"})
                EXPECT_TRUE(SameBytes(Back(record, editors, record, {powerMode}), record))
                    << frequencies << " frequencies, " << powerMode;
        }
    }
}

TEST_F(CalRoundTripTest, Type1DocumentsOfBothPowerModesHoldTheWholeRecord)
{
    auto record = ExtremeLoss<SMMType1PathlossByRouteV7>(5, 20);
    record.band = record.route = 0;
    const auto half = Back(record, EEditors::None, {}, {"HPM"});
    for (const auto &subband : half.loss) {
        for (const SMMLossPair &pair : subband)
            ASSERT_EQ(pair.lpm, 0);
    }
    EXPECT_TRUE(SameBytes(Back(record, EEditors::None, half, {"LPM"}), record));
}

TEST_F(CalRoundTripTest, Type2RecordIsUntouchedByBeingShown)
{
    for (EEditors editors : kEditors) {
        for (int frequencies : kFrequencyCounts) {
            const auto record = ExtremeLoss<SMMType2PathlossByRouteV7>(7, frequencies);
            EXPECT_TRUE(SameBytes(Back(record, editors, record, {"LPM", 1, 6, 63}), record))
                << frequencies;
        }
    }
}

// Each of the 284 pairs of a subband stands on one page alone.
TEST_F(CalRoundTripTest, Type2DocumentsOfAllSelectionsHoldTheWholeSubband)
{
    auto record = ExtremeLoss<SMMType2PathlossByRouteV7>(9, 30);
    record.band = record.route = 0;
    for (int freqIdx : {0, 17, 63}) {
        SMMType2PathlossByRouteV7 back = {};
        for (const char *powerMode : {"HPM", "LPM"}) {
            for (int path = 0; path < 2; ++path) {
                for (int bigG = 0; bigG < 7; ++bigG)
                    back = Back(record, EEditors::None, back, {powerMode, path, bigG, freqIdx});
            }
        }
        EXPECT_TRUE(SameBytes(back.loss[freqIdx], record.loss[freqIdx])) << freqIdx;
        SMMType2PathlossByRouteV7 rest = record;
        for (int subband = 0; subband < 64; ++subband) {
            for (SMMLossPair &pair : rest.loss[subband])
                pair = subband == freqIdx ? pair : SMMLossPair{};
        }
        EXPECT_TRUE(SameBytes(back, rest)) << freqIdx;
    }
}

}  // namespace
