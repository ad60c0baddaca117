// Results are grey while they are not of the settings that the page shows.
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTableWidget>
#include <QtTest>

#include "tests/common/BoxWatcher.h"
#include "tests/common/PluginSession.h"
#include "tests/common/SimJournal.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"

namespace {

bool IsGrey(const QWidget *widget)
{
    const QPalette palette = widget->palette();
    return palette.color(QPalette::Active, QPalette::WindowText) ==
           palette.color(QPalette::Disabled, QPalette::Text);
}

void Turn(const CPluginSession &session, const QString &editor, Qt::Key key)
{
    QWidget *widget = session.Find("cmdIf_request_group1_memberProperty_" + editor);
    widget->setFocus(Qt::TabFocusReason);
    QTest::keyClick(widget, key);
}

}  // namespace

class ResultMarkTest : public QObject
{
    Q_OBJECT

private slots:
    void readingIsGreyUntilItIsOfTheShownSettings();
    void rssiAndGainsAreGreyEachByItself();
    void dlFrequencyThatWasTakenBackIsGrey();
    void whatAFailedRequestLeavesIsGrey();
};

void ResultMarkTest::readingIsGreyUntilItIsOfTheShownSettings()
{
    CPluginSession session("handset", 1, "CNrSingleToneTxDockWidgetV7");
    QVERIFY(session.ShowAndWait());
    const auto *value = session.Find<QLabel>("cmdIf_response_group1_memberProperty_pdValue");
    QVERIFY(IsGrey(value));
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Single Tone Tx start..."));
    session.Press("m_btnFetchPd");
    QVERIFY(session.WaitForStatus("Finish fetch PD value."));
    session.Press("m_stop");
    QVERIFY(session.WaitForStatus("Single Tone Tx stop."));
    const QString text = value->text();
    QVERIFY(WaitUntil([&] { return !IsGrey(value); }));
    Turn(session, "ulFrequency", Qt::Key_Up);
    QVERIFY(IsGrey(value));
    QCOMPARE(value->text(), text);
    Turn(session, "ulFrequency", Qt::Key_Down);
    QVERIFY(!IsGrey(value));
}

void ResultMarkTest::rssiAndGainsAreGreyEachByItself()
{
    CPluginSession session("handset", 1, "CNrRssiDockWidgetV7");
    QVERIFY(session.ShowAndWait());
    const auto rssi = [&] {
        return session.Find<QTableWidget>("cmdIf_response_group2_memberProperty_dlFrequency")
            ->cellWidget(1, 0);
    };
    const auto *gain = session.Find("cmdIf_response_group1_memberProperty_path0MainRfGain");
    const auto *power = session.Find("cmdIf_response_group1_memberProperty_adviseDlPower");
    const auto *mode = session.Find("cmdIf_response_group1_memberProperty_gainModeP0");
    QVERIFY(IsGrey(rssi()) && IsGrey(mode) && IsGrey(gain) && IsGrey(power));
    session.Press("m_btnRssiSeqSrhCalculator");
    QVERIFY(session.WaitForStatus("Fetch Gain info done"));
    QVERIFY(IsGrey(rssi()) && IsGrey(mode) && !IsGrey(gain) && !IsGrey(power));
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Fetch RSSI done"));
    QVERIFY(!IsGrey(rssi()) && !IsGrey(mode) && !IsGrey(gain) && !IsGrey(power));
    Turn(session, "band", Qt::Key_Down);
    QVERIFY(IsGrey(rssi()) && IsGrey(mode) && IsGrey(gain) && IsGrey(power));
}

void ResultMarkTest::dlFrequencyThatWasTakenBackIsGrey()
{
    CPluginSession session("handset", 1, "CNrPuschTxForcedDockWidgetV7");
    QVERIFY(session.ShowAndWait());
    auto *search = session.Find("cmdIf_request_group1_memberProperty_enableCsr");
    const auto click = [&] {
        QTest::mouseClick(search, Qt::LeftButton, Qt::NoModifier, QPoint(8, search->height() / 2));
    };
    const auto *result = session.Find<QLabel>("cmdIf_response_group1_memberProperty_dlFrequency");
    click();
    QVERIFY(IsGrey(result));
    session.Press("m_btnCalculate");
    QVERIFY(session.WaitForStatus("Finish fetch DL frequence."));
    QVERIFY(WaitUntil([&] { return !IsGrey(result); }));
    click();
    QVERIFY(IsGrey(result));
}

// The gains of a failed search are numbers, too.
void ResultMarkTest::whatAFailedRequestLeavesIsGrey()
{
    CPluginSession session("handset", 1, "CNrRssiDockWidgetV7");
    QVERIFY(session.ShowAndWait());
    const auto *gain = session.Find("cmdIf_response_group1_memberProperty_path0MainRfGain");
    const auto *power = session.Find("cmdIf_response_group1_memberProperty_adviseDlPower");
    session.Press("m_btnRssiSeqSrhCalculator");
    QVERIFY(session.WaitForStatus("Fetch Gain info done"));
    QVERIFY(!IsGrey(gain) && !IsGrey(power));
    VondSim_AddFault(R"({"function": "VOND_MMRf_GainSearchV7_r", "kind": "fail", "result": 7})");
    CBoxWatcher boxes;
    session.Press("m_btnRssiSeqSrhCalculator");
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QVERIFY(IsGrey(gain) && IsGrey(power));
    VondSim_ClearFaults();
    session.Press("m_btnRssiSeqSrhCalculator");
    QVERIFY(session.WaitForStatus("Fetch Gain info done"));
    QVERIFY(!IsGrey(gain) && !IsGrey(power));
}

QUORLIN_TEST_CLASS(ResultMarkTest)
#include "ResultMarkTest.moc"
