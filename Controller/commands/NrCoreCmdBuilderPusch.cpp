// Commands of the PUSCH TX tests.
#include "Controller/commands/NrCoreCmdBuilder.h"

#include "Controller/fields/CommandFields.h"

namespace {

constexpr char kFirstCarrier[] = "cmdIf.request.group1";
constexpr char kSecondCarrier[] = "cmdIf.request.group2";

// What each carrier has of its own, in both modes.
constexpr SCommandField<SNrPuschCcV7> kCarrier[] = {
    Field<&SNrPuschCcV7::band, AsBand>("band"),
    Field<&SNrPuschCcV7::tddSlotConfig, AsNumber>("tddSlotConfig"),
    Field<&SNrPuschCcV7::ulFrequency, AsNumber>("ulFrequency"),
    Field<&SNrPuschCcV7::sulFreqShift, AsFlag>("sulFreqShift"),
    Field<&SNrPuschCcV7::cellId, AsNumber>("cellId"),
    Field<&SNrPuschCcV7::txScs, AsScs>("txScs"),
    BandwidthField<&SNrPuschCcV7::ulBandwidth, &SNrPuschCcV7::txScs>("ulBandwidth"),
    Field<&SNrPuschCcV7::vrbStart, AsNumber>("vrbStart"),
    Field<&SNrPuschCcV7::vrbLength, AsNumber>("vrbLength"),
    Field<&SNrPuschCcV7::mcsMode, AsMcs>("mcsMode"),
    Field<&SNrPuschCcV7::txPowerValue, AsPower>("txPowerValue"),
    Field<&SNrPuschCcV7::networkSelection, AsNumber>("networkSelection"),
};

// What the page holds once for all carriers.
constexpr SCommandField<SNrPuschCcV7> kPowerControl[] = {
    Field<&SNrPuschCcV7::txCloseLoopDisble, AsFlag>("txCloseLoopDisble"),
    Field<&SNrPuschCcV7::amprEnbl, AsFlag>("amprEnbl"),
};

constexpr SCommandField<SNrPuschCcV7> kForcedCarrier[] = {
    Field<&SNrPuschCcV7::txRoute, AsNumber>("txRoute"),
    Field<&SNrPuschCcV7::enableCsr, AsFlag>("enableCsr"),
};

constexpr SCommandField<SNrPuschCcV7> kNormalCarrier[] = {
    Field<&SNrPuschCcV7::enableMimo, AsFlag>("enableMimo"),
};

constexpr SCommandField<SNrDlFreqCmdV7> kDlFreqCarrier[] = {
    Field<&SNrDlFreqCmdV7::band, AsBand>("band"),
    Field<&SNrDlFreqCmdV7::ulFrequency, AsNumber>("ulFrequency"),
};

constexpr SCommandField<SNrDlFreqCmdV7> kDlFreqForced[] = {
    Field<&SNrDlFreqCmdV7::txRoute, AsNumber>("txRoute"),
};

// Carriers that a carrier search is for: "CC1", "CC2".
struct SSearchedCarriers
{
    explicit SSearchedCarriers(const CPackagedGroup &common)
        : first(common.Text("csCCNum").contains(QLatin1Char('1'))),
          second(common.Text("csCCNum").contains(QLatin1Char('2')))
    {
    }
    bool first;
    bool second;
};

}  // namespace

SNrPuschTxCmdV7 CNrCoreCmdBuilder::GetPuschTxForceCmdV7(QJsonObject document) const
{
    const CPackagedGroup values(document, kFirstCarrier);
    SNrPuschTxCmdV7 command = {};
    command.forced = 1;
    SNrPuschCcV7 &carrier = command.forcedMode.carrier;
    FillFields(kCarrier, values, carrier);
    FillFields(kPowerControl, values, carrier);
    FillFields(kForcedCarrier, values, carrier);
    return command;
}

SNrPuschTxCmdV7 CNrCoreCmdBuilder::GetPuschTxNormalCmdV7(QJsonObject document) const
{
    const CPackagedGroup values(document, kFirstCarrier);
    SNrPuschTxCmdV7 command = {};
    SNrPuschTxNormalV7 &normal = command.normalMode;
    SNrPuschCcV7 &first = normal.carrier[0];
    SNrPuschCcV7 &second = normal.carrier[1];

    normal.ulCCNum = DecimalInt<uint8_t>(values.Text("ulCCNum"));
    FillFields(kCarrier, values, first);
    FillFields(kPowerControl, values, first);
    FillFields(kNormalCarrier, values, first);
    if (normal.ulCCNum == 2) {
        const CPackagedGroup secondValues(document, kSecondCarrier);
        FillFields(kCarrier, secondValues, second);
        FillFields(kPowerControl, values, second);
        FillFields(kNormalCarrier, secondValues, second);
    }
    if (BoolFlag(values.Text("enableCsr")) != 0) {
        const SSearchedCarriers searched(values);
        first.enableCsr = searched.first ? 1 : 0;
        second.enableCsr = searched.second ? 1 : 0;
    }
    return command;
}

SNrDlFreqCmdV7 CNrCoreCmdBuilder::GetPuschDlFreqCmd(QJsonObject document, bool normal) const
{
    const CPackagedGroup values(document, kFirstCarrier);
    SNrDlFreqCmdV7 command = {};
    if (!normal) {
        command.forced = 1;
        FillFields(kDlFreqCarrier, values, command);
        FillFields(kDlFreqForced, values, command);
        return command;
    }
    // The record has room for one carrier. When both are searched for, it is the second.
    const SSearchedCarriers searched(values);
    if (searched.first)
        FillFields(kDlFreqCarrier, values, command);
    if (searched.second)
        FillFields(kDlFreqCarrier, CPackagedGroup(document, kSecondCarrier), command);
    return command;
}
