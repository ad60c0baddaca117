// The panel "Faults" of the bench host: every control, by mouse and by keyboard.
#include "Host/dut/FaultPanel.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QPushButton>
#include <QTableView>

#include "Host/dut/FaultDialog.h"
#include "PanelWindow.h"
#include "Vond/VondCore.h"
#include "tests/common/GoodCommands.h"
#include "tests/common/TestClass.h"

namespace {

constexpr uint32_t kHandle = 1;
constexpr char kContRx[] = "VOND_MMRf_ContRxV7_r";

int32_t ContRx(uint32_t timeoutMs = 1000)
{
    const SMMContRxCmdV7 command = ContRxCommand();
    return VOND_MMRf_ContRxV7_r(kHandle, timeoutMs, &command);
}

int32_t StopContRx()
{
    return VOND_MMRf_TestStopV7_r(kHandle, 1000, 1);
}

// A round without an entry.
int32_t ReadRound()
{
    auto request = std::make_unique<SMMGetCalDataReqV7>();
    auto answer = std::make_unique<SMMGetCalDataCnfV7>();
    request->radioKind = 1;
    return VOND_MMRf_GetCalDataV7_r(kHandle, 1000, request.get(), answer.get());
}

int32_t WriteRound()
{
    auto request = std::make_unique<SMMSetCalDataReqV7>();
    auto answer = std::make_unique<SMMSetCalDataCnfV7>();
    request->radioKind = 1;
    request->version = 1;
    return VOND_MMRf_SetCalDataV7_r(kHandle, 1000, request.get(), answer.get());
}

QJsonObject FaultAt(uint32_t index)
{
    SVondSimFault fault = {};
    return VondSim_GetFault(index, &fault) == 0
               ? ToObject(CopiedText(&VondSim_GetFaultText, fault.id))
               : QJsonObject();
}

}  // namespace

class FaultPanelTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_window.reset(); }
    void OneClickFailsTheNextCall();
    void OneClickDelaysTheNextCall();
    void OneClickTimesTheNextCallOut();
    void OneClickFillsTheNextAnswerWithNoise();
    void OneClickStrikesTheChosenFunction();
    void OneClickAgainReplacesTheSpentFault();
    void UnplugsInTheNextRound_data();
    void UnplugsInTheNextRound();
    void TableTellsEachFault();
    void CountsFollowTheCallsAndTheSelectionStays();
    void BoxSwitchesAFaultOffAndOn();
    void FaultIsAdded();
    void BrokenFaultGetsWordsAndTheBoxStays();
    void FaultIsEdited_data();
    void FaultIsEdited();
    void CancelledEditChangesNothing();
    void EveryKindComesBackFromItsFields_data();
    void EveryKindComesBackFromItsFields();
    void FaultsAreRemoved();
    void RemoveAllKeepsRadioAndPlug();

private:
    QString Text(const char *name) const { return m_window->Find<QLabel>(name)->text(); }
    QPushButton *Button(const char *name) const { return m_window->Find<QPushButton>(name); }
    void Click(const char *button) const { QTest::mouseClick(Button(button), Qt::LeftButton); }
    QTableView *Table() const { return m_window->Find<QTableView>("m_faults"); }
    QString Cell(int row, int column) const
    {
        return Table()->model()->index(row, column).data().toString();
    }
    QString Row(int row) const;
    // Adds it from outside, waits until the table has it, and selects it.
    void AddAndSelect(const char *json) const;
    CFaultDialog *Dialog() const
    {
        return qobject_cast<CFaultDialog *>(QApplication::activeModalWidget());
    }

    std::unique_ptr<CPanelWindow> m_window;
};

void FaultPanelTest::init()
{
    m_window = std::make_unique<CPanelWindow>("Faults");
    QVERIFY(m_window->IsGood());
    QVERIFY(m_window->Find<CFaultPanel>("CFaultPanel")->isVisible());
}

QString FaultPanelTest::Row(int row) const
{
    QStringList cells;
    for (int column = 0; column < CFaultModel::eColumnCount; ++column)
        cells << Cell(row, column);
    return cells.join("|");
}

void FaultPanelTest::AddAndSelect(const char *json) const
{
    QCOMPARE(VondSim_AddFault(json), 0);
    const int row = static_cast<int>(VondSim_FaultCount()) - 1;
    QTRY_COMPARE(Cell(row, CFaultModel::eSource), QString("added"));
    const QModelIndex index = Table()->model()->index(row, CFaultModel::eKind);
    Table()->scrollTo(index);
    QTest::mouseClick(Table()->viewport(), Qt::LeftButton, {}, Table()->visualRect(index).center());
    QVERIFY(Button("m_removeFault")->isEnabled());
}

void FaultPanelTest::OneClickFailsTheNextCall()
{
    Click("m_failNext");
    QCOMPARE(Row(0), QString("*|fail|result 4|call 1|0 of 0|added"));
    QCOMPARE(ContRx(), 4);
    QCOMPARE(ContRx(), 0);
    QTRY_COMPARE(Row(0), QString("*|fail|result 4|call 1|1 of 2, over|added"));
}

void FaultPanelTest::OneClickDelaysTheNextCall()
{
    QTest::keyClick(Button("m_delayNext"), Qt::Key_Space);
    QCOMPARE(FaultAt(0).value("ms").toInt(), 3000);
    QCOMPARE(ContRx(10), 2);  // the caller's patience is shorter
    QCOMPARE(ContRx(10), 0);
}

void FaultPanelTest::OneClickTimesTheNextCallOut()
{
    Click("m_timeOutNext");
    QCOMPARE(ContRx(), 2);
    QCOMPARE(ContRx(), 0);
}

void FaultPanelTest::OneClickFillsTheNextAnswerWithNoise()
{
    Click("m_noiseNext");
    const auto request = std::make_unique<SMMSingleToneCmdV7>(SingleToneCommand());
    QCOMPARE(VOND_MMRf_SingleToneTxV7_r(kHandle, 1000, request.get()), 0);
    const auto powerNow = [] {
        int16_t value = 0;
        VOND_MMRf_GetPdValueV7_r(kHandle, 1000, 1, &value);
        return value / 256.0;
    };
    const double first = powerNow();
    const double second = powerNow();
    QVERIFY2(qAbs(first - 10) > 2 && qAbs(second - 10) < 2,
             qPrintable(QString("%1 %2").arg(first).arg(second)));
}

void FaultPanelTest::OneClickStrikesTheChosenFunction()
{
    auto *box = m_window->Find<QComboBox>("m_nextFunction");
    box->setFocus();
    QTest::keyClicks(box, kContRx);
    QCOMPARE(box->currentText(), QString(kContRx));
    Click("m_failNext");
    QCOMPARE(StopContRx(), 0);
    QCOMPARE(ContRx(), 4);
}

void FaultPanelTest::OneClickAgainReplacesTheSpentFault()
{
    Click("m_failNext");
    QCOMPARE(ContRx(), 4);
    QTRY_VERIFY(Cell(0, CFaultModel::eFired).endsWith("over"));
    Click("m_failNext");
    QCOMPARE(VondSim_FaultCount(), 1u);
    QCOMPARE(Cell(0, CFaultModel::eFired), QString("0 of 0"));
}

void FaultPanelTest::UnplugsInTheNextRound_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<QString>("function");
    QTest::newRow("read") << QByteArray("m_unplugRead") << "VOND_MMRf_GetCalDataV7_r";
    QTest::newRow("write") << QByteArray("m_unplugWrite") << "VOND_MMRf_SetCalDataV7_r";
}

void FaultPanelTest::UnplugsInTheNextRound()
{
    QFETCH(QByteArray, button);
    QFETCH(QString, function);
    const bool isRead = button == "m_unplugRead";
    Click(button);
    QCOMPARE(Row(0), function + "|unplug||call 1||step to come");
    QCOMPARE(isRead ? WriteRound() : ReadRound(), 0);
    QCOMPARE(VondSim_IsPlugged(), 1);
    QVERIFY((isRead ? ReadRound() : WriteRound()) != 0);
    QCOMPARE(VondSim_IsPlugged(), 0);
    QTRY_COMPARE(Table()->model()->rowCount(), 0);
}

void FaultPanelTest::TableTellsEachFault()
{
    QCOMPARE(VondSim_SetScenario("flaky-link"), 0);
    AddAndSelect(R"({"function": "*", "kind": "delay", "ms": 50, "probability": 0.25})");
    AddAndSelect(R"({"kind": "powerCut", "block": 5, "torn": true})");
    QCOMPARE(Row(0), "VOND_MMRf_ContRxV7_r|fail|result 2|50 % of the calls|0 of 0|scenario");
    QCOMPARE(Row(10), "*|delay|50 ms|25 % of the calls|0 of 0|added");
    QCOMPARE(Row(11), "the flash|powerCut|block 5, torn|always|0 of 0|added");
}

void FaultPanelTest::CountsFollowTheCallsAndTheSelectionStays()
{
    AddAndSelect(R"({"function": "VOND_MMRf_ContRxV7_r", "kind": "fail"})");
    AddAndSelect(R"({"function": "*", "kind": "delay", "ms": 0})");
    for (int i = 0; i < 3; ++i)
        ContRx();
    QTRY_COMPARE(Cell(0, CFaultModel::eFired), QString("3 of 3"));
    QCOMPARE(Table()->selectionModel()->selectedRows().size(), 1);
    QCOMPARE(Table()->selectionModel()->selectedRows()[0].row(), 1);
    SVondSimFault fault = {};
    VondSim_GetFault(0, &fault);
    VondSim_RemoveFault(fault.id);
    QTRY_COMPARE(Table()->model()->rowCount(), 1);
    QCOMPARE(Table()->selectionModel()->selectedRows().size(), 1);
}

void FaultPanelTest::BoxSwitchesAFaultOffAndOn()
{
    AddAndSelect(R"({"function": "VOND_MMRf_ContRxV7_r", "kind": "fail"})");
    const QModelIndex index = Table()->model()->index(0, 0);
    const QRect cell = Table()->visualRect(index);
    QTest::mouseClick(Table()->viewport(), Qt::LeftButton, {},
                      {cell.left() + 9, cell.center().y()});
    QCOMPARE(index.data(Qt::CheckStateRole).toInt(), int(Qt::Unchecked));
    QCOMPARE(ContRx(), 0);
    Table()->setCurrentIndex(index);
    QTest::keyClick(Table(), Qt::Key_Space);
    QCOMPARE(index.data(Qt::CheckStateRole).toInt(), int(Qt::Checked));
    QCOMPARE(ContRx(), 4);
}

void FaultPanelTest::FaultIsAdded()
{
    Click("m_addFault");
    QVERIFY(Dialog());
    QTest::keyClicks(Dialog()->findChild<QComboBox *>("m_function"), kContRx);
    QTest::keyClicks(Dialog()->findChild<QComboBox *>("m_kind"), "delay");
    auto *ms = Dialog()->findChild<QDoubleSpinBox *>("m_ms");
    QVERIFY(ms->isVisible());
    QVERIFY(!Dialog()->findChild<QWidget *>("m_result")->isVisible());
    ms->selectAll();
    QTest::keyClicks(ms, "40");
    QTest::keyClick(ms, Qt::Key_Return);
    QVERIFY(!Dialog());
    QCOMPARE(Row(0), QString(kContRx) + "|delay|40 ms|always|0 of 0|added");
}

void FaultPanelTest::BrokenFaultGetsWordsAndTheBoxStays()
{
    Click("m_addFault");
    QVERIFY(Dialog());
    QTest::keyClicks(Dialog()->findChild<QComboBox *>("m_function"), "VOND_GetErrorString");
    auto *ok = Dialog()->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok);
    QTest::mouseClick(ok, Qt::LeftButton);
    QVERIFY(Dialog());
    const auto *error = Dialog()->findChild<QLabel *>("m_faultError");
    QVERIFY2(error->isVisible() && error->text().contains("VOND_GetErrorString"),
             qPrintable(error->text()));
    QCOMPARE(VondSim_FaultCount(), 0u);
    QTest::keyClicks(Dialog()->findChild<QComboBox *>("m_kind"), "null");
    QTest::mouseClick(ok, Qt::LeftButton);
    QVERIFY(!Dialog());
    QCOMPARE(VondSim_FaultCount(), 1u);
}

void FaultPanelTest::FaultIsEdited_data()
{
    QTest::addColumn<QByteArray>("way");
    for (const char *way : {"button", "return", "double click"})
        QTest::newRow(way) << QByteArray(way);
}

void FaultPanelTest::FaultIsEdited()
{
    QFETCH(QByteArray, way);
    QVERIFY(!Button("m_editFault")->isEnabled());
    AddAndSelect(R"({"function": "VOND_MMRf_ContRxV7_r", "kind": "fail", "result": 7})");
    ContRx();
    if (way == "button")
        Click("m_editFault");
    else if (way == "return")
        QTest::keyClick(Table(), Qt::Key_Return);
    else
        QTest::mouseDClick(
            Table()->viewport(), Qt::LeftButton, {},
            Table()->visualRect(Table()->model()->index(0, CFaultModel::eKind)).center());
    QVERIFY(Dialog());
    auto *result = Dialog()->findChild<QDoubleSpinBox *>("m_result");
    QCOMPARE(result->value(), 7.0);
    result->selectAll();
    QTest::keyClicks(result, "9");
    QTest::keyClick(result, Qt::Key_Return);
    QVERIFY(!Dialog());
    QCOMPARE(Row(0), QString(kContRx) + "|fail|result 9|always|0 of 0|added");
    QCOMPARE(ContRx(), 9);
}

void FaultPanelTest::CancelledEditChangesNothing()
{
    AddAndSelect(R"({"function": "VOND_MMRf_ContRxV7_r", "kind": "fail", "result": 7})");
    Click("m_editFault");
    QVERIFY(Dialog());
    Dialog()->findChild<QDoubleSpinBox *>("m_result")->setValue(9);
    QTest::keyClick(Dialog(), Qt::Key_Escape);
    QVERIFY(!Dialog());
    QCOMPARE(ContRx(), 7);
}

void FaultPanelTest::EveryKindComesBackFromItsFields_data()
{
    QTest::addColumn<QByteArray>("json");
    const char *const faults[] = {
        "{'function': '*', 'kind': 'fail', 'result': -3, 'nth': 2}",
        "{'function': 'VOND_NRf_RsrpV7_r', 'kind': 'status', 'status': 4294967295}",
        "{'function': '*', 'kind': 'delay', 'ms': 50, 'probability': 0.25, 'seed': 42}",
        "{'function': 'VOND_GetErrorString', 'kind': 'nullText'}",
        "{'function': 'VOND_MMRf_GetRouteConfigV7_r', 'kind': 'noise', 'seed': 5}",
        "{'function': 'VOND_NRf_GetMixRxReportV7_r', 'kind': 'bytes', 'offset': 4, 'hex': '0c00'}",
        "{'kind': 'powerCut', 'block': 5, 'torn': true}",
        "{'kind': 'stuck', 'record': 'apt', 'route': 14, 'bandwidth': 100000, 'block': 2, "
        "'field': 'pa[0].paGain[3]'}",
        "{'kind': 'stuck', 'record': 'type1', 'route': 1, 'block': 1, 'field': 'band'}",
    };
    for (const char *fault : faults)
        QTest::newRow(fault) << QByteArray(fault).replace('\'', '"');
}

void FaultPanelTest::EveryKindComesBackFromItsFields()
{
    QFETCH(QByteArray, json);
    AddAndSelect(json);
    const QJsonObject before = FaultAt(0);
    Click("m_editFault");
    QVERIFY(Dialog());
    QTest::mouseClick(Dialog()->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok),
                      Qt::LeftButton);
    QVERIFY(!Dialog());
    QCOMPARE(FaultAt(0), before);
}

void FaultPanelTest::FaultsAreRemoved()
{
    QVERIFY(!Button("m_removeFault")->isEnabled());
    QVERIFY(!Button("m_removeAll")->isEnabled());
    AddAndSelect(R"({"function": "VOND_MMRf_ContRxV7_r", "kind": "fail"})");
    AddAndSelect(R"({"function": "*", "kind": "delay", "ms": 0})");
    QTest::keyClick(Table(), Qt::Key_Delete);
    QCOMPARE(VondSim_FaultCount(), 1u);
    QCOMPARE(FaultAt(0).value("kind").toString(), QString("fail"));
    Table()->selectRow(0);
    Click("m_removeFault");
    QCOMPARE(VondSim_FaultCount(), 0u);
    QCOMPARE(Table()->model()->rowCount(), 0);
    QVERIFY(!Button("m_removeAll")->isEnabled());
}

void FaultPanelTest::RemoveAllKeepsRadioAndPlug()
{
    QCOMPARE(VondSim_SetScenario("cable-off"), 0);
    AddAndSelect(R"({"function": "*", "kind": "delay", "ms": 0})");
    VondSim_SetRadio(R"({"temperatureC": 50})");
    VondSim_SetPlugged(0);
    Click("m_removeAll");
    QCOMPARE(Table()->model()->rowCount(), 0);
    QCOMPARE(VondSim_FaultCount(), 0u);
    QCOMPARE(VondSim_IsPlugged(), 0);
    QCOMPARE(ToObject(CopiedText(&VondSim_GetRadioText)).value("temperatureC").toDouble(), 50.0);
    QCOMPARE(m_window->Find<QComboBox>("m_scenario")->currentText(), QString("none"));
}

QUORLIN_TEST_CLASS(FaultPanelTest)
#include "FaultPanelTest.moc"
