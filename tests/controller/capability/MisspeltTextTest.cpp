// Texts and keys that look wrong and are right: users, scripts and the target's own documents know
// them as they are. Whoever corrects one meets its line here.
#include "Controller/core/NrCore.h"
#include "Support/Log.h"
#include "tests/common/LogCapture.h"
#include "tests/controller/capability/UpdateSteps.h"
#include "tests/controller/capability/UpdaterFixture.h"
#include "tests/model/Nr3gppDocument.h"

namespace {

const QString kTone = QStringLiteral("cmdIf.request.group1.memberProperty.");
const QString kLabels = QStringLiteral("cmdIf.request.group2.memberProperty.");
const QString kPseudoTx = QStringLiteral("cmdIf.request.group3.memberProperty.");
const QString kRssiLabels = kPseudoTx;

struct SOddText
{
    EPageId page;
    QString path;  // the path that the page lacks
    const char *reported;
    const char *logged;
};

const SOddText kOddTexts[] = {
    // "rRoute" in the message, "route" in the log.
    {EPageId::SingleToneTx, kTone + "txRoute.trait.valuePair", "Update comp rRoute failed",
     "Update comp route failed"},
    // A capital and a double blank in the message.
    {EPageId::SingleToneTx, kTone + "txRoute.trait.defaultValue",
     "Update comp Route default value  failed", "Update comp route default value failed"},
    {EPageId::SingleToneTx, kTone + "aggBwRegion.trait.defaultValue",
     "Update BW region default value  failed", "Update BW region default value failed"},
    {EPageId::SingleToneTx, kTone + "aggBwKhzRange.trait.defaultValue",
     "Update BW range default value  failed", "Update BW range default value failed"},
    // The range says region.
    {EPageId::SingleToneTx, kTone + "aggBwKhzRange.trait.valuePair", "Update BW region failed",
     "Update BW region failed"},
    // "failedd" in the message, "default value" twice in the log, on TX and RX pages.
    {EPageId::SingleToneTx, kLabels + "stx.trait.defaultValue",
     "Update HW Setting stx default value failedd",
     "Update HW Setting stx default value default value failed"},
    {EPageId::PuschTxForce, kLabels + "stx.trait.defaultValue",
     "Update HW Setting stx default value failedd",
     "Update HW Setting stx default value default value failed"},
    {EPageId::Rssi, kRssiLabels + "srxP0.trait.defaultValue",
     "Update HW Setting stx default value failedd",
     "Update HW Setting stx default value default value failed"},
    // "default enable" twice.
    {EPageId::PuschTxNormal, kTone + "enableMimo.defaultEnableStatus",
     "Update mimo enable default enable failed", "Update mimo enable default enable failed"},
    // "route" twice.
    {EPageId::ContRx, kTone + "rxRoute.trait.valuePair", "Update route route failed",
     "Update route route failed"},
    // UL on pages that receive.
    {EPageId::ContRx, kTone + "dlBw.trait.valuePair", "Update UL Bandwidth failed",
     "Update UL Bandwidth failed"},
    {EPageId::RsrpForce, kTone + "dlBandwidth.trait.defaultValue",
     "Update UL Bandwidth RB default value failed", "Update UL Bandwidth RB default value failed"},
    // "type1" in the message, "path0" in the log.
    {EPageId::Rssi, kTone + "path0DivSearch.trait.valuePair",
     "Update type1 gain mode(gx) info failed", "Update path0 gain mode(gx) info failed"},
    // "faile".
    {EPageId::RsrpForce, kPseudoTx + "txRoute.trait.valuePair",
     "Update tx list route by rx route value faile",
     "Update tx list route by rx route value faile"},
    // A double blank behind "Update".
    {EPageId::RsrpForce, kPseudoTx + "txRoute.trait.defaultValue",
     "Update  tx list route by rx route default value failed",
     "Update  tx list route by rx route default value failed"},
    // A default that says value.
    {EPageId::RsrpForce, kPseudoTx + "band.trait.defaultValue", "Update tx band value failed",
     "Update tx band value failed"},
    // No blank behind the column's number.
    {EPageId::RxPathLoss, "calDataIf.data.group2.memberProperty.lna3.caption",
     "Update Type1 main table lna3caption failed", "Update Type1 main table lna3caption failed"},
    {EPageId::RxPathLoss, "calDataIf.data.group3.memberProperty.lna7.caption",
     "Update Type1 div table lna7caption failed", "Update Type1 div table lna7caption failed"},
};

using MisspeltTextTest = CUpdaterTest;

TEST_F(MisspeltTextTest, MessagesOfFailedWritesStayAsTheyAre)
{
    for (const SOddText &odd : kOddTexts) {
        QJsonObject page = TemplateOf(odd.page);
        Remove(page, odd.path);
        const LogCapture log(lcUpdate());
        (m_updater.*FindPage(odd.page).driver)(page);
        EXPECT_EQ(Messages(page), QStringList(odd.reported));
        ASSERT_EQ(log.Lines(QtCriticalMsg).size(), 1);
        EXPECT_TRUE(log.Lines(QtCriticalMsg)[0].endsWith(" " + QString(odd.logged)));
    }
}

TEST_F(MisspeltTextTest, MessagesOfGainDefaultsThatNoPageWritesStayAsTheyAre)
{
    const auto messageOf = [this](const SRxGainInfoPathV7 &path, const char *logged) {
        QJsonObject document{{"modelName", "M"}};
        const LogCapture log(lcUpdate());
        EXPECT_FALSE(m_updater.UpdateRSSIGainInfoV7(document, path));
        EXPECT_EQ(log.Lines(QtCriticalMsg), QStringList("M " + QString(logged)));
        return Messages(document);
    };
    SRxGainInfoPathV7 path0;
    path0.path0DefaultPaths = DefaultOf("nowhere", "path0");
    EXPECT_EQ(messageOf(path0, "Update path0 gain mode(gx) default value failed"),
              QStringList("Update type1 gain mode(gx) default value failed"));
    SRxGainInfoPathV7 path1;
    path1.path1DefaultPaths = DefaultOf("nowhere", "path1");
    EXPECT_EQ(messageOf(path1, "Update path1 gain mode(gx) default value failed"),
              QStringList("Update path1 gain mode(gx) default value failed"));
}

TEST_F(MisspeltTextTest, CapabilityIsSpeltCapbiliyWithABlankBehindTheMessage)
{
    Fault(kRouteConfig);
    for (const SUpdateStep &step : kUpdateSteps) {
        QJsonObject document;
        step.run(m_updater, document, {"n1"});
        const QString name = step.name;
        const bool isHardware = name.startsWith("TxHw") || name.startsWith("RxHw");
        if (!isHardware && name != "CwTxCommon")
            continue;
        EXPECT_EQ(Messages(document),
                  QStringList(isHardware ? "Get HW setting from L1 capbiliy failed "
                                         : "Get route info from L1 capbiliy failed "))
            << step.name;
    }
}

TEST_F(MisspeltTextTest, DocumentsThatCannotBeReadSayCannon)
{
    GetCore().ResetTargetCache();  // a core that is made later brings the documents back
    HideDocuments();
    const LogCapture log(lcUpdate());
    m_updater.ResetCapabilityCache();
    EXPECT_EQ(log.Lines(QtCriticalMsg),
              QStringList("CNrDataModelCapUpdater::Get3gppDataModel: cannon get the NR data "
                          "Model"));
    GetCore().GetDataModel("RSSI");
    EXPECT_EQ(GetCore().GetErrorMessage(),
              QString("CNrCore::GetDataModel: cannon get the data Model->RSSI"));
    InitModelResources();
    GetCore().ResetTargetCache();
}

TEST_F(MisspeltTextTest, KeysAndValuesOfTheBandTablesStayAsTheyAre)
{
    EXPECT_EQ(Nr3gppTable("BandwidthBySscRb").size(), 29);
    EXPECT_TRUE(Nr3gppTable("BandwidthByScsRb").isEmpty());
    EXPECT_EQ(Texts(Nr3gppTable("RBNumByBandSCS").value("n84,60kHz")),
              QStringList({"11 RB", "18 RB", "24"}));
}

TEST_F(MisspeltTextTest, NamesOfTheModelsStayAsTheyAre)
{
    const auto name = [](EPageId id) { return TemplateOf(id).value("modelName").toString(); };
    EXPECT_EQ(name(EPageId::SingleToneTx), "Signle Tone TX");
    EXPECT_EQ(name(EPageId::PuschTxForce), "PUSCH  TX  Forced Mode");
    EXPECT_EQ(name(EPageId::PuschTxNormal), "PUSCH  TX  Normal Mode");
    EXPECT_EQ(name(EPageId::RxPathLoss), "RX Pathloss");
    EXPECT_EQ(name(EPageId::AptProfile), "APC profile");
}

}  // namespace
