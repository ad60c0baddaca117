// The RSSI page on the simulated DUT: what its tests share.
//
//   CRssiSession session;
//   QVERIFY(session.ShowAndWait());
//   session.Press("m_start");
//   QVERIFY(session.WaitForStatus("Fetch RSSI done"));
//   QCOMPARE(session.ResultRow(0, CRssiSession::MainRssi), QStringList(...));
#pragma once

#include <cstring>

#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QtTest>

#include "tests/common/SimJournal.h"
#include "tests/device/ContRxProfiles.h"

constexpr char kStartButton[] = "m_start";
constexpr char kCalculateButton[] = "m_btnRssiSeqSrhCalculator";
constexpr char kRssiCall[] = "VOND_MMRf_RssiV7_r";
constexpr char kGainCall[] = "VOND_MMRf_GainSearchV7_r";

// A row a button, for tests of what holds for both: what it calls and what the page says.
inline void AddRequestRows()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QByteArray>("function");
    QTest::addColumn<QString>("done");
    QTest::addColumn<QString>("failed");
    QTest::addColumn<QString>("title");
    QTest::newRow("measurement") << kStartButton << QByteArray(kRssiCall) << "Fetch RSSI done"
                                 << "Fetch RSSI failed."
                                 << "Fetch RSSI failed.";
    QTest::newRow("calculator") << kCalculateButton << QByteArray(kGainCall)
                                << "Fetch Gain info done"
                                << "Fetch Gain info failed"
                                << "Fetch Gain info failed.";
}

// The fault that fails every call of a function.
inline QByteArray FailFault(const QByteArray &function)
{
    return R"({"function": ")" + function + R"(", "kind": "fail", "result": 7})";
}

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

// A press and its good end.
inline bool Measure(const CRssiSession &session)
{
    session.Press(kStartButton);
    return session.WaitForStatus("Fetch RSSI done");
}

inline bool Calculate(const CRssiSession &session)
{
    session.Press(kCalculateButton);
    return session.WaitForStatus("Fetch Gain info done");
}

// Has the DUT say hex from this offset of its answer record on.
inline void AddAnswerBytes(const char *function, int offset, const QByteArray &hex)
{
    VondSim_AddFault(QString(R"({"function": "%1", "kind": "bytes", "offset": %2, "hex": "%3"})")
                         .arg(function)
                         .arg(offset)
                         .arg(QString::fromLatin1(hex))
                         .toUtf8());
}

// The record that the last call of a function was answered with.
template <typename Record>
Record LastAnswer(const char *function)
{
    const QByteArray bytes = JournalOf(function).last().answer;
    Record record = {};
    if (bytes.size() == static_cast<int>(sizeof record))
        std::memcpy(&record, bytes.constData(), sizeof record);
    return record;
}

// dB of the wire, 1/32 dB, as the page shows them.
inline QString DbText(int value)
{
    return QString::number(value / 32.0, 'f', 5);
}
