// A session about one of the RSRP pages, which work alike: the tests run on both, by a data column.
//
//   void RsrpPageTest::startsAndStops_data() { BothRsrpPages(); }
//   void RsrpPageTest::startsAndStops()
//   {
//       QFETCH(QString, mode);
//       CRsrpSession session(mode);
//       QVERIFY(session.Running());
//       session.Tick();
//
// A running session has the longest report period, so that no tick comes but by Tick().
#pragma once

#include <QTableWidget>

#include "tests/common/PluginSession.h"

constexpr char kRsrpStart[] = "VOND_NRf_RsrpV7_r";
constexpr char kRsrpStop[] = "VOND_NRf_TestStop_r";
constexpr char kRsrpReport[] = "VOND_NRf_GetMixRxReportV7_r";
constexpr char kRsrpReset[] = "VOND_NRf_ResetMixRxReportV7_r";

// Data column "mode": Force and Normal.
void BothRsrpPages();

class CRsrpSession : public CPluginSession
{
public:
    explicit CRsrpSession(const QString &mode, const QString &profile = "handset");

    // Shown; started as well.
    bool Ready();
    bool Running();
    // As the session's; a start is waited for with the clear before it.
    bool WaitForStatus(const QString &text) const;
    bool Stop();
    // The timer's slot.
    void Tick() const;
    // A tick, and all that its answer brings.
    bool Fetch();
    // A tick whose report stays with the target until VondSim_Release(kRsrpReport).
    bool HoldFetch();

    // What is on of the buttons and inputs, such as "start reset clear rx tx".
    QString Enabled() const;
    QTableWidget *Table() const;  // the one in view
    int Rows() const { return Table()->rowCount(); }
    QString Cell(int row, const QString &column) const;
    QStringList Column(const QString &column) const;
    // An editor or label of the request: its group and member.
    template <typename Widget>
    Widget *Input(const QString &group, const QString &member) const
    {
        return Find<Widget>("cmdIf_request_" + group + "_memberProperty_" + member);
    }
    // Chooses an item of a list of group1 as a person does, with the keyboard.
    bool Choose(const QString &member, const QString &text) const;

    const QString mode;
    const QString txGroup;
};
