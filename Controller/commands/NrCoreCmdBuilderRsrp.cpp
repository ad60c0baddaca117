// Commands of the RSRP tests.
#include "Controller/commands/NrCoreCmdBuilder.h"

#include "Controller/fields/CommandFields.h"
#include "Model/ModelQuery.h"

namespace {

constexpr char kRxGroup[] = "cmdIf.request.group1";

uint8_t PseudoTxFlag(const QString &text)
{
    return text == QLatin1String("Pseudo TX/RX") ? 1 : 0;
}
using AsPseudoTx = AsConverted<PseudoTxFlag>;

uint8_t FourByFourFlag(const QString &text)
{
    return text == QLatin1String("4x4") ? 1 : 0;
}
using AsFourByFour = AsConverted<FourByFourFlag>;

constexpr SCommandField<SNrRsrpCommonV7> kRsrpReceiver[] = {
    Field<&SNrRsrpCommonV7::measCnt, AsNumber>("measCnt"),
    Field<&SNrRsrpCommonV7::dlFrequency, AsNumber>("dlFrequency"),
    Field<&SNrRsrpCommonV7::rxScs, AsScs>("rxScs"),
    Field<&SNrRsrpCommonV7::band, AsBand>("band"),
    Field<&SNrRsrpCommonV7::tddSlotConfig, AsNumber>("tddSlotConfig"),
    BandwidthField<&SNrRsrpCommonV7::dlBandwidth, &SNrRsrpCommonV7::rxScs>("dlBandwidth"),
    Field<&SNrRsrpCommonV7::trxMode, AsPseudoTx>("trxMode"),
};

// For a transmitter that runs beside the receiver.
constexpr SCommandField<SNrRsrpCommonV7> kRsrpTransmitter[] = {
    Field<&SNrRsrpCommonV7::txPowerValue, AsPower>("txPowerValue"),
    Field<&SNrRsrpCommonV7::vrbStart, AsNumber>("vrbStart"),
    Field<&SNrRsrpCommonV7::vrbLength, AsNumber>("vrbLength"),
    Field<&SNrRsrpCommonV7::mcsMode, AsMcs>("mcsMode"),
};

constexpr SCommandField<SNrRsrpForcedCcV7> kForcedReceiver[] = {
    Field<&SNrRsrpForcedCcV7::rxRoute, AsNumber>("rxRoute"),
};

constexpr SCommandField<SNrRsrpForcedCcV7> kForcedTransmitter[] = {
    Field<&SNrRsrpForcedCcV7::txRoute, AsNumber>("txRoute"),
};

constexpr SCommandField<SNrRsrpCcV7> kNormalReceiver[] = {
    Field<&SNrRsrpCcV7::mimo4x4, AsFourByFour>("mimoType"),
};

void FillCarrier(const CPackagedGroup &rx, const CPackagedGroup &tx, SNrRsrpCommonV7 &carrier)
{
    FillFields(kRsrpReceiver, rx, carrier);
    if (carrier.trxMode != 0)
        FillFields(kRsrpTransmitter, tx, carrier);
}

}  // namespace

SNrRsrpCmdV7 CNrCoreCmdBuilder::GetRsrpForceCmdV7(QJsonObject document) const
{
    const CPackagedGroup rx(document, kRxGroup);
    const CPackagedGroup tx(document, "cmdIf.request.group3");
    SNrRsrpCmdV7 command = {};
    command.forced = 1;
    SNrRsrpForcedCcV7 &carrier = command.forcedMode.carrier;
    FillCarrier(rx, tx, carrier.common);
    FillFields(kForcedReceiver, rx, carrier);
    if (carrier.common.trxMode != 0)
        FillFields(kForcedTransmitter, tx, carrier);
    const int choice = GetUiIndexByMemberValue(
        document, QStringLiteral("cmdIf.request.group1.memberValue.lpmHpmConf"));
    carrier.lpmHpmConf = static_cast<uint8_t>(choice + 1);  // 0: none of the choices
    return command;
}

SNrRsrpCmdV7 CNrCoreCmdBuilder::GetRsrpNormalCmdV7(QJsonObject document) const
{
    const CPackagedGroup rx(document, kRxGroup);
    const CPackagedGroup tx(document, "cmdIf.request.group2");
    SNrRsrpCmdV7 command = {};
    command.normalMode.carrierCount = 1;
    SNrRsrpCcV7 &carrier = command.normalMode.carrier[0];
    FillCarrier(rx, tx, carrier.common);
    FillFields(kNormalReceiver, rx, carrier);
    return command;
}
