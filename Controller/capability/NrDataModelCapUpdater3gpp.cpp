// What the 3GPP band tables say.
#include "Controller/capability/NrDataModelCapUpdater.h"

#include <limits>

#include "Controller/Interface/CoreInterface.h"
#include "Controller/capability/EntryTable.h"
#include "Controller/capability/FrequencyRange.h"
#include "Model/JsonPath.h"
#include "Support/Log.h"

namespace {

QJsonObject BandRange(const QJsonObject &operatingBand, const QString &band, const char *half,
                      bool withRangeCheck)
{
    const QJsonValue record = GetJsonValueConst(operatingBand, band);
    if (!IsJsonValueValid(record))
        return FrequencyRange(0, std::numeric_limits<int>::max(), withRangeCheck);
    const QJsonObject limits = record.toObject().value(QLatin1String(half)).toObject();
    return FrequencyRange(limits.value(QLatin1String("low")).toInt(),
                          limits.value(QLatin1String("high")).toInt(), withRangeCheck);
}

// Keeps the first one that is offered.
void OfferDefault(QString &value, const QJsonArray &choices)
{
    if (value.isEmpty())
        value = choices.at(0).toString();
}

}  // namespace

bool CNrDataModelCapUpdater::New3gppDataModel()
{
    m_3gppDataModel = std::make_unique<QJsonObject>();
    QFile file(QStringLiteral(":/Nr3gpp.json"));
    if (IJsonModel().ReadDataModel(file, *m_3gppDataModel))
        return true;
    qCCritical(lcUpdate) << "CNrDataModelCapUpdater::Get3gppDataModel: cannon get the NR data "
                            "Model";
    return false;
}

QJsonObject CNrDataModelCapUpdater::Table3gpp(const char *name) const
{
    return GetJsonValueConst(*m_3gppDataModel, QLatin1String(name)).toObject();
}

QJsonObject CNrDataModelCapUpdater::GetUplinkRange3gpp(const QJsonObject &operatingBand,
                                                       QString band, bool withRangeCheck)
{
    return BandRange(operatingBand, band, "uplink", withRangeCheck);
}

QJsonObject CNrDataModelCapUpdater::GetDownlinkRange3gpp(const QJsonObject &operatingBand,
                                                         QString band, bool withRangeCheck)
{
    return BandRange(operatingBand, band, "downlink", withRangeCheck);
}

int CNrDataModelCapUpdater::GetBandwidthByScsRb(QString scs, QString rb) const
{
    const QJsonValue kHz = Table3gpp("BandwidthBySscRb").value(scs + QLatin1Char(',') + rb);
    return IsJsonValueValid(kHz) ? kHz.toInt() : -1;
}

CNrDataModelCapUpdater::SBandTables
CNrDataModelCapUpdater::ReadBandTables(const QJsonArray &bands) const
{
    const QJsonObject operatingBand = Table3gpp("operatingBand");
    const QJsonObject scsByBand = Table3gpp("SCSkHzByBand");
    const QJsonObject rbByBandScs = Table3gpp("RBNumByBandSCS");
    const QJsonObject mhzByBand = Table3gpp("BandWidthByBand");

    SBandTables tables;
    CEntryTable<3> byBand;  // slots, SCS, MHz
    CObjectTable rbTable;
    for (const QJsonValue &element : bands) {
        const QString band = element.toString();
        const QString duplex =
            GetJsonValueConst(operatingBand, band + QLatin1String(".duplex")).toString();
        // A band that the 3GPP tables lack has no choices; those of the band before must not stay.
        const QJsonArray scsList = scsByBand.value(band).toArray();
        const QJsonArray mhzList = mhzByBand.value(band).toArray();
        byBand.Put(band, {duplex.contains(QLatin1String("TDD")) ? 1 : 0, scsList, mhzList});
        OfferDefault(tables.defaultScs, scsList);
        OfferDefault(tables.defaultMhz, mhzList);
        // With no spacing to choose, a page asks for the list under the band and nothing.
        if (scsList.isEmpty())
            rbTable.Put(band + QLatin1Char(','), QJsonArray());
        for (const QJsonValue &scs : scsList) {
            const QString key = band + QLatin1Char(',') + scs.toString();
            const QJsonArray rbList = rbByBandScs.value(key).toArray();
            rbTable.Put(key, rbList);
            OfferDefault(tables.defaultRb, rbList);
        }
    }
    tables.slotFlags = byBand.ToObject(0);
    tables.scs = byBand.ToObject(1);
    tables.mhz = byBand.ToObject(2);
    tables.rb = rbTable.ToObject();
    return tables;
}
