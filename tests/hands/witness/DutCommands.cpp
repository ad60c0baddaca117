#include "tests/hands/witness/DutCommands.h"

#include <QFile>
#include <QJsonDocument>

#include "Controller/capability/NrDataModelCapUpdater.h"
#include "Controller/core/PageTable.h"
#include "Model/ModelResources.h"
#include "tests/hands/witness/PageReader.h"

namespace {

using Builder = CNrCoreCmdBuilder;

template <typename Command>
QByteArray BytesOf(const Command &command)
{
    return QByteArray(reinterpret_cast<const char *>(&command), sizeof command);
}

template <auto Build>
QByteArray Make(const Builder &builder, const QJsonObject &filled)
{
    return BytesOf((builder.*Build)(filled));
}

template <bool IsNormal>
QByteArray MakeDlFreq(const Builder &builder, const QJsonObject &filled)
{
    return BytesOf(builder.GetPuschDlFreqCmd(filled, IsNormal));
}

constexpr char kRsrp[] = "VOND_NRf_RsrpV7_r";
constexpr char kPusch[] = "VOND_NRf_PuschTxV7_r";
constexpr char kDlFreq[] = "VOND_NRf_GetDlFreqV7_r";
constexpr char kRssiPage[] = "CNrRssiDockWidgetV7";
constexpr char kForced[] = "CNrPuschTxForcedDockWidgetV7";
constexpr char kNormal[] = "CNrPuschTxNormalDockWidgetV7";

constexpr SCommandRow kRows[] = {
    {"VOND_MMRf_RssiV7_r", kRssiPage, Make<&Builder::GetRssiCmdV7>},
    {"VOND_MMRf_GainSearchV7_r", kRssiPage, Make<&Builder::GetGainSearchCmdV7>},
    {"VOND_MMRf_ContRxV7_r", "CNrContRxDockWidgetV7", Make<&Builder::GetContRxCmdV7>},
    {kRsrp, "CNrRsrpForceDockWidgetV7", Make<&Builder::GetRsrpForceCmdV7>},
    {kRsrp, "CNrRsrpNormalDockWidgetV7", Make<&Builder::GetRsrpNormalCmdV7>},
    {"VOND_MMRf_SingleToneTxV7_r", "CNrSingleToneTxDockWidgetV7",
     Make<&Builder::GetSingleToneTxCmdV7>},
    {kPusch, kForced, Make<&Builder::GetPuschTxForceCmdV7>},
    {kPusch, kNormal, Make<&Builder::GetPuschTxNormalCmdV7>},
    {kDlFreq, kForced, MakeDlFreq<false>},
    {kDlFreq, kNormal, MakeDlFreq<true>},
};

struct SDocumentRow
{
    const char *className;
    EPageId id;
};
constexpr SDocumentRow kDocuments[] = {
    {kRssiPage, EPageId::Rssi},
    {"CNrContRxDockWidgetV7", EPageId::ContRx},
    {"CNrRsrpForceDockWidgetV7", EPageId::RsrpForce},
    {"CNrRsrpNormalDockWidgetV7", EPageId::RsrpNormal},
    {"CNrSingleToneTxDockWidgetV7", EPageId::SingleToneTx},
    {kForced, EPageId::PuschTxForce},
    {kNormal, EPageId::PuschTxNormal},
    {"CNrRxPathlossDockWidgetV7", EPageId::RxPathLoss},
    {"CNrAptProfileDockWidgetV7", EPageId::AptProfile},
};

}  // namespace

CDutCommands::CDutCommands()
{
    InitModelResources();
    CTargetCapability::Reset();
    CNrDataModelCapUpdater updater;
    updater.ResetCapabilityCache();
    for (const SDocumentRow &row : kDocuments) {
        const SPageRow &page = FindPage(row.id);
        QFile file(page.resource);
        if (!file.open(QIODevice::ReadOnly))
            qFatal("no %s", page.resource);
        QJsonObject document = QJsonDocument::fromJson(file.readAll()).object();
        if (!(updater.*page.driver)(document))
            qFatal("the DUT does not suit %s", row.className);
        m_documents[row.className] = document;
    }
}

QVector<SCommandRow> CDutCommands::Rows(const char *function)
{
    QVector<SCommandRow> rows;
    for (const SCommandRow &row : kRows) {
        if (qstrcmp(row.function, function) == 0)
            rows.append(row);
    }
    return rows;
}

QJsonObject CDutCommands::Fill(const QDockWidget *page) const
{
    return FillFrom(page, m_documents.value(page->objectName()));
}

QByteArray CDutCommands::Build(const SCommandRow &row, const QJsonObject &filled) const
{
    return row.build(m_builder, filled);
}
