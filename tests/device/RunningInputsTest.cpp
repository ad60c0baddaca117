// While a test runs, its inputs are off, and come back as relevance had them.
#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QPushButton>
#include <QtTest>

#include "tests/common/BoxWatcher.h"
#include "tests/common/PluginSession.h"
#include "tests/common/SimJournal.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"

namespace {

// The editors of the page's request, by name, and whether each is on by itself.
QMap<QString, bool> Inputs(const CPluginSession &session)
{
    QMap<QString, bool> inputs;
    for (const QWidget *widget : session.Page()->findChildren<QWidget *>(
             QRegularExpression("^cmdIf_request_.*(?<!_caption)$"))) {
        if (qobject_cast<const QComboBox *>(widget) ||
            qobject_cast<const QAbstractSpinBox *>(widget) ||
            qobject_cast<const QAbstractButton *>(widget))
            inputs[widget->objectName()] = widget->isEnabledTo(widget->parentWidget());
    }
    return inputs;
}

bool AllOff(const CPluginSession &session)
{
    const QList<bool> states = Inputs(session).values();
    return !states.contains(true);
}

}  // namespace

class RunningInputsTest : public QObject
{
    Q_OBJECT

private slots:
    void inputsAreOffWhileATestRuns_data();
    void inputsAreOffWhileATestRuns();
    void failedStartAndStopLeaveTheInputsToTheState();
    void tabChangeBringsTheInputsBack();
    void calculateStaysOnDuringATransmission();
};

void RunningInputsTest::inputsAreOffWhileATestRuns_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("test");
    QTest::addColumn<QString>("disabled");  // by relevance
    QTest::newRow("continuous RX") << "CNrContRxDockWidgetV7"
                                   << "Cont Rx" << QString();
    QTest::newRow("single tone") << "CNrSingleToneTxDockWidgetV7"
                                 << "Single Tone Tx" << QString();
    QTest::newRow("forced") << "CNrPuschTxForcedDockWidgetV7"
                            << "Pusch TX"
                            << "tddSlotConfig";
    QTest::newRow("normal") << "CNrPuschTxNormalDockWidgetV7"
                            << "Pusch TX"
                            << "csCCNum";
}

void RunningInputsTest::inputsAreOffWhileATestRuns()
{
    QFETCH(QString, page);
    QFETCH(QString, test);
    QFETCH(QString, disabled);
    CPluginSession session("handset", 1, page);
    QVERIFY(session.ShowAndWait());
    const QMap<QString, bool> before = Inputs(session);
    QVERIFY(before.size() > 4);
    if (!disabled.isEmpty())
        QCOMPARE(before["cmdIf_request_group1_memberProperty_" + disabled], false);
    session.Press("m_start");
    QVERIFY(AllOff(session));
    QVERIFY(session.WaitForStatus(test + " start..."));
    QVERIFY(AllOff(session));
    session.Press("m_stop");
    QVERIFY(AllOff(session));
    QVERIFY(session.WaitForStatus(test + " stop."));
    QCOMPARE(Inputs(session), before);
}

void RunningInputsTest::failedStartAndStopLeaveTheInputsToTheState()
{
    CPluginSession session;
    QVERIFY(session.ShowAndWait());
    const QMap<QString, bool> before = Inputs(session);
    CBoxWatcher boxes;
    VondSim_AddFault(R"({"function": "VOND_MMRf_ContRxV7_r", "kind": "fail", "result": 7})");
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Cont Rx start failed..."));
    QCOMPARE(Inputs(session), before);
    VondSim_ClearFaults();
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Cont Rx start..."));
    VondSim_AddFault(R"({"function": "VOND_MMRf_TestStopV7_r", "kind": "fail", "result": 7})");
    session.Press("m_stop");
    QVERIFY(session.WaitForStatus("Cont Rx stop failed."));
    QVERIFY(AllOff(session));
}

// The page is off as a whole while another one is in front; that is not the inputs' own state.
void RunningInputsTest::tabChangeBringsTheInputsBack()
{
    CPluginSession session("handset", 1, "CNrPuschTxNormalDockWidgetV7");
    QVERIFY(session.ShowAndWait());
    const QMap<QString, bool> before = Inputs(session);
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Pusch TX start..."));
    QVERIFY(session.ClickTab("Continuous RX"));
    QVERIFY(session.WaitForStatus("Pusch TX stop."));
    QVERIFY(session.ClickTab("Normal PUSCH TX "));
    QCOMPARE(Inputs(session), before);
    // They follow the user again.
    session.Find<QComboBox>("cmdIf_request_group1_memberProperty_ulCCNum")->setCurrentText("2");
    QVERIFY(session.Find("cmdIf_request_group2_memberProperty_band")->isEnabled());
}

void RunningInputsTest::calculateStaysOnDuringATransmission()
{
    CPluginSession session("handset", 1, "CNrPuschTxForcedDockWidgetV7");
    QVERIFY(session.ShowAndWait());
    auto *search = session.Find("cmdIf_request_group1_memberProperty_enableCsr");
    QTest::mouseClick(search, Qt::LeftButton, Qt::NoModifier, QPoint(8, search->height() / 2));
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Pusch TX start..."));
    QVERIFY(session.Find("m_btnCalculate")->isEnabled());
    QVERIFY(session.Find("cmdIf_response_group1_memberProperty_dlFrequency")->isEnabled());
    QVERIFY(!search->isEnabled());
    session.Press("m_btnCalculate");
    QVERIFY(session.WaitForStatus("Finish fetch DL frequence."));
    QVERIFY(AllOff(session));
}

QUORLIN_TEST_CLASS(RunningInputsTest)
#include "RunningInputsTest.moc"
