// Guarded Write of the calibration pages: what it asks, what it sends, and what it says in the end. The
// flash file is the witness.
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QTemporaryDir>
#include <QThreadPool>

#include "tests/common/TestClass.h"
#include "tests/device/CompareSession.h"
#include "tests/device/FlashFile.h"

namespace {

struct SGuardEdit
{
    const char *name;
    const char *page;
    int group;
    const char *member;
    int row;
    int column;
    SFlashPlace place;
    int block;
    int offset;  // in the block
    int toLeft;  // from there to the cell left of it
    const char *stuck;
    const char *field;  // as the outcome names it
};

constexpr int16_t kWritten = 232;  // 7.25 dB
constexpr char kText[] = "7.25";

constexpr SGuardEdit kGuardEdits[] = {
    {.name = "path loss",
     .page = kPathLossPage,
     .group = 2,
     .member = "lna0",
     .row = 1,
     .column = 3,
     .place = {eFlashType1, 1, 0},
     .block = 0,
     .offset = offsetof(SMMType1PathlossBlockV7, loss) +
               (3 * kVondType1LossPairs + 1) * sizeof(SMMLossPair) + offsetof(SMMLossPair, hpm),
     .toLeft = -kVondType1LossPairs * int(sizeof(SMMLossPair)),
     .stuck = R"({"kind": "stuck", "record": "type1", "route": 1, "block": 1,
                  "field": "loss[3][1].hpm"})",
     .field = "loss[3][1].hpm"},
    {.name = "APT",
     .page = kAptPage,
     .group = 7,
     .member = "paHighPaGain",
     .row = 2,
     .column = 5,
     .place = {eFlashApt, 1, 20000},
     .block = 0,
     .offset = offsetof(SAptBlock, pa) + 2 * sizeof(SAptPaPart) + offsetof(SAptPaPart, paGain) + 10,
     .toLeft = -2,
     .stuck = R"({"kind": "stuck", "record": "apt", "route": 1, "bandwidth": 20000, "block": 1,
                  "field": "pa[2].paGain[5]"})",
     .field = "paGain[2][5]"},
};

void AddGuardPages()
{
    QTest::addColumn<int>("edit");
    for (int i = 0; i < int(std::size(kGuardEdits)); ++i)
        QTest::newRow(kGuardEdits[i].name) << i;
}

// The lock of the DUT with the session's handle, in a file description of its own: as another program.
class COtherWriter
{
public:
    explicit COtherWriter(const QString &folder)
        : m_file(
              ::open(qPrintable(folder + "/quorlin-1.lock"), O_RDWR | O_CREAT | O_CLOEXEC, 0600)),
          m_isHolder(m_file >= 0 && ::flock(m_file, LOCK_EX | LOCK_NB) == 0)
    {
        const char holder[] = "other-bench (process 4711)\n";
        if (m_isHolder && ::write(m_file, holder, sizeof holder - 1) < 0)
            qWarning("the holder is not told");
    }
    ~COtherWriter()
    {
        if (m_file >= 0)
            ::close(m_file);
    }
    COtherWriter(const COtherWriter &) = delete;
    COtherWriter &operator=(const COtherWriter &) = delete;

    bool IsHolder() const { return m_isHolder; }

private:
    const int m_file;
    const bool m_isHolder;
};

}  // namespace

class GuardedWriteTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

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
    void resetWhileItAsksSendsNothing();
    void unloadWhileItAsksSendsNothing();
    void resetWhileItWritesEndsWithoutAWord();
    void unloadWhileItWritesEndsTheWrite();
    void keysAloneCancelByReturn();

private:
    QString Path(const char *name) const { return m_folder->filePath(name); }
    QString FlashPath() const { return Path("dut.flash"); }
    CFlashFile Flash() const { return CFlashFile(FlashPath()); }
    bool IsLockFree() const { return COtherWriter(Path("run")).IsHolder(); }
    QStringList Backups() const
    {
        return QDir(Path("data/quorlin-rf/backups")).entryList(QDir::Files, QDir::Name);
    }

    // The page with the DUT's data and one edit.
    bool HasEdit(CCompareSession &session, const SGuardEdit &edit)
    {
        if (!session.ShowAndWait() || !session.Run(kRead) || !session.Run(kWrite))
            return false;
        m_before = std::make_unique<CFlashFile>(FlashPath());
        session.Type(edit.group, edit.member, edit.row, edit.column, kText);
        m_writes = CountCalls(kWriteCall);
        return !m_before->records.isEmpty();
    }
    // The open question; null when it does not come.
    QDialog *Ask(CCompareSession &session)
    {
        session.Press("m_btnGuardedWrite");
        QDialog *question = nullptr;
        WaitUntil([&] {
            question = session.Window()->findChild<QDialog *>("CGuardedWriteDialog");
            return question != nullptr && question->isVisible();
        });
        return question;
    }
    static void Answer(QDialog *question, const char *button)
    {
        QTest::mouseClick(question->findChild<QPushButton *>(button), Qt::LeftButton);
    }
    bool WaitForStatus(const CCompareSession &session, const char *text) const
    {
        return WaitUntil([&] { return session.IsIdle() && session.StatusBar() == text; });
    }
    QStringList Changes() const { return m_before->ChangesTo(Flash()); }
    int Writes() const { return CountCalls(kWriteCall) - m_writes; }
    static QStringList OneChange(const SGuardEdit &edit)
    {
        return {FlashWord(edit.place, edit.block, edit.offset, kWritten)};
    }

    static QString Neighbour(const SGuardEdit &edit)
    {
        return FlashWord(edit.place, edit.block, edit.offset + edit.toLeft, kWritten);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<CFlashFile> m_before;
    int m_writes = 0;
};

void GuardedWriteTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_folder->path()).mkdir("run"));
    qputenv("VOND_SIM_FLASH", FlashPath().toUtf8());
    qputenv("XDG_DATA_HOME", Path("data").toUtf8());
    qputenv("XDG_RUNTIME_DIR", Path("run").toUtf8());
}

void GuardedWriteTest::cleanup()
{
    VondSim_ClearFaults();
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
    QVERIFY(IsLockFree());
    for (const char *name : {"VOND_SIM_FLASH", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
        qunsetenv(name);
}

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

void GuardedWriteTest::resetWhileItAsksSendsNothing()
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

void GuardedWriteTest::unloadWhileItAsksSendsNothing()
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
void GuardedWriteTest::resetWhileItWritesEndsWithoutAWord()
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

void GuardedWriteTest::unloadWhileItWritesEndsTheWrite()
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

void GuardedWriteTest::keysAloneCancelByReturn()
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

QUORLIN_TEST_CLASS(GuardedWriteTest)
#include "GuardedWriteTest.moc"
