// Common members and hardware labels of the RX pages.
#include "tests/controller/capability/UpdaterFixture.h"

namespace {

const QString kGroup1 = QStringLiteral("cmdIf.request.group1.memberProperty.");
const QString kGroup2 = QStringLiteral("cmdIf.request.group2.memberProperty.");
const QString kGroup3 = QStringLiteral("cmdIf.request.group3.memberProperty.");
const QString kGroup4 = QStringLiteral("cmdIf.request.group4.memberProperty.");

using RxCommonTest = CUpdaterTest;

TEST_F(RxCommonTest, PageWithoutRouteTypesKeysRoutesByBandAndLeavesType2Out)
{
    const QJsonObject document = Patched(EPageId::RsrpForce);
    const QJsonObject routes = At(document, kGroup1 + "rxRoute.trait.valuePair").toObject();
    EXPECT_EQ(routes.size(), 10);
    EXPECT_EQ(routes.value("n1"), Names({"1", "2"}));
    EXPECT_EQ(routes.value("n78"), Names({"12", "13", "14"}));
    EXPECT_EQ(At(document, kGroup1 + "rxRoute.trait.defaultValue"), QJsonValue("1"));
}

TEST_F(RxCommonTest, PageWithoutRouteTypesReadsNoRouteTypePath)
{
    SRxCommonPathV7 path;
    path.byRouteType = false;
    path.bands = {"n1"};
    path.routeTypeValuePairPaths = ValuePairOf("nowhere", "routeType");
    QJsonObject document;
    EXPECT_TRUE(m_updater.UpdateRxCommonV7(document, path));
    EXPECT_TRUE(document.isEmpty());
    path.byRouteType = true;
    EXPECT_FALSE(m_updater.UpdateRxCommonV7(document, path));
    EXPECT_EQ(Messages(document), QStringList("Update route type failed"));
}

TEST_F(RxCommonTest, PageWithRouteTypesKeysRoutesByBandAndType)
{
    const QJsonObject document = Patched(EPageId::ContRx);
    const QJsonObject routes = At(document, kGroup1 + "rxRoute.trait.valuePair").toObject();
    EXPECT_EQ(routes.value("n1,Type1"), Names({"1", "2"}));
    EXPECT_EQ(routes.value("n1,Type2"), Names({"101"}));
    EXPECT_TRUE(routes.value("n1").isUndefined());
    EXPECT_EQ(At(document, kGroup1 + "rxRoute.trait.defaultValue"), QJsonValue("1"));
}

TEST_F(RxCommonTest, BandWithoutType2RoutesOffersType1Alone)
{
    const QJsonObject document = Patched(EPageId::ContRx);
    const QJsonObject types = At(document, kGroup1 + "routeType.trait.valuePair").toObject();
    EXPECT_EQ(types.value("n1"), Names({"Type1", "Type2"}));
    EXPECT_EQ(types.value("n3"), Names({"Type1"}));
    EXPECT_TRUE(At(document, kGroup1 + "rxRoute.trait.valuePair.n3,Type2").isUndefined());
}

TEST_F(RxCommonTest, BandWithoutType1RoutesStillOffersType1WithoutRoutes)
{
    PlugKeys(R"("bands": [{"band": 78}], "txRoutes": [], "rxType1Routes": [], "txLimits": [],
        "rxLimits": [], "rxType2Routes": [{"band": 78, "route": 9, "antMask": 1, "feRoute": 1,
        "ports": ["A", "B"], "srx": [0, 1]}])");
    const QJsonObject document = Patched(EPageId::ContRx);
    EXPECT_TRUE(m_isDone);
    EXPECT_EQ(At(document, kGroup1 + "routeType.trait.valuePair"),
              (QJsonObject{{"n78", Names({"Type1", "Type2"})}}));
    EXPECT_EQ(At(document, kGroup1 + "rxRoute.trait.valuePair"),
              (QJsonObject{{"n78,Type1", QJsonArray()}, {"n78,Type2", Names({"9"})}}));
    EXPECT_EQ(At(document, kGroup1 + "rxRoute.trait.defaultValue"), QJsonValue(""));
}

TEST_F(RxCommonTest, RelationsOfCalTypeStayTheTemplatesWhateverRouteTypesThereAre)
{
    const QString calType = kGroup1 + "calType";
    const QJsonValue whole = At(TemplateOf(EPageId::ContRx), calType);
    ASSERT_TRUE(whole.isObject());
    EXPECT_EQ(At(Patched(EPageId::ContRx), calType), whole);
    PlugBands(R"([{"band": 78}])");
    EXPECT_EQ(At(Patched(EPageId::ContRx), calType), whole);
}

TEST_F(RxCommonTest, TypeOneLabelsOfPath1AreEmpty)
{
    const QJsonObject document = Patched(EPageId::Rssi);
    int type1Keys = 0;
    for (const char *member : {"feRouteNumP1", "portP1", "srxP1", "antMaskP1", "mimoPairNumP1"}) {
        const QJsonObject labels = At(document, kGroup4 + member + ".trait.valuePair").toObject();
        for (const QString &key : labels.keys()) {
            if (!key.endsWith(",Type1"))
                continue;
            ++type1Keys;
            EXPECT_EQ(labels.value(key), QJsonValue("")) << member << qPrintable(key);
        }
    }
    EXPECT_EQ(type1Keys, 5 * 17);
}

TEST_F(RxCommonTest, PathsOfAType2RouteDifferInTheirSrxAlone)
{
    const QJsonObject document = Patched(EPageId::Rssi);
    const char *const members[] = {"feRouteNum", "port", "srx", "antMask", "mimoPairNum"};
    const char *const path0[] = {"606", "RX_UHB_1M, RX_UHB_1D", "2", "0xc", "105 107 "};
    const char *const path1[] = {"606", "RX_UHB_1M, RX_UHB_1D", "3", "0xc", "105 107 "};
    for (int i = 0; i < 5; ++i) {
        const QString end = QLatin1String(".trait.valuePair.106,Type2");
        EXPECT_EQ(At(document, kGroup3 + members[i] + "P0" + end), QJsonValue(path0[i]));
        EXPECT_EQ(At(document, kGroup4 + members[i] + "P1" + end), QJsonValue(path1[i]));
    }
}

TEST_F(RxCommonTest, LabelsWithoutRouteTypesAreKeyedByTheBareRoute)
{
    const QJsonObject document = Patched(EPageId::RsrpForce);
    const QJsonObject ports = At(document, kGroup2 + "port.trait.valuePair").toObject();
    EXPECT_EQ(ports.value("14"), QJsonValue("RX_UHB_2M, RX_UHB_2D"));
    EXPECT_EQ(ports.value("106,Type2"), QJsonValue("RX_UHB_1M, RX_UHB_1D"));
    EXPECT_EQ(At(document, kGroup2 + "mimoPairNum.trait.valuePair.14"), QJsonValue("12 13 "));
}

TEST_F(RxCommonTest, PairedTxRoutesAreKeyedByTheBareReceiveRoute)
{
    const QJsonObject document = Patched(EPageId::RsrpForce);
    const QJsonObject pairs = At(document, kGroup3 + "txRoute.trait.valuePair").toObject();
    EXPECT_EQ(pairs.value("9"), Names({"9", "10", "11"}));
    EXPECT_EQ(pairs.value("17"), QJsonArray());
    EXPECT_EQ(pairs.size(), 17);
    EXPECT_EQ(At(document, kGroup3 + "txRoute.trait.defaultValue"), QJsonValue("1"));
}

TEST_F(RxCommonTest, FirstRouteWithoutTxRoutesLeavesAnEmptyDefault)
{
    PlugKeys(R"("bands": [{"band": 1}], "rxType2Routes": [], "txLimits": [], "rxLimits": [],
        "txRoutes": [{"band": 1, "route": 5, "regions": []}], "rxType1Routes": [
        {"band": 1, "route": 1, "antMask": 1, "feRoute": 1, "ports": ["A", "B"], "srx": 0},
        {"band": 1, "route": 2, "antMask": 1, "feRoute": 2, "ports": ["A", "B"], "srx": 0,
         "txRoutes": [5]}])");
    const QJsonObject document = Patched(EPageId::RsrpForce);
    EXPECT_TRUE(m_isDone);
    EXPECT_EQ(At(document, kGroup3 + "txRoute.trait.valuePair"),
              (QJsonObject{{"1", QJsonArray()}, {"2", Names({"5"})}}));
    EXPECT_EQ(At(document, kGroup3 + "txRoute.trait.defaultValue"), QJsonValue(""));
}

TEST_F(RxCommonTest, DutWithType2RoutesAloneHasEmptyLabelDefaults)
{
    PlugKeys(R"("bands": [{"band": 78}], "txRoutes": [], "rxType1Routes": [], "txLimits": [],
        "rxLimits": [], "rxType2Routes": [{"band": 78, "route": 9, "antMask": 1, "feRoute": 1,
        "ports": ["A", "B"], "srx": [0, 1]}])");
    const QJsonObject document = Patched(EPageId::Rssi);
    EXPECT_TRUE(m_isDone);
    EXPECT_EQ(At(document, kGroup3 + "portP0.trait.valuePair"), (QJsonObject{{"9,Type2", "A, B"}}));
    EXPECT_EQ(At(document, kGroup3 + "portP0.trait.defaultValue"), QJsonValue(""));
}

TEST_F(RxCommonTest, VrbRangesAreNotMadeForAPageThatShowsNone)
{
    SRxCommonPathV7 path;
    path.bands = {"n1"};
    path.vrbLengthValuePairPaths = ValuePairOf("g", "vrbLength");
    QJsonObject document{
        {"g", QJsonObject{{"memberProperty",
                           QJsonObject{{"vrbLength",
                                        QJsonObject{{"trait", QJsonObject{{"valuePair", 1}}}}}}}}}};
    EXPECT_TRUE(m_updater.UpdateRxCommonV7(document, path));
    EXPECT_EQ(At(document, "g.memberProperty.vrbLength.trait.valuePair"), QJsonObject());
}

}  // namespace
