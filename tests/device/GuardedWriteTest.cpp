// Guarded Write of the calibration pages: what it asks, what it sends, and what it says in the end. The
// flash file is the witness.
#include "tests/common/TestClass.h"
#include "tests/device/GuardSession.h"

class GuardedWriteTest : public QObject, private CGuardBench
{
    Q_OBJECT

private slots:
    void init() { Begin(); }
    void cleanup() { End(); }

    void writtenEditChangesItsValueAloneAndIsVerified_data() { AddGuardPages(); }
    void writtenEditChangesItsValueAloneAndIsVerified();
    void questionTellsWhatWouldBeWritten_data() { AddGuardPages(); }
    void questionTellsWhatWouldBeWritten();
    void cancelSendsNothing_data() { AddGuardPages(); }
    void cancelSendsNothing();
    void nothingToWriteAsksNothing_data() { AddGuardPages(); }
    void nothingToWriteAsksNothing();
    void pageThatHasReadNothingIsRefused();
    void stuckFieldIsCaughtByTheReadBackAndNamed_data();
    void stuckFieldIsCaughtByTheReadBackAndNamed();
    void failingStepsAreTold_data();
    void failingStepsAreTold();
    void backupThatCanNotBeSavedStopsTheWrite();
    void secondWriterIsRefusedAndToldTheFirst();
};

void GuardedWriteTest::writtenEditChangesItsValueAloneAndIsVerified()
{
    QFETCH(int, edit);
    const SGuardEdit &e = kGuardEdits[edit];
    CCompareSession session(e.page);
    QVERIFY(HasEdit(session, e));
    QDialog *question = Ask(session);
    QVERIFY(question);
    QCOMPARE(Writes(), 0);
    QVERIFY(Backups().isEmpty());
    CBoxWatcher boxes;
    Answer(question, "m_write");
    QVERIFY(WaitForStatus(session, "Guarded write done and verified."));
    QCOMPARE(Changes(), OneChange(e));
    QCOMPARE(Writes(), 1);
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QCOMPARE(boxes.Seen()[0].title, QString("Guarded write done and verified"));
    const QStringList backups = Backups();
    QCOMPARE(backups.size(), 2);
    QVERIFY2(boxes.Seen()[0].plain.contains(backups.filter(".json").value(0)),
             qPrintable(boxes.Seen()[0].plain));

    // The backup is what was there before: Compare finds the edit between the two.
    const QString folder = Path("data/quorlin-rf/backups/");
    QVERIFY(session.OpenCompare());
    for (const QString &backup : backups) {
        QVERIFY(session.Compare(eFileSide, eDutSide, folder + backup));
        QVERIFY2(session.Rows().size() == 1, qPrintable(backup + ": " + session.Summary()));
        QVERIFY(session.Rows()[0].contains("|7.25 dB|"));
    }
}

void GuardedWriteTest::questionTellsWhatWouldBeWritten()
{
    QFETCH(int, edit);
    const SGuardEdit &e = kGuardEdits[edit];
    CCompareSession session(e.page);
    QVERIFY(HasEdit(session, e));
    QDialog *question = Ask(session);
    QVERIFY(question);
    QVERIFY(session.IsIdle());
    QVERIFY(question->isModal());
    const QString summary = question->findChild<QLabel *>("m_summary")->text();
    QVERIFY2(summary.contains("1 value.") && summary.contains("1 record "), qPrintable(summary));
    const auto *routes = question->findChild<QTableWidget *>("m_routes");
    QCOMPARE(routes->rowCount(), 1);
    QCOMPARE(routes->item(0, 1)->text(), QString("1"));
    const auto *fields = question->findChild<QTableWidget *>("m_fields");
    QCOMPARE(fields->rowCount(), 1);
    QCOMPARE(fields->columnCount(), 3);
    QCOMPARE(question->findChild<QLineEdit *>("m_backup")->text(), Path("data/quorlin-rf/backups"));
    QVERIFY(question->findChild<QPushButton *>("m_cancel")->isDefault());
    question->reject();
    QVERIFY(WaitForStatus(session, "Guarded write cancelled. Nothing was sent."));
}

void GuardedWriteTest::cancelSendsNothing()
{
    QFETCH(int, edit);
    const SGuardEdit &e = kGuardEdits[edit];
    CCompareSession session(e.page);
    QVERIFY(HasEdit(session, e));
    QDialog *question = Ask(session);
    QVERIFY(question);
    QVERIFY(!IsLockFree());
    Answer(question, "m_cancel");
    QVERIFY(WaitForStatus(session, "Guarded write cancelled. Nothing was sent."));
    QCOMPARE(Writes(), 0);
    QVERIFY(Changes().isEmpty());
    QVERIFY(Backups().isEmpty());
    // The edit is there still, and so is the way to write it.
    QCOMPARE(session.Cell(e.group, e.member, e.row, e.column)->text(), QString("7.25000"));
    QVERIFY(WaitUntil([&] { return IsLockFree(); }));
    question = Ask(session);
    QVERIFY(question);
    CBoxWatcher boxes;
    Answer(question, "m_write");
    QVERIFY(WaitForStatus(session, "Guarded write done and verified."));
    QCOMPARE(Changes(), OneChange(e));
}

void GuardedWriteTest::nothingToWriteAsksNothing()
{
    QFETCH(int, edit);
    const SGuardEdit &e = kGuardEdits[edit];
    CCompareSession session(e.page);
    QVERIFY(session.ShowAndWait() && session.Run(kRead));
    const int writes = CountCalls(kWriteCall);
    CBoxWatcher boxes;
    session.Press("m_btnGuardedWrite");
    QVERIFY(WaitForStatus(session,
                          "Guarded write: the target has what the page has. Nothing was sent."));
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(boxes.Seen().isEmpty());
    QCOMPARE(CountCalls(kWriteCall), writes);
    QVERIFY(Backups().isEmpty());
}

void GuardedWriteTest::pageThatHasReadNothingIsRefused()
{
    CCompareSession session(kAptPage);
    QVERIFY(session.ShowAndWait());
    CBoxWatcher boxes;
    session.Press("m_btnGuardedWrite");
    QVERIFY(WaitForStatus(session, "Guarded write failed."));
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QVERIFY(boxes.Seen()[0].text.startsWith("The page holds no data yet."));
    QCOMPARE(CountCalls(kWriteCall), 0);
}

void GuardedWriteTest::stuckFieldIsCaughtByTheReadBackAndNamed_data()
{
    QTest::addColumn<int>("edit");
    QTest::addColumn<bool>("isAlone");
    for (int i = 0; i < int(std::size(kGuardEdits)); ++i) {
        QTest::newRow(kGuardEdits[i].name) << i << true;
        QTest::newRow(qPrintable(kGuardEdits[i].name + QString(" beside another edit")))
            << i << false;
    }
}

void GuardedWriteTest::stuckFieldIsCaughtByTheReadBackAndNamed()
{
    QFETCH(int, edit);
    QFETCH(bool, isAlone);
    const SGuardEdit &e = kGuardEdits[edit];
    CCompareSession session(e.page);
    QVERIFY(HasEdit(session, e));
    if (!isAlone)
        session.Type(e.group, e.member, e.row, e.column - 1, kText);
    QVERIFY(VondSim_AddFault(e.stuck) == 0);
    QDialog *question = Ask(session);
    QVERIFY(question);
    CBoxWatcher boxes;
    Answer(question, "m_write");
    QVERIFY(WaitForStatus(session, "Guarded write not verified."));
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    const SSeenBox &box = boxes.Seen()[0];
    QCOMPARE(box.title, QString("Guarded write not verified"));
    QVERIFY2(box.text.contains(e.field) && box.text.contains("7.25 dB"), qPrintable(box.text));
    QVERIFY2(box.detailed.contains("7.25 dB"), qPrintable(box.detailed));
    QVERIFY2(!box.detailed.contains('\n'), qPrintable(box.detailed));
    QCOMPARE(Writes(), 1);
    QCOMPARE(Changes(), isAlone ? QStringList() : QStringList{Neighbour(e)});
    QCOMPARE(Backups().size(), 2);
}

void GuardedWriteTest::failingStepsAreTold_data()
{
    QTest::addColumn<QByteArray>("fault");
    QTest::addColumn<bool>("isAsked");
    QTest::addColumn<bool>("isWritten");
    const auto fail = [](const char *call) {
        return QByteArray(R"({"function": ")") + call + R"(", "kind": "fail", "result": 4})";
    };
    QTest::newRow("reading flash") << fail(kReadCall) << false << false;
    QTest::newRow("sending") << fail(kWriteCall) << true << false;
    QTest::newRow("reading back") << fail(kReadCall) << true << true;
}

void GuardedWriteTest::failingStepsAreTold()
{
    QFETCH(QByteArray, fault);
    QFETCH(bool, isAsked);
    QFETCH(bool, isWritten);
    const SGuardEdit &e = kGuardEdits[1];
    CCompareSession session(e.page);
    QVERIFY(HasEdit(session, e));
    CBoxWatcher boxes;
    if (isAsked) {
        QDialog *question = Ask(session);
        QVERIFY(question);
        VondSim_AddFault(fault.constData());
        Answer(question, "m_write");
        QVERIFY(WaitForStatus(session,
                              isWritten ? "Guarded write not verified." : "Guarded write failed."));
    } else {
        VondSim_AddFault(fault.constData());
        session.Press("m_btnGuardedWrite");
        QVERIFY(WaitForStatus(session, "Guarded write failed."));
    }
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QVERIFY(boxes.Seen()[0].text.size() > 20);
    QCOMPARE(Changes(), isWritten ? OneChange(e) : QStringList());
    // The page goes on: once more, to the good end.
    VondSim_ClearFaults();
    if (isWritten) {
        session.Press("m_btnGuardedWrite");
        QVERIFY(WaitForStatus(
            session, "Guarded write: the target has what the page has. Nothing was sent."));
        return;
    }
    QVERIFY(WaitUntil([&] { return IsLockFree(); }));
    QDialog *question = Ask(session);
    QVERIFY(question);
    Answer(question, "m_write");
    QVERIFY(WaitForStatus(session, "Guarded write done and verified."));
    QCOMPARE(Changes(), OneChange(e));
}

void GuardedWriteTest::backupThatCanNotBeSavedStopsTheWrite()
{
    const SGuardEdit &e = kGuardEdits[1];
    CCompareSession session(e.page);
    QVERIFY(HasEdit(session, e));
    QFile inTheWay(Path("data"));
    QVERIFY(inTheWay.open(QIODevice::WriteOnly));
    QDialog *question = Ask(session);
    QVERIFY(question);
    CBoxWatcher boxes;
    Answer(question, "m_write");
    QVERIFY(WaitForStatus(session, "Guarded write failed."));
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QVERIFY2(boxes.Seen()[0].text.endsWith("Nothing was sent to the target."),
             qPrintable(boxes.Seen()[0].text));
    QCOMPARE(Writes(), 0);
    QVERIFY(Changes().isEmpty());
}

void GuardedWriteTest::secondWriterIsRefusedAndToldTheFirst()
{
    const SGuardEdit &e = kGuardEdits[0];
    CCompareSession session(e.page);
    QVERIFY(HasEdit(session, e));
    CBoxWatcher boxes;
    {
        const COtherWriter other(Path("run"));
        QVERIFY(other.IsHolder());
        session.Press("m_btnGuardedWrite");
        QVERIFY(WaitForStatus(session, "Guarded write failed."));
        QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
        QVERIFY2(boxes.Seen()[0].text.contains("other-bench (process 4711)"),
                 qPrintable(boxes.Seen()[0].text));
        QCOMPARE(Writes(), 0);
    }
    QDialog *question = Ask(session);
    QVERIFY(question);
    question->reject();
}

QUORLIN_TEST_CLASS(GuardedWriteTest)
#include "GuardedWriteTest.moc"
