#include "tests/controller/core/StepPages.h"

#include "Controller/commands/NrCoreCmdBuilder.h"
#include "Model/ModelText.h"
#include "tests/operations/TargetFixture.h"

namespace {

template <auto Build>
QByteArray Command(const QJsonObject &document)
{
    return BytesOf((CNrCoreCmdBuilder().*Build)(document));
}

}  // namespace

const SStepPage kStepPages[7] = {
    {EPageId::PuschTxForce,
     "PUSCH TX Force Mode",
     kPusch,
     true,
     "PuschTx",
     {{"band", "n3"}, {"txRoute", "3"}, {"ulFrequency", "1747500"}, {"txPowerValue", "-10.5"}},
     &Command<&CNrCoreCmdBuilder::GetPuschTxForceCmdV7>},
    {EPageId::PuschTxNormal,
     "PUSCH TX Normal Mode",
     kPusch,
     true,
     "PuschTx",
     {{"band", "n78"}, {"ulFrequency", "3549990"}, {"ulBandwidth", "52 RB"}, {"ulCCNum", "2"}},
     &Command<&CNrCoreCmdBuilder::GetPuschTxNormalCmdV7>},
    {EPageId::SingleToneTx,
     "Single Tone TX",
     kSingleTone,
     false,
     "SingleToneTx",
     {{"band", "n3"}, {"txRoute", "3"}, {"ulFrequency", "1747500"}, {"txPowerValue", "10"}},
     &Command<&CNrCoreCmdBuilder::GetSingleToneTxCmdV7>},
    {EPageId::RsrpForce,
     "RSRP Force Mode",
     kRsrp,
     true,
     "Rsrp",
     {{"band", "n3"}, {"rxRoute", "3"}, {"dlFrequency", "1842500"}, {"measCnt", "3"}},
     &Command<&CNrCoreCmdBuilder::GetRsrpForceCmdV7>},
    {EPageId::RsrpNormal,
     "RSRP Normal Mode",
     kRsrp,
     true,
     "Rsrp",
     {{"band", "n78"}, {"mimoType", "4x4"}, {"dlFrequency", "3549990"}, {"dlBandwidth", "52 RB"}},
     &Command<&CNrCoreCmdBuilder::GetRsrpNormalCmdV7>},
    {EPageId::ContRx,
     "Continuous RX",
     kContRx,
     false,
     "ContRx",
     {{"band", "n3"}, {"rxRoute", "3"}, {"dlFrequency", "1842500"}, {"powerMode", "LPM"}},
     &Command<&CNrCoreCmdBuilder::GetContRxCmdV7>},
    {EPageId::Rssi,
     "RSSI",
     kRssi,
     false,
     "",
     {{"routeType", "Type2"}, {"rxRoute", "101"}, {"calType", "Simultaneously"}, {"numFreq", "5"}},
     &Command<&CNrCoreCmdBuilder::GetRssiCmdV7>},
};

QJsonObject SStepPage::Document(CNrCore &core) const
{
    QJsonObject document = PackagedDocument(ModelFromText(core.GetDataModel(name)));
    Put(document, "cmdIf.request.group1", values);
    if (id == EPageId::Rssi)
        PutRow(document, "cmdIf.request.group2", "dlFrequency",
               {"2115000", "2125000", "2135000", "2145000", "2155000"});
    return document;
}

const SStepPage &StepPage(EPageId id)
{
    for (const SStepPage &page : kStepPages) {
        if (page.id == id)
            return page;
    }
    ADD_FAILURE() << "page " << static_cast<int>(id) << " has no test";
    return kStepPages[0];
}
