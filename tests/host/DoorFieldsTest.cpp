// What the door panel shows, compares, copies and saves of chosen calls, by mouse and keyboard.
#include <thread>

#include <QCheckBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>

#include "Trace/lines/TraceReader.h"
#include "door/DoorWindow.h"
#include "tests/common/TestClass.h"

class DoorFieldsTest : public QObject, protected CDoorWindow
{
    Q_OBJECT

private slots:
    void init() { Open(); }
    void cleanup() { Close(); }
    void ChosenCallShowsItsFields();
    void NamesOfFieldsAreReadWhole();
    void ArrowKeysShowTheFieldsOfTheNextCall();
    void FieldsThatAreZeroAreShownOnDemand();
    void OpenCallShowsItsFieldsWhenItHasEnded();
    void ChosenRowsAreCopied();
    void AllRowsAreCopiedWithoutAChoice();
    void FieldsAreCopied();
    void TwoCallsAreCompared();
    void CallsOfTwoFunctionsAreNotCompared();
    void SavedTraceHasTheShownCalls();
    void FileThatCannotBeWrittenIsTold();
    void PanelGoesWhileItSaves();
};

void DoorFieldsTest::ChosenCallShowsItsFields()
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

void DoorFieldsTest::NamesOfFieldsAreReadWhole()
{
    MakeCalls(1);
    ClickRow(0);
    QTRY_VERIFY(!Field("answer.dlFrequency").isEmpty());
    const int width = Fields()->fontMetrics().horizontalAdvance("answer.dlFrequency");
    QVERIFY(Fields()->columnWidth(0) > width);
}

void DoorFieldsTest::ArrowKeysShowTheFieldsOfTheNextCall()
{
    m_dut->chipName(40);
    MakeCall();
    QTRY_COMPARE(Rows(), 2);
    ClickRow(0);
    QTRY_VERIFY(Text("m_about").endsWith("GetChipIdName"));
    QTest::keyClick(Calls(), Qt::Key_Down);
    QTRY_COMPARE(Field("timeout"), QString("500 ms"));
}

void DoorFieldsTest::FieldsThatAreZeroAreShownOnDemand()
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

void DoorFieldsTest::OpenCallShowsItsFieldsWhenItHasEnded()
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

void DoorFieldsTest::ChosenRowsAreCopied()
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

void DoorFieldsTest::AllRowsAreCopiedWithoutAChoice()
{
    MakeCalls(3);
    QGuiApplication::clipboard()->clear();
    Press("m_copy");
    QTRY_COMPARE(Clipboard().split('\n', Qt::SkipEmptyParts).size(), 4);
    QVERIFY(Text("m_state").endsWith("3 calls copied."));
}

void DoorFieldsTest::FieldsAreCopied()
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

void DoorFieldsTest::TwoCallsAreCompared()
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

void DoorFieldsTest::CallsOfTwoFunctionsAreNotCompared()
{
    m_dut->chipName(40);
    m_dut->stop(1, 500);
    QTRY_COMPARE(Rows(), 2);
    ClickRow(0);
    QTest::keyClick(Calls(), Qt::Key_Down, Qt::ShiftModifier);
    QTRY_VERIFY2(Text("m_about").contains("are of two functions"), qPrintable(Text("m_about")));
    QCOMPARE(Fields()->model()->rowCount(), 0);
}

void DoorFieldsTest::SavedTraceHasTheShownCalls()
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

void DoorFieldsTest::FileThatCannotBeWrittenIsTold()
{
    MakeCalls(1);
    m_panel->SaveAsTrace("/no-such-folder/calls.jsonl");
    QTRY_VERIFY2(Text("m_state").contains("Can't write /no-such-folder/calls.jsonl"),
                 qPrintable(Text("m_state")));
    QVERIFY(Find<QPushButton>("m_save")->isEnabled());
}

void DoorFieldsTest::PanelGoesWhileItSaves()
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

QUORLIN_TEST_CLASS(DoorFieldsTest)
#include "DoorFieldsTest.moc"
