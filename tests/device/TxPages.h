// The TX pages at their buttons: what tests of one or of all of them share.
//
//   CPluginSession session("handset", 1, kForced.className);
//   QVERIFY(session.ShowAndWait());
//   session.Press("m_start");
//   QVERIFY(session.WaitForStatus(Status(kForced, "start...")));
//   QCOMPARE(Enabled(session, kForced), QString("stop"));
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QtTest>

#include "tests/common/PluginSession.h"

struct STxPage
{
    const char *className;
    const char *title;
    const char *test;   // name in status lines and titles
    const char *start;  // functions of the DUT
    const char *stop;
    const char *read;
    const char *running;  // the DUT's name of the test
    const char *button;   // of the reading beside the test
    const char *readDone;
};

constexpr STxPage kSingleTone = {
    "CNrSingleToneTxDockWidgetV7",
    "Single Tone TX",
    "Single Tone Tx",
    "VOND_MMRf_SingleToneTxV7_r",
    "VOND_MMRf_TestStopV7_r",
    "VOND_MMRf_GetPdValueV7_r",
    "SingleToneTx",
    "m_btnFetchPd",
    "Finish fetch PD value.",
};
constexpr STxPage kForced = {
    "CNrPuschTxForcedDockWidgetV7", "Forced PUSCH TX ",       "Pusch TX", "VOND_NRf_PuschTxV7_r",
    "VOND_NRf_TestStop_r",          "VOND_NRf_GetDlFreqV7_r", "PuschTx",  "m_btnCalculate",
    "Finish fetch DL frequence.",
};
constexpr STxPage kNormal = {
    "CNrPuschTxNormalDockWidgetV7", "Normal PUSCH TX ",       "Pusch TX", "VOND_NRf_PuschTxV7_r",
    "VOND_NRf_TestStop_r",          "VOND_NRf_GetDlFreqV7_r", "PuschTx",  "m_btnCalculate",
    "Finish fetch DL frequence.",
};

Q_DECLARE_METATYPE(STxPage)

inline QString Status(const STxPage &page, const char *outcome)
{
    return QString(page.test) + ' ' + outcome;
}

// The buttons that can be pressed, in this order: "start", "stop", "read"; "none" if there is none.
inline QString Enabled(const CPluginSession &session, const STxPage &page)
{
    QStringList names;
    for (const auto &button : {std::make_pair("m_start", "start"), std::make_pair("m_stop", "stop"),
                               std::make_pair(page.button, "read")}) {
        if (session.Find<QPushButton>(button.first)->isEnabled())
            names << button.second;
    }
    return names.isEmpty() ? QString("none") : names.join(' ');
}

inline QString Member(const char *member, const char *group = "group1")
{
    return QString("cmdIf_request_%1_memberProperty_%2").arg(group, member);
}

inline QString Result(const char *member)
{
    return QString("cmdIf_response_group1_memberProperty_%1").arg(member);
}

inline QString ResultText(const CPluginSession &session, const char *member)
{
    return session.Find<QLabel>(Result(member))->text();
}

inline void Choose(const CPluginSession &session, const char *member, const QString &text,
                   const char *group = "group1")
{
    auto *box = session.Find<QComboBox>(Member(member, group));
    QVERIFY(box);
    QVERIFY2(box->findText(text) >= 0, qPrintable(QString(member) + " has no " + text));
    box->setCurrentText(text);
}

// Clicks a check box as the user does.
inline void Click(const CPluginSession &session, const char *member)
{
    auto *box = session.Find<QCheckBox>(Member(member));
    QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box->height() / 2));
}

// How often the page told a status.
inline int Count(const QSignalSpy &statuses, const QString &text)
{
    int count = 0;
    for (const QList<QVariant> &arguments : statuses)
        count += arguments[0].toString() == text ? 1 : 0;
    return count;
}
