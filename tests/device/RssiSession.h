// The RSSI page on the simulated DUT: what its tests share.
//
//   CRssiSession session;
//   QVERIFY(session.ShowAndWait());
//   session.Press("m_start");
//   QVERIFY(session.WaitForStatus("Fetch RSSI done"));
//   QCOMPARE(session.ResultRow(0, CRssiSession::MainRssi), QStringList(...));
#pragma once

#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>

#include "tests/device/ContRxProfiles.h"

constexpr char kStartButton[] = "m_start";
constexpr char kCalculateButton[] = "m_btnRssiSeqSrhCalculator";
constexpr char kRssiCall[] = "VOND_MMRf_RssiV7_r";
constexpr char kGainCall[] = "VOND_MMRf_GainSearchV7_r";

class CRssiSession : public CPluginSession
{
public:
    // Rows of a result table.
    enum ERow
    {
        DlFreq,
        MainRssi,
        DivRssi,
    };

    explicit CRssiSession(const QString &profile = Type1Profile(), uint32_t handle = 1)
        : CPluginSession(profile, handle, "CNrRssiDockWidgetV7")
    {
    }

    // "start", "calculate", "both" or "none": the buttons that can be pressed.
    QString Enabled() const
    {
        const bool start = Find<QPushButton>(kStartButton)->isEnabled();
        const bool calculate = Find<QPushButton>(kCalculateButton)->isEnabled();
        return start && calculate ? "both" : start ? "start" : calculate ? "calculate" : "none";
    }

    // Result table of a path, 0 or 1.
    QTableWidget *ResultTable(int path) const
    {
        return Find<QTableWidget>(
            QString("cmdIf_response_group%1_memberProperty_dlFrequency").arg(path + 2));
    }
    QTableWidget *FrequencyTable() const
    {
        return Find<QTableWidget>("cmdIf_request_group2_memberProperty_dlFrequency");
    }
    // Texts of a row, a cell a channel.
    QStringList ResultRow(int path, ERow row) const
    {
        QStringList texts;
        const QTableWidget *table = ResultTable(path);
        for (int c = 0; c < table->columnCount(); ++c)
            texts.append(qobject_cast<QLabel *>(table->cellWidget(row, c))->text());
        return texts;
    }

    // Editors of what the calculator finds, and the label texts of a result.
    double Gain(const QString &member) const
    {
        return Find<QDoubleSpinBox>(ResultName(member))->value();
    }
    QString Text(const QString &member) const { return Find<QLabel>(ResultName(member))->text(); }
    static QString ResultName(const QString &member)
    {
        return "cmdIf_response_group1_memberProperty_" + member;
    }
};
