// What the flash refuses: each good round is bent in one place, the answer names it in the text of
// its kind, and nothing changes.

#include "tests/simulator/flash/CalFixture.h"

namespace {

enum ECalText
{
    TYPE1 = 1,
    TYPE2 = 2,
    TX = 4,
    ALL = TYPE1 | TYPE2 | TX
};

template <class Request>
struct SBend
{
    void (*bend)(Request &);
    int texts;
    const char *words;
};

void ExpectRefusal(const SMMCalVerdictV7 &verdict, int texts, const std::string &words)
{
    EXPECT_EQ(verdict.status, 0);
    EXPECT_EQ(std::string(verdict.type1Text), (texts & TYPE1) != 0 ? words : "");
    EXPECT_EQ(std::string(verdict.type2Text), (texts & TYPE2) != 0 ? words : "");
    EXPECT_EQ(std::string(verdict.txText), (texts & TX) != 0 ? words : "");
}

class CalRefusalTest : public CCalTest
{
protected:
    // One record of each kind as the handset's flash holds it.
    static CCalDownload GoodDownload()
    {
        CCalDownload download;
        download.Type1(13, Type1(13)).Type2(101, Type2(101)).Tx(9, 40000, Tx(9, 40000));
        return download;
    }
};

using SGet = SMMGetCalDataReqV7;
using SSet = SMMSetCalDataReqV7;

const SBend<SGet> kUploads[] = {
    {[](SGet &r) { r.radioKind = 0; }, ALL, "radio kind 0 has no calibration data"},
    {[](SGet &r) { r.radioKind = 7; }, ALL, "radio kind 7 has no calibration data"},
    {[](SGet &r) { r.type1Count = 56; }, TYPE1, "56 entries, at most 55"},
    {[](SGet &r) { r.type2Count = 4; }, TYPE2, "4 entries, at most 3"},
    {[](SGet &r) { r.txCount = 65535; }, TX, "65535 entries, at most 135"},
    {[](SGet &r) { r.type1[0].route = 99; }, TYPE1, "route 99: unknown route"},
    {[](SGet &r) { r.type1[0].route = 101; }, TYPE1, "route 101: unknown route"},
    {[](SGet &r) { r.type2[0].route = 1; }, TYPE2, "route 1: unknown route"},
    {[](SGet &r) { r.tx[0].route = r.tx[0].routeAgain = 77; }, TX, "route 77: unknown route"},
    {[](SGet &r) { r.tx[0].bandwidth = 50000; }, TX, "route 9, 50000 kHz: unknown bandwidth"},
    {[](SGet &r) { r.tx[0].routeAgain = 10; }, TX, "route 9: named 10 the second time"},
    {[](SGet &r) { r.type1[0].blockCount = 5; }, TYPE1, "route 13: 5 blocks, at most 4"},
    {[](SGet &r) { r.type2[0].blockCount = 4; }, TYPE2, "route 101: 4 blocks, at most 3"},
    {[](SGet &r) { r.tx[0].blockCount = 65535; }, TX,
     "route 9, 40000 kHz: 65535 blocks, at most 4"},
    {[](SGet &r) { r.type1[0].blockCount = 3; }, TYPE1, "route 13: 3 blocks asked for, 4 there"},
    {[](SGet &r) { r.type2[0].blockCount = 3; }, TYPE2, "route 101: 3 blocks asked for, 1 there"},
    {[](SGet &r) {
         for (int i = 0; i < 14; ++i)
             r.type1[i] = {4, 13};
         r.type1Count = 14;
     },
     TYPE1, "56 blocks, at most 55"},
    {[](SGet &r) {
         r.type2[0] = r.type2[1] = {2, 105};
         r.type2Count = 2;
     },
     TYPE2, "4 blocks, at most 3"},
};

TEST_F(CalRefusalTest, BentUploadsAreRefusedByTheirText)
{
    for (const auto &row : kUploads) {
        CCalUpload upload;
        upload.Type1(13, 4).Type2(101, 1).Tx(9, 40000, 3);
        row.bend(upload.Request());
        const SMMGetCalDataCnfV7 &answer = upload.Send();
        SCOPED_TRACE(row.words);
        ExpectRefusal(answer.verdict, row.texts, row.words);
        EXPECT_EQ(answer.type1Count + answer.type2Count + answer.txCount, 0);
        EXPECT_EQ(answer.type1Block[0].band, 0);
    }
    EXPECT_EQ(CCalUpload().Type1(13, 4).Type2(101, 1).Tx(9, 40000, 3).Send().verdict.status, 1);
}

const SBend<SSet> kDownloads[] = {
    {[](SSet &r) { r.radioKind = 0; }, ALL, "radio kind 0 has no calibration data"},
    {[](SSet &r) { r.radioKind = 2; }, ALL, "radio kind 2 has no calibration data"},
    {[](SSet &r) { r.version = 0; }, ALL, "record version 0"},
    {[](SSet &r) { r.type1Count = 56; }, TYPE1, "56 entries, at most 55"},
    {[](SSet &r) { r.type2Count = 65535; }, TYPE2, "65535 entries, at most 3"},
    {[](SSet &r) { r.txCount = 136; }, TX, "136 entries, at most 135"},
    {[](SSet &r) { r.type1[0].route = 99; }, TYPE1, "route 99: unknown route"},
    {[](SSet &r) { r.type2Route[0] = 1; }, TYPE2, "route 1: unknown route"},
    {[](SSet &r) { r.tx[0].route = 100; }, TX, "route 100: unknown route"},
    {[](SSet &r) { r.tx[0].bandwidth = 0; }, TX, "route 9: unknown bandwidth"},
    {[](SSet &r) { r.tx[0].bandwidth = 1; }, TX, "route 9, 1 kHz: unknown bandwidth"},
    {[](SSet &r) { r.type1[0].blockCount = 5; }, TYPE1, "route 13: 5 blocks, at most 4"},
    {[](SSet &r) { r.type2BlockCount[0] = 4; }, TYPE2, "route 101: 4 blocks, at most 3"},
    {[](SSet &r) { r.tx[0].blockCount = 5; }, TX, "route 9, 40000 kHz: 5 blocks, at most 4"},
    {[](SSet &r) { r.type1[0].blockCount = 3; }, TYPE1, "3 blocks counted, more are filled"},
    {[](SSet &r) { r.type2Count = 0; }, TYPE2, "0 blocks counted, more are filled"},
    {[](SSet &r) { r.txBlock[134].band = 41; }, TX, "3 blocks counted, more are filled"},
    {[](SSet &r) { r.tx[0].blockCount = 4; }, TX, "route 9, 40000 kHz: not on band 0"},
    {[](SSet &r) { r.type1Block[2].band = 1; }, TYPE1, "route 13: not on band 1"},
    {[](SSet &r) { r.type2Block[0].band = 41; }, TYPE2, "route 101: not on band 41"},
    {[](SSet &r) { r.type1Block[3].freq[15] = 3299999; }, TYPE1,
     "route 13: 3299999 kHz is out of limits"},
    {[](SSet &r) { r.type2Block[0].freq[0] = 2170001; }, TYPE2,
     "route 101: 2170001 kHz is out of limits"},
    {[](SSet &r) { r.txBlock[2].freq[7] = 4294967295u; }, TX,
     "route 9: 4294967295 kHz is out of limits"},
    {[](SSet &r) {
         for (int i = 0; i < 14; ++i)
             r.type1[i] = {4, 13};
         r.type1Count = 14;
     },
     TYPE1, "56 blocks, at most 55"},
    {[](SSet &r) {
         r.type2BlockCount[0] = r.type2BlockCount[1] = 2;
         r.type2Route[0] = r.type2Route[1] = 105;
         r.type2Count = 2;
     },
     TYPE2, "4 blocks, at most 3"},
};

TEST_F(CalRefusalTest, BentDownloadsAreRefusedByTheirTextAndChangeNothing)
{
    const auto type1 = BytesOf(Type1(13));
    const auto type2 = BytesOf(Type2(101));
    const auto tx = BytesOf(Tx(9, 40000));
    for (const auto &row : kDownloads) {
        CCalDownload download = GoodDownload();
        // Good changes elsewhere in the round must not come through.
        download.Request().type1Block[0].plOffset[0] = 1111;
        download.Request().type2Block[0].plOffset[0] = 1111;
        download.Request().txBlock[0].couplerLoss[0] = 1111;
        row.bend(download.Request());
        SCOPED_TRACE(row.words);
        ExpectRefusal(download.Send(), row.texts, row.words);
        EXPECT_EQ(BytesOf(Type1(13)), type1);
        EXPECT_EQ(BytesOf(Type2(101)), type2);
        EXPECT_EQ(BytesOf(Tx(9, 40000)), tx);
    }
    EXPECT_EQ(GoodDownload().Send().status, 1);
}

TEST_F(CalRefusalTest, EachKindThatIsWrongHasItsText)
{
    CCalDownload download = GoodDownload();
    download.Request().type2Route[0] = 5;
    download.Request().tx[0].route = 55;
    const SMMSetCalDataCnfV7 answer = download.Send();
    EXPECT_EQ(answer.status, 0);
    EXPECT_STREQ(answer.type1Text, "");
    EXPECT_STREQ(answer.type2Text, "route 5: unknown route");
    EXPECT_STREQ(answer.txText, "route 55: unknown route");
}

TEST_F(CalRefusalTest, BlocksOfSeveralBandsMakeNoRecord)
{
    std::vector<SType1Block> blocks = Type1(12);
    ASSERT_GT(blocks.size(), 1u);
    blocks[1].band = 78;
    std::fill(std::begin(blocks[1].freq), std::end(blocks[1].freq), 0u);
    ExpectRefusal(CCalDownload().Type1(12, blocks).Send(), TYPE1,
                  "route 12: blocks of several bands");
}

TEST_F(CalRefusalTest, LimitsOfARouteCountBeforeThoseOfItsBand)
{
    std::vector<SAptBlock> tx = Tx(15, 20000);  // n78, 3400 to 3600 MHz
    tx[0].freq[0] = 3399990;
    ExpectRefusal(CCalDownload().Tx(15, 20000, tx).Send(), TX,
                  "route 15: 3399990 kHz is out of limits");
    std::vector<SType2Block> type2 = Type2(106);  // the same
    type2[0].freq[0] = 3600015;
    ExpectRefusal(CCalDownload().Type2(106, type2).Send(), TYPE2,
                  "route 106: 3600015 kHz is out of limits");
}

TEST_F(CalRefusalTest, LongestTextEndsWithinItsRoom)
{
    const std::string text =
        R"({"name": "long", "base": "handset", "bands": [{"band": 1}], "rxType1Routes": [],
            "rxType2Routes": [], "txLimits": [], "rxLimits": [], "txRoutes": [{"band": 1,
            "route": 65535, "regions": [{"kHz": 4294967295, "antMask": 1, "feRoute": 1,
            "port": "TX", "stx": 0}]}]})";
    ASSERT_EQ(VondSim_SetProfileText(text.c_str()), 0);
    CCalDownload download;
    download.Tx(65535, 4294967295u, {});
    download.Request().tx[0].blockCount = 65535;
    ExpectRefusal(download.Send(), TX, "route 65535, 4294967295 kHz: 65535 blocks, at most 4");
    CCalUpload upload;
    upload.Tx(65535, 4294967295u, 65535);
    upload.Request().tx[0].routeAgain = 65534;
    ExpectRefusal(upload.Send().verdict, TX, "route 65535: named 65534 the second time");
}

TEST_F(CalRefusalTest, RefusalLeavesNothingOfAnOlderAnswer)
{
    CCalDownload download;
    download.Request().radioKind = 5;
    SMMSetCalDataCnfV7 answer;
    std::fill_n(reinterpret_cast<uint8_t *>(&answer), sizeof(answer), uint8_t(0xee));
    ASSERT_EQ(VOND_MMRf_SetCalDataV7_r(kHandle, kTimeoutMs, &download.Request(), &answer),
              VOND_SUCCESS);
    EXPECT_EQ(answer.status, 0);
    EXPECT_EQ(answer.type1Text[kVondCalText - 1], '\0');
    EXPECT_EQ(answer.txText[kVondCalText - 1], '\0');
}

}  // namespace
