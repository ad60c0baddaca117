// Guarded writes of a calibration page in a test: a page with one edit, the question, the flash file, and a
// folder of the test's own for flash, backups and locks.
//
//   class GuardedWriteTest : public QObject, private CGuardBench { ... void init() { Begin(); } ... };
//   QVERIFY(HasEdit(session, kGuardEdits[0]));
//   QDialog *question = Ask(session);
#pragma once

#include <memory>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QTemporaryDir>
#include <QThreadPool>

#include "tests/device/CompareSession.h"
#include "tests/device/FlashFile.h"

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

inline void AddGuardPages()
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

class CGuardBench
{
protected:
    // Before and behind each test.
    void Begin()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(m_folder->path()).mkdir("run"));
        qputenv("VOND_SIM_FLASH", FlashPath().toUtf8());
        qputenv("XDG_DATA_HOME", Path("data").toUtf8());
        qputenv("XDG_RUNTIME_DIR", Path("run").toUtf8());
    }
    void End()
    {
        VondSim_ClearFaults();
        QThreadPool::globalInstance()->waitForDone();
        QCoreApplication::processEvents();
        QVERIFY(IsLockFree());
        for (const char *name : {"VOND_SIM_FLASH", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
            qunsetenv(name);
    }

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

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<CFlashFile> m_before;
    int m_writes = 0;
};
