// The door panel's table of calls on the simulated DUT, by mouse and keyboard.
#include <thread>

#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSet>

#include "door/DoorWindow.h"
#include "tests/common/TestClass.h"

class DoorPanelTest : public QObject, protected CDoorWindow
{
    Q_OBJECT

private slots:
    void init() { Open(); }
    void cleanup() { Close(); }
    void CallIsShownWhenItBeginsAndWhenItEnds();
    void TypedFunctionLeavesOthersOut();
    void FailuresAloneAreShown();
    void ChosenCallStaysChosenUnderAFilter();
    void PausedTableStandsStillAndCatchesUp();
    void TableFollowsUnlessTheUserLooksBack();
    void ClearedJournalEmptiesTheTable();
    void DroppedCallSaysSo();
    void HundredThousandCallsAreShown();
    void HiddenPanelDoesNotLook();
    void WithoutASourceThePanelSaysWhy();
    void ControlsHaveNamesAndMnemonicsOfTheirOwn();
};

void DoorPanelTest::CallIsShownWhenItBeginsAndWhenItEnds()
{
    const char *const function = "VOND_NRf_GetChipIdName";
    m_dut->hold(function);
    std::thread caller([&] { m_dut->chipName(40); });
    QTRY_COMPARE(Rows(), 1);
    const QString result = Cell(Calls(), 0, 4);
    const QString duration = Cell(Calls(), 0, 3);
    m_dut->release(function);
    caller.join();
    QCOMPARE(result, QString("not back yet"));
    QCOMPARE(duration, QString());
    QTRY_COMPARE(Cell(Calls(), 0, 4), QString("answered"));
    QCOMPARE(Rows(), 1);
    QVERIFY(!Cell(Calls(), 0, 3).isEmpty());
    QCOMPARE(Cell(Calls(), 0, 2), QString(function));
    QCOMPARE(Cell(Calls(), 0, 1).size(), int(qstrlen("14:03:07.250")));
}

void DoorPanelTest::TypedFunctionLeavesOthersOut()
{
    m_dut->chipName(40);
    m_dut->stop(1, 500);
    QTRY_COMPARE(Rows(), 2);
    QTest::keyClick(m_panel.get(), Qt::Key_F, Qt::AltModifier);
    QTest::keyClicks(Find<QLineEdit>("m_function"), "chip");
    QCOMPARE(Rows(), 1);
    QCOMPARE(Cell(Calls(), 0, 2), QString("VOND_NRf_GetChipIdName"));
    QTRY_COMPARE(Text("m_state"), QString("Journal of the simulated DUT: 2 calls, 1 shown"));
    m_dut->stop(1, 500);
    m_dut->chipName(41);
    QTRY_COMPARE(Rows(), 2);
    for (int i = 0; i < 4; ++i)
        QTest::keyClick(Find<QLineEdit>("m_function"), Qt::Key_Backspace);
    QCOMPARE(Rows(), 4);
}

void DoorPanelTest::FailuresAloneAreShown()
{
    m_dut->stop(1, 500);
    QTRY_COMPARE(Rows(), 1);
    Press("m_failedOnly");
    QCOMPARE(Rows(), 0);
    QVERIFY(!Find<QPushButton>("m_save")->isEnabled());
    (*m_dut->Simulated())->FailNextCall(7);
    m_dut->stop(1, 500);
    m_dut->stop(1, 500);
    QTRY_COMPARE(Rows(), 1);
    QVERIFY2(Cell(Calls(), 0, 4).endsWith("(7)"), qPrintable(Cell(Calls(), 0, 4)));
    QTest::keyClick(m_panel.get(), Qt::Key_O, Qt::AltModifier);
    QTRY_COMPARE(Rows(), 3);
}

void DoorPanelTest::ChosenCallStaysChosenUnderAFilter()
{
    m_dut->chipName(40);
    m_dut->stop(1, 500);
    QTRY_COMPARE(Rows(), 2);
    ClickRow(1);
    QTest::keyClicks(Find<QLineEdit>("m_function"), "stop");
    QCOMPARE(Calls()->selectionModel()->selectedRows().size(), 1);
    QTRY_VERIFY(Text("m_about").endsWith("TestStop_r"));
    QTest::keyClicks(Find<QLineEdit>("m_function"), "x");
    QCOMPARE(Rows(), 0);
    QCOMPARE(Fields()->model()->rowCount(), 0);
}

void DoorPanelTest::PausedTableStandsStillAndCatchesUp()
{
    m_dut->chipName(40);
    QTRY_COMPARE(Rows(), 1);
    Press("m_pause");
    QVERIFY(Text("m_state").endsWith("Paused"));
    m_dut->chipName(41);
    QTest::qWait(250);  // two looks long
    QCOMPARE(Rows(), 1);
    QTest::keyClick(m_panel.get(), Qt::Key_U, Qt::AltModifier);
    QTRY_COMPARE(Rows(), 2);
    QVERIFY(!Text("m_state").contains("Paused"));
}

void DoorPanelTest::TableFollowsUnlessTheUserLooksBack()
{
    const QScrollBar *const bar = Calls()->verticalScrollBar();
    for (int i = 0; i < 200; ++i)
        m_dut->chipName(40);
    QTRY_COMPARE(Rows(), 200);
    QTRY_VERIFY(bar->maximum() > 0 && bar->value() == bar->maximum());
    QTest::keyClick(Calls(), Qt::Key_Home, Qt::ControlModifier);
    QTRY_COMPARE(bar->value(), 0);
    m_dut->chipName(40);
    QTRY_COMPARE(Rows(), 201);
    QCOMPARE(bar->value(), 0);
    QTest::keyClick(Calls(), Qt::Key_End, Qt::ControlModifier);
    m_dut->chipName(40);
    QTRY_COMPARE(Rows(), 202);
    QCOMPARE(bar->value(), bar->maximum());
}

void DoorPanelTest::ClearedJournalEmptiesTheTable()
{
    MakeCalls(3);
    ClickRow(0);
    (*m_dut->Simulated())->ClearJournal();
    QTRY_COMPARE(Rows(), 0);
    QTRY_COMPARE(Fields()->model()->rowCount(), 0);
    m_dut->chipName(40);
    QTRY_COMPARE(Rows(), 1);
}

// A round of calibration data is 178 kB: the journal has room for less than 400.
void DoorPanelTest::DroppedCallSaysSo()
{
    const std::vector<uint8_t> bytes(sizeof(SMMSetCalDataReqV7));
    const auto *const request = reinterpret_cast<const SMMSetCalDataReqV7 *>(bytes.data());
    SMMSetCalDataCnfV7 answer = {};
    m_dut->setCalData(1, 500, request, &answer);
    QTRY_COMPARE(Rows(), 1);
    QVERIFY2(Cell(Calls(), 0, 4).endsWith("the transfer failed"), qPrintable(Cell(Calls(), 0, 4)));
    for (int i = 0; i < 400; ++i)
        m_dut->setCalData(1, 500, request, &answer);
    QTRY_VERIFY(Rows() > 300);
    ClickRow(0);
    QTRY_VERIFY2(Text("m_about").contains("in the journal no more"), qPrintable(Text("m_about")));
}

void DoorPanelTest::HundredThousandCallsAreShown()
{
    constexpr int kCalls = 100000;
    for (int i = 0; i < kCalls; ++i)
        m_dut->chipName(40);
    QTRY_COMPARE_WITH_TIMEOUT(Rows(), kCalls, 60000);
    QTest::keyClick(Calls(), Qt::Key_End, Qt::ControlModifier);
    QTest::keyClick(Calls(), Qt::Key_Space);
    QTRY_VERIFY2(Text("m_about").endsWith("GetChipIdName"), qPrintable(Text("m_about")));
    QTest::keyClicks(Find<QLineEdit>("m_function"), "stop");
    QCOMPARE(Rows(), 0);
    Find<QLineEdit>("m_function")->clear();
    QCOMPARE(Rows(), kCalls);
}

void DoorPanelTest::HiddenPanelDoesNotLook()
{
    m_panel->hide();
    m_dut->chipName(40);
    QTest::qWait(250);  // two looks long
    QCOMPARE(Rows(), 0);
    m_panel->show();
    QTRY_COMPARE(Rows(), 1);
}

void DoorPanelTest::WithoutASourceThePanelSaysWhy()
{
    m_panel = std::make_unique<CDoorPanel>(std::unique_ptr<IDoorSource>());
    m_panel->show();
    QVERIFY2(Text("m_state").startsWith("No calls can be seen here"), qPrintable(Text("m_state")));
    QVERIFY(!Find<QPushButton>("m_save")->isEnabled());
    QTest::keyClick(m_panel.get(), Qt::Key_O, Qt::AltModifier);
    QTest::keyClicks(Find<QLineEdit>("m_function"), "stop");
    QCOMPARE(Rows(), 0);
}

void DoorPanelTest::ControlsHaveNamesAndMnemonicsOfTheirOwn()
{
    QCOMPARE(Calls()->accessibleName(), QString("Calls"));
    QCOMPARE(Fields()->accessibleName(), QString("Fields"));
    QSet<QChar> keys;
    int count = 0;
    QStringList texts = {Text("functionLabel")};
    for (const QAbstractButton *button : m_panel->findChildren<QAbstractButton *>()) {
        if (button->objectName().startsWith("m_"))
            texts << button->text();
    }
    for (const QString &text : texts) {
        const int place = text.indexOf('&');
        QVERIFY2(place >= 0, qPrintable(text));
        keys.insert(text[place + 1].toUpper());
        ++count;
    }
    QCOMPARE(count, 7);
    QCOMPARE(keys.size(), count);
    for (const char taken : {'Q', 'S', 'H', 'D', 'E', 'R', 'P'})
        QVERIFY2(!keys.contains(taken), "a button of the window has it");
}

QUORLIN_TEST_CLASS(DoorPanelTest)
#include "DoorPanelTest.moc"
