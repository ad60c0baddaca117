// The drivers: what a page as a whole makes of a DUT at the edge.
#include "Controller/core/NrCore.h"
#include "Model/ModelText.h"
#include "tests/controller/capability/UpdaterFixture.h"

namespace {

const QString kGroup1 = QStringLiteral("cmdIf.request.group1.memberProperty.");
const QString kGroup2 = QStringLiteral("cmdIf.request.group2.memberProperty.");
const QString kGroup3 = QStringLiteral("cmdIf.request.group3.memberProperty.");
const QString kGroup4 = QStringLiteral("cmdIf.request.group4.memberProperty.");

using DriverTest = CUpdaterTest;

TEST_F(DriverTest, RsrpForcedPageOfADutWithoutFddBandsKeepsItsPseudoTxMembers)
{
    PlugKeys(R"("bands": [{"band": 41}, {"band": 78}], "txRoutes": [], "rxType1Routes": [],
        "rxType2Routes": [], "txLimits": [], "rxLimits": [])");
    const QJsonObject document = Patched(EPageId::RsrpForce);
    const QJsonObject page = TemplateOf(EPageId::RsrpForce);
    EXPECT_TRUE(m_isDone);
    EXPECT_FALSE(document.contains("modelIntegrity"));
    EXPECT_EQ(At(document, kGroup1 + "band.trait.valuePair"),
              (QJsonObject{{"DL RX", Names({"n41", "n78"})}, {"Pseudo TX/RX", QJsonArray()}}));
    for (const char *member : {"band", "ulFrequency"})
        EXPECT_EQ(At(document, kGroup3 + member), At(page, kGroup3 + member)) << member;
    for (const char *member : {"feRouteNum", "port", "stx"})
        EXPECT_EQ(At(document, kGroup4 + member), At(page, kGroup4 + member)) << member;
}

TEST_F(DriverTest, RsrpNormalPageOfADutWithoutFddBandsKeepsItsPseudoTxMembers)
{
    PlugBands(R"([{"band": 41, "rx4x4": true}, {"band": 78}])");
    const QJsonObject document = Patched(EPageId::RsrpNormal);
    const QJsonObject page = TemplateOf(EPageId::RsrpNormal);
    EXPECT_TRUE(m_isDone);
    EXPECT_FALSE(document.contains("modelIntegrity"));
    EXPECT_EQ(At(document, kGroup1 + "band.trait.valuePair"),
              (QJsonObject{{"DL RX,2x2", Names({"n41", "n78"})},
                           {"DL RX,4x4", Names({"n41"})},
                           {"Pseudo TX/RX,2x2", QJsonArray()},
                           {"Pseudo TX/RX,4x4", QJsonArray()}}));
    for (const char *member : {"band", "ulFrequency"})
        EXPECT_EQ(At(document, kGroup2 + member), At(page, kGroup2 + member)) << member;
}

TEST_F(DriverTest, PseudoTxDefaultsAreFixedWhateverTheDutOffers)
{
    PlugBands(R"([{"band": 28}, {"band": 3}])");
    const QJsonObject forced = Patched(EPageId::RsrpForce);
    EXPECT_TRUE(m_isDone);
    const QJsonObject normal = Patched(EPageId::RsrpNormal);
    EXPECT_TRUE(m_isDone);
    const QPair<QJsonObject, QString> groups[] = {{forced, kGroup3}, {normal, kGroup2}};
    for (const auto &[document, group] : groups) {
        EXPECT_EQ(At(document, group + "band.trait.valuePair"),
                  (QJsonObject{{"n28", "n28"}, {"n3", "n3"}}));
        EXPECT_EQ(At(document, group + "band.trait.defaultValue"), QJsonValue("n1"));
        EXPECT_EQ(At(document, group + "ulFrequency.trait.valuePair"),
                  (QJsonObject{{"n28", 55000}, {"n3", 95000}}));
        EXPECT_EQ(At(document, group + "ulFrequency.trait.defaultValue"), QJsonValue("1920000"));
        EXPECT_EQ(At(document, kGroup1 + "band.trait.defaultValue"), QJsonValue("n28"));
    }
}

TEST_F(DriverTest, FourByFourBandsAreThoseOfTheReceiveFlag)
{
    PlugBands(R"([{"band": 1, "rx4x4": true}, {"band": 3, "ulMimo": true},
        {"band": 78, "rx4x4": true}])");
    EXPECT_EQ(At(Patched(EPageId::RsrpNormal), kGroup1 + "band.trait.valuePair"),
              (QJsonObject{{"DL RX,2x2", Names({"n1", "n3", "n78"})},
                           {"DL RX,4x4", Names({"n1", "n78"})},
                           {"Pseudo TX/RX,2x2", Names({"n1", "n3"})},
                           {"Pseudo TX/RX,4x4", Names({"n1"})}}));
}

TEST_F(DriverTest, FrequenciesAreByBandOnTheNormalPagesAndByRouteOnTheForcedOnes)
{
    const auto keys = [this](EPageId id, const char *member) {
        return At(Patched(id), kGroup1 + member + ".trait.valuePair").toObject().keys();
    };
    EXPECT_EQ(keys(EPageId::PuschTxNormal, "ulFrequency"),
              QStringList({"n1", "n28", "n3", "n41", "n5", "n7", "n77", "n78", "n79", "n80"}));
    EXPECT_EQ(keys(EPageId::PuschTxForce, "ulFrequency").first(), "1");
    EXPECT_EQ(keys(EPageId::PuschTxForce, "ulFrequency").size(), 18);
    EXPECT_TRUE(keys(EPageId::RsrpNormal, "dlFrequency").contains("n1"));
    EXPECT_TRUE(keys(EPageId::RsrpForce, "dlFrequency").contains("101"));
}

TEST_F(DriverTest, RangeCheckIsOnTheCalibrationPagesAlone)
{
    const QPair<EPageId, const char *> checked[] = {
        {EPageId::AptProfile, "calDataIf.data.group12.memberProperty.ulFreq.trait.valuePair"},
        {EPageId::RxPathLoss, "calDataIf.data.group4.memberProperty.freq.trait.valuePair"},
    };
    for (const auto &[id, path] : checked) {
        const QJsonObject pairs = At(Patched(id), path).toObject();
        EXPECT_EQ(pairs.value("1").toObject().value("min"), QJsonValue(0)) << path;
        EXPECT_TRUE(pairs.value("1").toObject().contains("rangeCheck")) << path;
    }
    const QJsonObject pairs =
        At(Patched(EPageId::ContRx), kGroup1 + "dlFrequency.trait.valuePair").toObject();
    EXPECT_FALSE(pairs.value("1").toObject().contains("rangeCheck"));
}

TEST_F(DriverTest, RsrpForcedPageOfADutWithBandsAndNoRoutesHasNoFrequencies)
{
    PlugBands(R"([{"band": 1}])");
    const QJsonObject document = Patched(EPageId::RsrpForce);
    EXPECT_TRUE(m_isDone);
    EXPECT_EQ(At(document, kGroup1 + "dlFrequency.trait.valuePair"), QJsonObject());
}

TEST_F(DriverTest, AllPagesTogetherMakeEachReadOnce)
{
    GetCore().ResetTargetCache();
    VondSim_ClearJournal();
    for (const EPageId id : kPatchedPages)
        EXPECT_EQ(Differences(ModelFromText(GetCore().GetDataModel(PageName(id))), ExpectedOf(id)),
                  "");
    EXPECT_EQ(CalledFunctions(),
              (std::vector<std::string>{kQuery, kMmCapability, kNrCapability, kRouteConfig,
                                        kBandRxInfo, kRxRouteValues, kRouteDetail}));
}

// A DUT without bands, which every page tells the same.
class NoBandsTest : public CUpdaterTest, public ::testing::WithParamInterface<EPageId>
{
protected:
    // The template, with what the page has written by then.
    QJsonObject Expected() const
    {
        QJsonObject page = TemplateOf(GetParam());
        const bool isCalibration =
            GetParam() == EPageId::AptProfile || GetParam() == EPageId::RxPathLoss;
        const QString group1 =
            isCalibration ? QStringLiteral("calDataIf.config.group1.memberProperty.") : kGroup1;
        Set(page, group1 + "band.trait.defaultValue", "");
        if (GetParam() == EPageId::PuschTxNormal)
            Set(page, kGroup2 + "band.trait.defaultValue", "");
        const QJsonArray none;
        if (GetParam() == EPageId::RsrpForce)
            Set(page, kGroup1 + "band.trait.valuePair",
                QJsonObject{{"DL RX", none}, {"Pseudo TX/RX", none}});
        if (GetParam() == EPageId::RsrpNormal)
            Set(page, kGroup1 + "band.trait.valuePair",
                QJsonObject{{"DL RX,2x2", none},
                            {"DL RX,4x4", none},
                            {"Pseudo TX/RX,2x2", none},
                            {"Pseudo TX/RX,4x4", none}});
        page.insert("modelIntegrity", Failed({"Get frequency value relation failed"}));
        return page;
    }
};

TEST_P(NoBandsTest, PageKeepsItsTemplateWithAnEmptyDefaultBandAndSaysSo)
{
    PlugBands("[]");
    EXPECT_EQ(Differences(Patched(GetParam()), Expected()), "");
    EXPECT_FALSE(m_isDone);
}

TEST_P(NoBandsTest, CoreHandsThePageOverAllTheSame)
{
    PlugBands("[]");
    GetCore().ResetTargetCache();
    const std::string text = GetCore().GetDataModel(PageName(GetParam()));
    EXPECT_EQ(Differences(ModelFromText(text), Expected()), "");
}

INSTANTIATE_TEST_SUITE_P(Pages, NoBandsTest, ::testing::ValuesIn(kPatchedPages),
                         [](const auto &info) { return PageLabel(info.param); });

}  // namespace
