// The gain search of the RSSI page in its document.
#include <gtest/gtest.h>

#include "Controller/responses/NrDataModelResponseBuilder.h"
#include "Model/JsonPath.h"
#include "Model/ModelIntegrity.h"
#include "tests/controller/responses/RssiPage.h"

namespace {

SMMGainSearchCnfV7 SingleGains()
{
    SMMGainSearchCnfV7 result = {};
    result.adviseDlPower = -2721;  // -85.03125 dBm
    result.gain.single.mainRfGain = 1923;
    result.gain.single.divRfGain = 1904;
    result.gain.single.mainDigitalGain = -1344;
    result.gain.single.divDigitalGain = 1;
    return result;
}

SMMGainSearchCnfV7 BothGains()
{
    SMMGainSearchCnfV7 result = {};
    result.adviseDlPower = -1;
    result.simultaneous = 1;
    auto &gain = result.gain.simultaneous;
    gain.path0MainGainIdx = 17;
    gain.path0DivGainIdx = 16;
    gain.path1MainGainIdx = 0;
    gain.path1DivGainIdx = 14;
    gain.path0MainRfGain = 1923;
    gain.path0DivRfGain = 1904;
    gain.path1MainRfGain = 1864;
    gain.path1DivRfGain = 1824;
    gain.path0MainDigitalGain = -1344;
    gain.path0DivDigitalGain = -31;
    gain.path1MainDigitalGain = 1727;
    gain.path1DivDigitalGain = 32767;
    return result;
}

QJsonObject AfterSearch(QJsonObject document, const SMMGainSearchCnfV7 &result, bool success = true)
{
    CNrDataModelResponseBuilder().UpdateRssiGainResultV7(document, result, success);
    return document;
}

TEST(RssiGainResult, OnePathShowsItsFourGains)
{
    const QJsonObject document = RssiDocument(kPath0);
    ExpectShown(document, AfterSearch(document, SingleGains()),
                {{"group1.adviseDlPower", "-85.03125"},
                 {"group1.path0MainRfGain", "60.09375"},
                 {"group1.path0DivRfGain", "59.50000"},
                 {"group1.path0MainDigtalGain", "-42.00000"},
                 {"group1.path0DivDigtalGain", "0.03125"}});
}

TEST(RssiGainResult, AnyOtherCalTypeShowsThemOnPath1)
{
    for (const char *calType : {kPath1, "Partial-On", "", kBoth}) {
        const QJsonObject document = RssiDocument(calType);
        ExpectShown(document, AfterSearch(document, SingleGains()),
                    {{"group1.adviseDlPower", "-85.03125"},
                     {"group1.path1MainRfGain", "60.09375"},
                     {"group1.path1DivRfGain", "59.50000"},
                     {"group1.path1MainDigtalGain", "-42.00000"},
                     {"group1.path1DivDigtalGain", "0.03125"}});
    }
}

TEST(RssiGainResult, SimultaneousAnswerShowsAllGainsAndIndexes)
{
    for (const char *calType : {kBoth, kPath0}) {
        const QJsonObject document = RssiDocument(calType);
        ExpectShown(document, AfterSearch(document, BothGains()),
                    {{"group1.adviseDlPower", "-0.03125"},
                     {"group1.path0MainRfGain", "60.09375"},
                     {"group1.path0DivRfGain", "59.50000"},
                     {"group1.path1MainRfGain", "58.25000"},
                     {"group1.path1DivRfGain", "57.00000"},
                     {"group1.path0MainDigtalGain", "-42.00000"},
                     {"group1.path0DivDigtalGain", "-0.96875"},
                     {"group1.path1MainDigtalGain", "53.96875"},
                     {"group1.path1DivDigtalGain", "1023.96875"},
                     {"group1.path0MainGainIdx", "17"},
                     {"group1.path0DivGainIdx", "16"},
                     {"group1.path1MainGainIdx", "0"},
                     {"group1.path1DivGainIdx", "14"}});
    }
}

TEST(RssiGainResult, GainIndexBeyondTheGainTableIsShownAsItCame)
{
    SMMGainSearchCnfV7 result = BothGains();
    result.gain.simultaneous.path0MainGainIdx = 18;
    result.gain.simultaneous.path1DivGainIdx = 255;
    const QJsonObject document = AfterSearch(RssiDocument(kBoth), result);
    EXPECT_EQ(TextAt(document, Place("group1.path0MainGainIdx")), R"("18")");
    EXPECT_EQ(TextAt(document, Place("group1.path1DivGainIdx")), R"("255")");
    EXPECT_EQ(TextAt(document, Place("group1.path0DivGainIdx")), R"("16")");
}

TEST(RssiGainResult, UnknownLayoutWordIsThatOfOnePath)
{
    for (const uint32_t word : {2u, 0xFFFF0001u}) {
        SMMGainSearchCnfV7 result = SingleGains();
        result.simultaneous = word;
        const QJsonObject document = RssiDocument(kPath0);
        EXPECT_EQ(AfterSearch(document, result), AfterSearch(document, SingleGains())) << word;
    }
}

TEST(RssiGainResult, FailedSearchShowsErrorOnThePathThatWasAsked)
{
    const QJsonObject first = RssiDocument(kPath0);
    ExpectShown(first, AfterSearch(first, {}, false),
                {{"group1.adviseDlPower", "Error"},
                 {"group1.path0MainRfGain", "ERROR"},
                 {"group1.path0DivRfGain", "ERROR"},
                 {"group1.path0MainDigtalGain", "ERROR"},
                 {"group1.path0DivDigtalGain", "ERROR"}});
    const QJsonObject second = RssiDocument(kPath1);
    ExpectShown(second, AfterSearch(second, SingleGains(), false),
                {{"group1.adviseDlPower", "Error"},
                 {"group1.path1MainRfGain", "ERROR"},
                 {"group1.path1DivRfGain", "ERROR"},
                 {"group1.path1MainDigtalGain", "ERROR"},
                 {"group1.path1DivDigtalGain", "ERROR"}});
}

TEST(RssiGainResult, FailedSimultaneousSearchShowsErrorEverywhere)
{
    // A failed call has filled no record; a target may also fail after it has.
    for (const SMMGainSearchCnfV7 &result : {SMMGainSearchCnfV7{}, BothGains()}) {
        const QJsonObject document = RssiDocument(kBoth);
        TextMap changes = {{"group1.adviseDlPower", "Error"}};
        for (const char *path : {"path0", "path1"}) {
            for (const char *antenna : {"Main", "Div"}) {
                for (const char *what : {"RfGain", "DigtalGain", "GainIdx"})
                    changes[QString("group1.") + path + antenna + what] = "ERROR";
            }
        }
        ExpectShown(document, AfterSearch(document, result, false), changes);
    }
}

TEST(RssiGainResult, RecordOfFailuresIsTheCallersAlone)
{
    QJsonObject document = AfterSearch(RssiDocument(kPath0), {}, false);
    EXPECT_FALSE(HasJsonValue(document, "modelIntegrity"));
    AddModelUpdateResult(document, false, "earlier");
    EXPECT_EQ(TextAt(AfterSearch(document, SingleGains()), "modelIntegrity"),
              R"({"integrity":false,"messageList":["earlier"]})");
}

TEST(RssiGainResult, DocumentWithoutTheMembersStaysAsItWas)
{
    for (const QJsonObject &before : {QJsonObject(), PackagedPage("NrSingleToneTxV7")})
        EXPECT_TRUE(AfterSearch(before, BothGains()) == before);
}

}  // namespace
