// Guarded Write of the calibration pages when the host resets or unloads the tool meanwhile, and by keys
// alone. The flash file is the witness.
#include "tests/common/TestClass.h"
#include "tests/device/GuardSession.h"

class GuardedWriteEndTest : public QObject, private CGuardBench
{
    Q_OBJECT

private slots:
    void init() { Begin(); }
    void cleanup() { End(); }

    void resetWhileItAsksSendsNothing();
    void unloadWhileItAsksSendsNothing();
    void resetWhileItWritesEndsWithoutAWord();
    void unloadWhileItWritesEndsTheWrite();
    void keysAloneCancelByReturn();
};

void GuardedWriteEndTest::resetWhileItAsksSendsNothing()
{
    const SGuardEdit &e = kGuardEdits[1];
    CCompareSession session(e.page);
    QVERIFY(HasEdit(session, e));
    const QPointer<QDialog> question = Ask(session);
    QVERIFY(question);
    session->ResetPlugin();
    QVERIFY(WaitUntil([&] { return !question; }));
    QVERIFY(WaitUntil([&] { return IsLockFree(); }));
    QCOMPARE(Writes(), 0);
    QVERIFY(Changes().isEmpty());
    QVERIFY(session.ShowAndWait());
    QVERIFY(session.Run(kRead));
}

void GuardedWriteEndTest::unloadWhileItAsksSendsNothing()
{
    const SGuardEdit &e = kGuardEdits[0];
    CCompareSession session(e.page);
    QVERIFY(HasEdit(session, e));
    const QPointer<QDialog> question = Ask(session);
    QVERIFY(question);
    session.Unload();
    QVERIFY(!question);
    QVERIFY(IsLockFree());
    QCOMPARE(Writes(), 0);
    QVERIFY(Changes().isEmpty());
}

// The write runs to its end, as a flow does; nobody hears of it.
void GuardedWriteEndTest::resetWhileItWritesEndsWithoutAWord()
{
    const SGuardEdit &e = kGuardEdits[1];
    CCompareSession session(e.page);
    QVERIFY(HasEdit(session, e));
    QDialog *question = Ask(session);
    QVERIFY(question);
    CBoxWatcher boxes;
    VondSim_Hold(kWriteCall);
    Answer(question, "m_write");
    QVERIFY(VondSim_WaitUntilHeld(kWriteCall, 20000) != 0);
    QVERIFY(!session.IsAnyButtonOn());
    session->ResetPlugin();
    VondSim_Release(kWriteCall);
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
    QVERIFY(boxes.Seen().isEmpty());
    QVERIFY(IsLockFree());
    QCOMPARE(Changes(), OneChange(e));
    QVERIFY(session.ShowAndWait());
    QVERIFY(session.Run(kRead));
}

void GuardedWriteEndTest::unloadWhileItWritesEndsTheWrite()
{
    const SGuardEdit &e = kGuardEdits[0];
    CCompareSession session(e.page);
    QVERIFY(HasEdit(session, e));
    QDialog *question = Ask(session);
    QVERIFY(question);
    VondSim_Hold(kWriteCall);
    Answer(question, "m_write");
    QVERIFY(VondSim_WaitUntilHeld(kWriteCall, 20000) != 0);
    session.Unload();
    VondSim_Release(kWriteCall);
    QThreadPool::globalInstance()->waitForDone();
    QVERIFY(IsLockFree());
    QCOMPARE(Changes(), OneChange(e));
}

void GuardedWriteEndTest::keysAloneCancelByReturn()
{
    const SGuardEdit &e = kGuardEdits[1];
    CCompareSession session(e.page);
    QVERIFY(HasEdit(session, e));
    QApplication::setActiveWindow(session.Window());
    QTest::keyClick(session.Window()->focusWidget(), Qt::Key_G, Qt::AltModifier);
    QVERIFY(WaitUntil([&] { return QApplication::activeModalWidget() != nullptr; }));
    QWidget *question = QApplication::activeModalWidget();
    QApplication::setActiveWindow(question);
    QTest::keyClick(question->focusWidget() ? question->focusWidget() : question, Qt::Key_Return);
    QVERIFY(WaitForStatus(session, "Guarded write cancelled. Nothing was sent."));
    QCOMPARE(Writes(), 0);
}

QUORLIN_TEST_CLASS(GuardedWriteEndTest)
#include "GuardedWriteEndTest.moc"
