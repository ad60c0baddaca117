// RX gain modes of the DUT: the gain choices of the RSSI page, the LNA columns of the path loss
// page.
#include "Controller/capability/NrDataModelCapUpdater.h"

#include <iterator>

#include "Controller/capability/DocumentWriter.h"
#include "Controller/capability/TextTable.h"

namespace {

constexpr int kElnaGains = 7;   // G0 to G6
constexpr int kGainModes = 3;   // g0 to g2
constexpr int kLnaColumns = 8;  // of the path loss tables
constexpr const char *kPowerModeNames[] = {"HPM", "LPM"};
constexpr char kNoGainInfo[] = "Get RX gain Hpm info failed";

constexpr const char *kLnaMembers[kLnaColumns] = {"lna0", "lna1", "lna2", "lna3",
                                                  "lna4", "lna5", "lna6", "lna7"};
constexpr char kType1MainTable[] = "calDataIf.data.group2";
constexpr char kType1DivTable[] = "calDataIf.data.group3";
constexpr SPath kPartialOnColumns{"calDataIf.data.group5", "colFieldCaptionList", ""};
constexpr SPath kLnaChoices[] = {
    {"calDataIf.config.group1", "scGainInfo", ".trait.valuePair.HPM"},
    {"calDataIf.config.group1", "scGainInfo", ".trait.valuePair.LPM"},
};

QString GainMode(int j)
{
    return QStringLiteral("g%1").arg(j);
}

// The gain modes whose flag is set.
QStringList GainModes(const uint8_t (&flags)[kGainModes])
{
    QStringList modes;
    for (int j = 0; j < kGainModes; ++j) {
        if (flags[j] == 1)
            modes.append(GainMode(j));
    }
    return modes;
}

// One path alone. Path 1 is looked up with path 0's value behind, which is then without meaning.
void PutSinglePath(const QString &powerMode, int i, const QStringList &modes, CTextTable &path0,
                   CTextTable &path1)
{
    path0.Put(QStringLiteral("%1,Partial-On Path0,G%2").arg(powerMode).arg(i), modes);
    const QString key = QStringLiteral("%1,Partial-On Path1,G%2,").arg(powerMode).arg(i);
    path1.Put(key, modes);
    for (int j = 0; j < kGainModes; ++j)
        path1.Put(key + GainMode(j), modes);
}

// Both paths together: path 0 offers what has any partner, path 1 the partners.
void PutBothPaths(const QString &powerMode, int i, const SMMRfRxGainInfoV7 &info, CTextTable &path0,
                  CTextTable &path1)
{
    const QString key = QStringLiteral("%1,Simultaneously,G%2").arg(powerMode).arg(i);
    QStringList withPartner;
    for (int k = 0; k < kGainModes; ++k) {
        const QStringList partners = GainModes(info.t2[i][k]);
        path1.Put(key + QLatin1Char(',') + GainMode(k), partners);
        if (!partners.isEmpty())
            withPartner.append(GainMode(k));
    }
    path1.Put(key + QLatin1Char(','), QString());
    path0.Put(key, withPartner);
}

}  // namespace

bool CNrDataModelCapUpdater::UpdateRSSIGainInfoV7(QJsonObject &doc, const SRxGainInfoPathV7 path)
{
    CDocumentWriter writer(doc);
    const SMMRfRxGainInfoV7 *infos[] = {m_target.GetSupportRxGainInfoV7(ERadioKind::Nr, 0),
                                        m_target.GetSupportRxGainInfoV7(ERadioKind::Nr, 1)};
    if (!infos[0] || !infos[1])
        return writer.Fail(kNoGainInfo);

    CTextTable path0;
    CTextTable path1;
    QString path0Default;
    for (std::size_t mode = 0; mode < std::size(infos); ++mode) {
        const QString powerMode = QString::fromLatin1(kPowerModeNames[mode]);
        for (int i = 0; i < kElnaGains; ++i) {
            const QStringList modes = GainModes(infos[mode]->t1[i]);
            if (mode == 0 && path0Default.isEmpty())
                path0Default = modes.value(0);
            PutSinglePath(powerMode, i, modes, path0, path1);
            PutBothPaths(powerMode, i, *infos[mode], path0, path1);
        }
    }
    return writer.Write({
        {path.path0ValuePairPaths,
         path0.ToObject(),
         {"Update path0 gain mode(gx) info failed", "Update type1 gain mode(gx) info failed"}},
        {path.path0DefaultPaths,
         path0Default,
         {"Update path0 gain mode(gx) default value failed",
          "Update type1 gain mode(gx) default value failed"}},
        {path.path1ValuePairPaths, path1.ToObject(), "Update path1 gain mode(gx) info failed"},
        {path.path1DefaultPaths, "", "Update path1 gain mode(gx) default value failed"},
    });
}

bool CNrDataModelCapUpdater::UpdateLnaCaptionsV7(QJsonObject &doc)
{
    CDocumentWriter writer(doc);
    const SMMRfRxGainInfoV7 *hpm = m_target.GetSupportRxGainInfoV7(ERadioKind::Nr, 0);
    const SMMRfRxGainInfoV7 *lpm = m_target.GetSupportRxGainInfoV7(ERadioKind::Nr, 1);
    if (!hpm || !lpm)
        return writer.Fail(kNoGainInfo);

    const auto writeCaption = [&writer](const char *table, const char *name, int column,
                                        const QString &caption) {
        const QByteArray message = QByteArray("Update Type1 ") + name + " table lna" +
                                   QByteArray::number(column) + "caption failed";
        return writer.Write(SPath{table, kLnaMembers[column], ".caption"}, caption,
                            message.constData());
    };
    QJsonArray hpmChoices;
    QJsonArray lpmChoices;
    for (int cell = 0; cell < kElnaGains * kGainModes; ++cell) {
        const int i = cell / kGainModes;
        const int j = cell % kGainModes;
        const QString caption = QStringLiteral("G%1,g%2").arg(i).arg(j);
        if (hpm->t1[i][j] == 1) {
            const int column = hpmChoices.size();
            hpmChoices.append(caption);
            if (column < kLnaColumns && !(writeCaption(kType1MainTable, "main", column, caption) &&
                                          writeCaption(kType1DivTable, "div", column, caption)))
                return false;
        }
        if (lpm->t1[i][j] == 1)
            lpmChoices.append(caption);
        if (hpmChoices.size() > kLnaColumns || lpmChoices.size() > kLnaColumns)
            return writer.Fail("LNA mode number is over the current limitation 8");
    }
    return writer.Write({
        {kPartialOnColumns, hpmChoices, "Update Type2 partial-on colFieldCaptionList failed"},
        {kLnaChoices[0], hpmChoices, "Update scGainInfo HPM failed"},
        {kLnaChoices[1], lpmChoices, "Update scGainInfo LPM failed"},
    });
}
