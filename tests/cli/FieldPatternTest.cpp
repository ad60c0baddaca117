// Which fields a name names.

#include "Cli/trace/FieldPattern.h"

#include <stdexcept>

#include <gtest/gtest.h>

namespace {

bool Names(const std::string &pattern, std::string_view name, ECallPart part = ECallPart::Request)
{
    return CFieldPattern(pattern).Matches(part, name);
}

TEST(FieldPatternTest, NameWithItsIndexNamesOneElement)
{
    EXPECT_TRUE(Names("normalMode.carrier[1].band", "normalMode.carrier[1].band"));
    EXPECT_FALSE(Names("normalMode.carrier[1].band", "normalMode.carrier[0].band"));
    EXPECT_FALSE(Names("rows.single.row[1]", "rows.single.row[10].rssiMain"));
}

TEST(FieldPatternTest, NameWithoutIndexNamesAllElements)
{
    EXPECT_TRUE(Names("normalMode.carrier.band", "normalMode.carrier[1].band"));
    EXPECT_TRUE(Names("rxGainInfo.t2", "rxGainInfo[1].t2[4][2][1]"));
    EXPECT_TRUE(Names("rxGainInfo[1].t2[4]", "rxGainInfo[1].t2[4][2][1]"));
    EXPECT_FALSE(Names("rxGainInfo[1].t2[4]", "rxGainInfo[1].t2[2][4][1]"));
}

TEST(FieldPatternTest, BeginningOfANameNamesTheWholeRecord)
{
    EXPECT_TRUE(Names("normalMode", "normalMode.carrier[1].band"));
    EXPECT_TRUE(Names("gain", "gain.single.mainRfGain"));
    EXPECT_FALSE(Names("band", "bandCount"));
}

TEST(FieldPatternTest, PartInFrontNamesTheOneAlone)
{
    EXPECT_TRUE(Names("dlFrequency", "dlFrequency[0]", ECallPart::Answer));
    EXPECT_TRUE(Names("answer.dlFrequency", "dlFrequency[0]", ECallPart::Answer));
    EXPECT_FALSE(Names("answer.dlFrequency", "dlFrequency[0]", ECallPart::Request));
    EXPECT_TRUE(Names("answer", "anything", ECallPart::Answer));
    EXPECT_FALSE(Names("answer", "anything", ECallPart::Call));
}

TEST(FieldPatternTest, KeysOfACallHaveNames)
{
    for (const std::string key : {"handle", "timeout", "result", "text", "status", "durationNs"})
        EXPECT_TRUE(Names(key, key, ECallPart::Call)) << key;
}

TEST(FieldPatternTest, NameOfNoFieldIsRefused)
{
    for (const std::string name :
         {"", "bnad", "band.x", "normalMode.carrier[2].band", "normalMode.carrier[x]", "request.",
          "request.verdict", "answer.forced", "dlFrequency[", "dlFrequency[0][0]", "[0]", ".band"})
        EXPECT_THROW(CFieldPattern{name}, std::runtime_error) << name;
}

}  // namespace
