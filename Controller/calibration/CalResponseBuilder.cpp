#include "Controller/calibration/CalResponseBuilder.h"

#include <utility>

#include "Controller/calibration/CalWalks.h"
#include "Controller/calibration/LossConfig.h"
#include "Model/ModelText.h"

namespace {

constexpr char kNoCaption[] = "NA";  // of a gain slot that no gain mode uses

// Captions of the gain slots: the set gains in row order.
QStringList SlotCaptions(const SMMRfRxGainInfoV7 &gains)
{
    QStringList captions;
    for (int bigG = 0; bigG < kVondGainRows; ++bigG) {
        for (int smallG = 0; smallG < kVondGainColumns; ++smallG) {
            if (gains.t1[bigG][smallG] == 1)
                captions.append(QStringLiteral("G%1,g%2").arg(bigG).arg(smallG));
        }
    }
    while (captions.size() < kVondLossGainSlots)
        captions.append(QString::fromLatin1(kNoCaption));
    return captions;
}

}  // namespace

std::string CCalResponseBuilder::GetAptDataModelV7(QJsonObject document,
                                                   SAptRouteBwRecord record) const
{
    return ModelToText(ShowApt(std::move(document), record));
}

QJsonObject CCalResponseBuilder::ShowApt(QJsonObject document, SAptRouteBwRecord record) const
{
    CCalShow show(document);
    MoveApt(show, record);
    return document;
}

const SMMRfRxGainInfoV7 *CCalResponseBuilder::GainsFor(const QJsonObject &document) const
{
    return m_target.GetSupportRxGainInfoV7(
        ERadioKind::Nr, ShownPowerMode(ReadLossConfig(document).powerMode).gainMode);
}

std::string CCalResponseBuilder::GetType1PathLossDataModelV7(QJsonObject document,
                                                             SMMType1PathlossByRouteV7 record) const
{
    return ModelToText(ShowType1PathLoss(document, record, GainsFor(document)));
}

std::string CCalResponseBuilder::GetType2PathLossDataModelV7(QJsonObject document,
                                                             SMMType2PathlossByRouteV7 record) const
{
    return ModelToText(ShowType2PathLoss(document, record, GainsFor(document)));
}

QJsonObject CCalResponseBuilder::ShowType1PathLoss(QJsonObject document,
                                                   SMMType1PathlossByRouteV7 record,
                                                   const SMMRfRxGainInfoV7 *gains) const
{
    const SPowerMode &mode = ShownPowerMode(ReadLossConfig(document).powerMode);
    SLossView view{mode.half};
    view.hasGains = gains != nullptr;
    if (gains)
        view.captions = SlotCaptions(*gains);
    CCalShow show(document);
    MoveType1(show, record, view);
    if (!gains)
        show.Fail(QString::fromLatin1(mode.noGains));
    return document;
}

// Without the supported gains it is not known which gain a column stands for.
QJsonObject CCalResponseBuilder::ShowType2PathLoss(QJsonObject document,
                                                   SMMType2PathlossByRouteV7 record,
                                                   const SMMRfRxGainInfoV7 *gains) const
{
    const SLossConfig config = ReadLossConfig(document);
    LogType2Config(config);
    const SPowerMode &mode = ShownPowerMode(config.powerMode);
    CCalShow show(document);
    MoveType2(show, record,
              {mode.half, config.freqIdx, config.path, config.bigG, {}, gains != nullptr});
    if (!gains)
        show.Fail(QStringLiteral("Get gain info failed"));
    return document;
}
