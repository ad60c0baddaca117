// Command of the single tone TX test.
#include "Controller/commands/NrCoreCmdBuilder.h"

#include "Controller/fields/CommandFields.h"
#include "Model/ModelQuery.h"

namespace {

constexpr SCommandField<SMMSingleToneCmdV7> kTone[] = {
    Field<&SMMSingleToneCmdV7::band, AsBand>("band"),
    Field<&SMMSingleToneCmdV7::txRoute, AsNumber>("txRoute"),
    Field<&SMMSingleToneCmdV7::afcdac, AsNumber>("afcdac"),
    Field<&SMMSingleToneCmdV7::txPowerValue, AsPower>("txPowerValue"),
    Field<&SMMSingleToneCmdV7::ulFrequency, AsNumber>("ulFrequency"),
    Field<&SMMSingleToneCmdV7::aggBwKhzRange, AsUpperBoundKhz>("aggBwKhzRange"),
    Field<&SMMSingleToneCmdV7::afcDataType, AsFlag>("afcDataType"),
};

}  // namespace

SMMSingleToneCmdV7 CNrCoreCmdBuilder::GetSingleToneTxCmdV7(QJsonObject document) const
{
    SMMSingleToneCmdV7 command = {};
    command.radioKind = kRadioNr;
    FillFields(kTone, CPackagedGroup(document, "cmdIf.request.group1"), command);
    command.ulFreqOffset = ToneOffsetKhz(GetUiIndexByMemberValue(
        document, QStringLiteral("cmdIf.request.group1.memberValue.ulFreqOffset")));
    return command;
}
