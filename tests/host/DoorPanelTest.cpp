// The door panel on the simulated DUT, by mouse and keyboard.
#include "Host/door/DoorPanel.h"

#include <thread>

#include <QCheckBox>
#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSet>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

#include "Trace/lines/TraceReader.h"
#include "door/DoorDut.h"
#include "tests/common/GoodCommands.h"
#include "tests/common/TestClass.h"

class DoorPanelTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_dut = std::make_unique<CDoorDut>(); }
    void init();
    void cleanup() { m_panel.reset(); }
    void CallIsShownWhenItBeginsAndWhenItEnds();
    void ChosenCallShowsItsFields();
    void ArrowKeysShowTheFieldsOfTheNextCall();
    void FieldsThatAreZeroAreShownOnDemand();
    void OpenCallShowsItsFieldsWhenItHasEnded();
    void TypedFunctionLeavesOthersOut();
    void FailuresAloneAreShown();
    void ChosenCallStaysChosenUnderAFilter();
    void PausedTableStandsStillAndCatchesUp();
    void TableFollowsUnlessTheUserLooksBack();
    void ChosenRowsAreCopied();
    void AllRowsAreCopiedWithoutAChoice();
    void FieldsAreCopied();
    void TwoCallsAreCompared();
    void CallsOfTwoFunctionsAreNotCompared();
    void SavedTraceHasTheShownCalls();
    void FileThatCannotBeWrittenIsTold();
    void ClearedJournalEmptiesTheTable();
    void DroppedCallSaysSo();
    void HundredThousandCallsAreShown();
    void PanelGoesWhileItSaves();
    void HiddenPanelDoesNotLook();
    void WithoutASourceThePanelSaysWhy();
    void ControlsHaveNamesAndMnemonicsOfTheirOwn();

private:
    template <class Widget>
    Widget *Find(const char *name) const
    {
        return m_panel->findChild<Widget *>(name);
    }
    QTableView *Calls() const { return Find<QTableView>("m_calls"); }
    QTableView *Fields() const { return Find<QTableView>("m_fields"); }
    QString Text(const char *label) const { return Find<QLabel>(label)->text(); }
    static QString Cell(const QTableView *table, int row, int column)
    {
        return table->model()->index(row, column).data().toString();
    }
    int Rows() const { return Calls()->model()->rowCount(); }
    void ClickRow(int row, Qt::KeyboardModifiers keys = {});
    void Press(const char *button);
    // Value of a field, or nothing.
    QString Field(const QString &name, int column = 1) const;
    // Calls of GetDlFreq.
    void MakeCall(uint32_t handle = 1);
    void MakeCalls(int count);
    static QString Clipboard() { return QGuiApplication::clipboard()->text(); }

    std::unique_ptr<CDoorDut> m_dut;
    std::unique_ptr<CDoorPanel> m_panel;
};

void DoorPanelTest::init()
{
    m_dut->Reset();
    m_panel = std::make_unique<CDoorPanel>(*m_dut->Simulated());
    m_panel->resize(760, 500);
    m_panel->show();
    QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
}

void DoorPanelTest::ClickRow(int row, Qt::KeyboardModifiers keys)
{
    const QModelIndex index = Calls()->model()->index(row, 2);
    Calls()->scrollTo(index);
    QTest::mouseClick(Calls()->viewport(), Qt::LeftButton, keys,
                      Calls()->visualRect(index).center());
}

void DoorPanelTest::Press(const char *button)
{
    auto *const found = Find<QAbstractButton>(button);
    QVERIFY2(found != nullptr && found->isEnabled(), button);
    QTest::mouseClick(found, Qt::LeftButton, {}, QPoint(10, found->height() / 2));
}

QString DoorPanelTest::Field(const QString &name, int column) const
{
    for (int row = 0; row < Fields()->model()->rowCount(); ++row) {
        if (Cell(Fields(), row, 0) == name)
            return Cell(Fields(), row, column);
    }
    return {};
}

void DoorPanelTest::MakeCall(uint32_t handle)
{
    const SNrDlFreqCmdV7 command = DlFreqCommand();
    SNrDlFreqCnfV7 answer = {};
    m_dut->dlFreq(handle, 500, &command, &answer);
}

void DoorPanelTest::MakeCalls(int count)
{
    for (int i = 0; i < count; ++i)
        MakeCall();
    QTRY_COMPARE(Rows(), count);
}

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

void DoorPanelTest::ChosenCallShowsItsFields()
{
    MakeCalls(1);
    QCOMPARE(Text("m_about"),
             QString("Choose a call to see its fields, two calls to compare them."));
    ClickRow(0);
    QTRY_COMPARE(Field("timeout"), QString("500 ms"));
    QCOMPARE(Field("result"), QString("Success (0)"));
    QVERIFY2(Field("request.band").startsWith("n"), qPrintable(Field("request.band")));
    QVERIFY2(Text("m_about").endsWith(", VOND_NRf_GetDlFreqV7_r"), qPrintable(Text("m_about")));
}

void DoorPanelTest::ArrowKeysShowTheFieldsOfTheNextCall()
{
    m_dut->chipName(40);
    MakeCall();
    QTRY_COMPARE(Rows(), 2);
    ClickRow(0);
    QTRY_VERIFY(Text("m_about").endsWith("GetChipIdName"));
    QTest::keyClick(Calls(), Qt::Key_Down);
    QTRY_COMPARE(Field("timeout"), QString("500 ms"));
}

void DoorPanelTest::FieldsThatAreZeroAreShownOnDemand()
{
    MakeCalls(1);
    ClickRow(0);
    QTRY_VERIFY(Fields()->model()->rowCount() > 0);
    const int few = Fields()->model()->rowCount();
    Press("m_setOnly");
    QTRY_VERIFY(Fields()->model()->rowCount() > few);
    QTest::keyClick(m_panel.get(), Qt::Key_W, Qt::AltModifier);
    QTRY_COMPARE(Fields()->model()->rowCount(), few);
}

void DoorPanelTest::OpenCallShowsItsFieldsWhenItHasEnded()
{
    const char *const function = "VOND_NRf_GetDlFreqV7_r";
    m_dut->hold(function);
    std::thread caller([&] { MakeCall(); });
    QTRY_COMPARE(Rows(), 1);
    ClickRow(0);
    const bool isTold = QTest::qWaitFor([&] { return Text("m_about").contains("not come back"); });
    m_dut->release(function);
    caller.join();
    QVERIFY2(isTold, qPrintable(Text("m_about")));
    QTRY_COMPARE(Field("result"), QString("Success (0)"));
    QVERIFY(!Field("answer.dlFrequency").isEmpty());
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

void DoorPanelTest::ChosenRowsAreCopied()
{
    MakeCalls(3);
    ClickRow(1);
    QGuiApplication::clipboard()->clear();
    QTest::keyClick(Calls(), Qt::Key_C, Qt::ControlModifier);
    QTRY_VERIFY(!Clipboard().isEmpty());
    const QStringList lines = Clipboard().split('\n', Qt::SkipEmptyParts);
    QCOMPARE(lines.size(), 2);
    QCOMPARE(lines[0], QString("Call\tTime\tFunction\tDuration\tResult"));
    QCOMPARE(lines[1].section('\t', 0, 0), Cell(Calls(), 1, 0));
    QCOMPARE(lines[1].section('\t', 4, 4), QString("Success (0)"));
}

void DoorPanelTest::AllRowsAreCopiedWithoutAChoice()
{
    MakeCalls(3);
    QGuiApplication::clipboard()->clear();
    Press("m_copy");
    QTRY_COMPARE(Clipboard().split('\n', Qt::SkipEmptyParts).size(), 4);
    QVERIFY(Text("m_state").endsWith("3 calls copied."));
}

void DoorPanelTest::FieldsAreCopied()
{
    MakeCalls(1);
    ClickRow(0);
    QTRY_VERIFY(Fields()->model()->rowCount() > 2);
    QGuiApplication::clipboard()->clear();
    Press("m_copyFields");
    QTRY_VERIFY(Clipboard().contains("request.band\tn"));
    QVERIFY(Clipboard().startsWith("Field\tValue\n"));
    const QModelIndex index = Fields()->model()->index(1, 0);
    QTest::mouseClick(Fields()->viewport(), Qt::LeftButton, {},
                      Fields()->visualRect(index).center());
    QGuiApplication::clipboard()->clear();
    QTest::keyClick(Fields(), Qt::Key_C, Qt::ControlModifier);
    QTRY_COMPARE(Clipboard(), QString("Field\tValue\ntimeout\t500 ms\n"));
}

void DoorPanelTest::TwoCallsAreCompared()
{
    MakeCall(1);
    MakeCall(2);
    MakeCall(1);
    QTRY_COMPARE(Rows(), 3);
    ClickRow(0);
    ClickRow(1, Qt::ControlModifier);
    QTRY_VERIFY2(Text("m_about").endsWith("differ in 1 field."), qPrintable(Text("m_about")));
    QCOMPARE(Fields()->model()->columnCount(), 3);
    QCOMPARE(Field("handle", 1), QString("1"));
    QCOMPARE(Field("handle", 2), QString("2"));
    QVERIFY(!Find<QCheckBox>("m_setOnly")->isEnabled());
    ClickRow(0);
    ClickRow(2, Qt::ControlModifier);
    QTRY_VERIFY(Text("m_about").endsWith("are the same in all fields."));
}

void DoorPanelTest::CallsOfTwoFunctionsAreNotCompared()
{
    m_dut->chipName(40);
    m_dut->stop(1, 500);
    QTRY_COMPARE(Rows(), 2);
    ClickRow(0);
    QTest::keyClick(Calls(), Qt::Key_Down, Qt::ShiftModifier);
    QTRY_VERIFY2(Text("m_about").contains("are of two functions"), qPrintable(Text("m_about")));
    QCOMPARE(Fields()->model()->rowCount(), 0);
}

void DoorPanelTest::SavedTraceHasTheShownCalls()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("calls.jsonl");
    m_dut->chipName(40);
    MakeCall(3);
    (*m_dut->Simulated())->FailNextCall(7);
    MakeCall(3);
    QTRY_COMPARE(Rows(), 3);
    QTest::keyClicks(Find<QLineEdit>("m_function"), "dlfreq");
    Press("m_save");
    auto *const dialog = m_panel->findChild<QFileDialog *>();
    QVERIFY(dialog != nullptr && dialog->isVisible());
    dialog->findChild<QLineEdit *>("fileNameEdit")->setText(file);
    QTest::keyClick(dialog->findChild<QLineEdit *>("fileNameEdit"), Qt::Key_Return);
    QTRY_VERIFY2(Text("m_state").contains("2 calls saved to " + file), qPrintable(Text("m_state")));
    const STrace trace = ReadTrace(file.toStdString(), ECutLine::Refused);
    QCOMPARE(trace.calls.size(), std::size_t{2});
    QCOMPARE(trace.calls[0].function->id, EFunction::GetDlFreq);
    QCOMPARE(trace.calls[0].handle, 3u);
    QCOMPARE(trace.calls[0].request->size(), sizeof(SNrDlFreqCmdV7));
    const SNrDlFreqCmdV7 command = DlFreqCommand();
    QVERIFY(memcmp(trace.calls[0].request->data(), &command, sizeof(command)) == 0);
    QCOMPARE(trace.calls[0].answer->size(), sizeof(SNrDlFreqCnfV7));
    QCOMPARE(trace.calls[0].text, std::string("Success"));
    QCOMPARE(trace.calls[1].result, 7);
    QVERIFY(trace.calls[1].startNs >= trace.calls[0].startNs);
    QCOMPARE(trace.header.core, std::string("libVondCore.so"));
}

void DoorPanelTest::FileThatCannotBeWrittenIsTold()
{
    MakeCalls(1);
    m_panel->SaveAsTrace("/no-such-folder/calls.jsonl");
    QTRY_VERIFY2(Text("m_state").contains("Can't write /no-such-folder/calls.jsonl"),
                 qPrintable(Text("m_state")));
    QVERIFY(Find<QPushButton>("m_save")->isEnabled());
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

void DoorPanelTest::PanelGoesWhileItSaves()
{
    const QTemporaryDir folder;
    for (int i = 0; i < 20000; ++i)
        m_dut->chipName(40);
    QTRY_COMPARE(Rows(), 20000);
    m_panel->SaveAsTrace(folder.filePath("calls.jsonl"));
    QVERIFY(Text("m_state").endsWith("Saving..."));
    m_panel.reset();
    QCoreApplication::processEvents();
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
