// Calibration flows of the core: order, results, files, progress.
#include <QTemporaryDir>

#include "Support/CalIniFile.h"
#include "Support/Log.h"
#include "tests/common/LogCapture.h"
#include "tests/controller/core/CoreFixture.h"

namespace {

constexpr char kApt[] = "APT Profile";
constexpr char kPathLoss[] = "RX PathLoss";
constexpr char kGetCalData[] = "VOND_MMRf_GetCalDataV7_r";
constexpr uint32_t kLongMs = 20000;  // ends a broken test; never waited for in a good one

using Results = QVector<SEachItemOperationResult>;
using File = std::shared_ptr<CCalIniFile>;

struct SFlow
{
    void (IRfCoreCalDataOperation::*done)(bool, Results);
    std::function<void(CNrCore &, File, QStringList)> start;
    bool usesFile;
    const char *countLog, *itemLog, *endLog;
};
const SFlow kUpload{
    &IRfCoreCalDataOperation::Signal_UploadFromFlashDone,
    [](CNrCore &core, File, QStringList items) { core.UploadFromFlashStart(items); },
    false,
    "[CNrCore]UploadFromFlashInternal---itemCount",
    "UploadFromFlashInternal()",
    "[CNrCore]UploadFromFlashInternal()--"};
const SFlow kDownload{
    &IRfCoreCalDataOperation::Signal_DownloadToFlashDone,
    [](CNrCore &core, File, QStringList items) { core.DownloadToFlashStart(items); },
    false,
    "[CNrCore] DownloadToFlashInternal--- itemCount",
    "[CNrCore] DownloadToFlashInternal()",
    "[CNrCore]DownloadToFlashInternal()--"};
const SFlow kLoad{&IRfCoreCalDataOperation::Signal_LoadFromFileDone,
                  [](CNrCore &core, File file, QStringList items) {
                      core.LoadFromFileStart(std::move(file), items);
                  },
                  true,
                  "[CNrCore] LoadFromFileInternal--- itemCount",
                  "[CNrCore] LoadFromFileInternal()",
                  "[CNrCore] LoadFromFileInternal---"};
const SFlow kSave{&IRfCoreCalDataOperation::Signal_SaveToFileDone,
                  [](CNrCore &core, File file, QStringList items) {
                      core.SaveToFileStart(std::move(file), items);
                  },
                  true,
                  "[CNrCore] SaveToFileInternal--- itemCount",
                  "[CNrCore] SaveToFileInternal()",
                  "[CNrCore] SaveToFileInternal---"};
const SFlow *const kFlows[] = {&kUpload, &kDownload, &kLoad, &kSave};

class CStoppableCore : public CTestCore
{
public:
    using CNrCore::m_isStop;
};

class CoreCalFlowTest : public CCoreTest
{
protected:
    struct SAnswer
    {
        int count = 0;
        bool isAllSuccess = false;
        Results results;
        QVector<int> finished;
        bool hadFile = false;
    };

    File FileAt(const QString &name) const
    {
        return std::make_shared<CCalIniFile>(m_folder.filePath(name).toStdWString().c_str());
    }
    SAnswer RunOn(CNrCore &core, const SFlow &flow, const QStringList &items, File file = nullptr)
    {
        SAnswer answer;
        const std::weak_ptr<CCalIniFile> held = file;
        QObject context;
        QObject::connect(
            &core, flow.done, &context,
            [&](bool isAllSuccess, const Results &results) {
                ++answer.count;
                answer.isAllSuccess = isAllSuccess;
                answer.results = results;
                answer.hadFile = !held.expired();
            },
            Qt::DirectConnection);
        QObject::connect(
            &core, &CNrCore::Signal_FinishItemCount, &context,
            [&](int count, const SEachItemOperationResult &result) {
                answer.finished.append(count);
                if (count > 0)
                    answer.results.append(result);
            },
            Qt::DirectConnection);
        Run([&] { flow.start(core, std::move(file), items); });
        EXPECT_EQ(answer.count, 1);
        return answer;
    }
    SAnswer RunFlow(const SFlow &flow, const QStringList &items, File file = nullptr)
    {
        return RunOn(m_core, flow, items, std::move(file));
    }

    QTemporaryDir m_folder;
};

TEST_F(CoreCalFlowTest, EmptyListCountsNothingAndSucceeds)
{
    for (const SFlow *flow : kFlows) {
        const SAnswer answer = RunFlow(*flow, {}, FileAt("any.ini"));
        EXPECT_TRUE(answer.isAllSuccess);
        EXPECT_TRUE(answer.results.isEmpty());
        EXPECT_TRUE(answer.finished.isEmpty());
    }
}

TEST_F(CoreCalFlowTest, ItemsRunInOrderAndAreCounted)
{
    const SAnswer answer = RunFlow(kUpload, {kApt, kPathLoss});
    EXPECT_TRUE(answer.isAllSuccess);
    EXPECT_EQ(answer.finished, QVector<int>({0, 1, 2}));
    ASSERT_EQ(answer.results.size(), 2);
    EXPECT_EQ(answer.results[0].itemName, kApt);
    EXPECT_EQ(answer.results[1].itemName, kPathLoss);
    EXPECT_EQ(answer.results[0].status, 0);
    EXPECT_EQ(answer.results[1].status, 0);
}

// Nothing was read of the path loss, so there is nothing to write.
TEST_F(CoreCalFlowTest, FailingItemGivesFalseAndAResultForEveryItem)
{
    RunFlow(kUpload, {kApt});
    const SAnswer failed = RunFlow(kDownload, {kPathLoss, kApt});
    EXPECT_FALSE(failed.isAllSuccess);
    ASSERT_EQ(failed.results.size(), 2);
    EXPECT_EQ(failed.results[0].status, 2);
    EXPECT_EQ(failed.results[1].status, 0);
}

TEST_F(CoreCalFlowTest, FlowBehindAFailedOneStartsWithoutItsResults)
{
    RunFlow(kUpload, {kApt});
    EXPECT_FALSE(RunFlow(kDownload, {kPathLoss, kApt}).isAllSuccess);
    const SAnswer second = RunFlow(kDownload, {kApt});
    EXPECT_TRUE(second.isAllSuccess);
    ASSERT_EQ(second.results.size(), 1);
    EXPECT_EQ(second.results[0].status, 0);
    EXPECT_EQ(second.results[0].message, "");
}

TEST_F(CoreCalFlowTest, TextOfTheOperationIsTheMessage)
{
    Fault(kGetCalData, 5);
    const SAnswer answer = RunFlow(kUpload, {kApt});
    EXPECT_FALSE(answer.isAllSuccess);
    ASSERT_EQ(answer.results.size(), 1);
    EXPECT_NE(answer.results[0].status, 0);
    EXPECT_FALSE(answer.results[0].message.isEmpty());
    EXPECT_EQ(answer.results[0].message, m_core.GetErrorMessage());
}

TEST_F(CoreCalFlowTest, UnknownItemMovesNothingAndRepeatsTheStatusBefore)
{
    const SAnswer first = RunFlow(kUpload, {"nothing"});
    EXPECT_TRUE(first.isAllSuccess);
    ASSERT_EQ(first.results.size(), 1);
    EXPECT_EQ(first.results[0].status, 0);
    EXPECT_EQ(CountCalls(kGetCalData), 0);
    const SAnswer behind = RunFlow(kDownload, {kApt, "nothing"});
    ASSERT_EQ(behind.results.size(), 2);
    EXPECT_EQ(behind.results[1].status, 2);
}

TEST_F(CoreCalFlowTest, StoppedFlowTellsSoForEachItemThatIsLeft)
{
    CStoppableCore core;
    core.m_isStop = true;
    for (const SFlow *flow : kFlows) {
        const SAnswer answer = RunOn(core, *flow, {kApt, kPathLoss});
        EXPECT_TRUE(answer.finished.isEmpty());
        ASSERT_EQ(answer.results.size(), 2);
        for (const SEachItemOperationResult &result : answer.results) {
            EXPECT_EQ(result.status, 4);
            EXPECT_EQ(result.message, "You stoped the operation.");
        }
    }
    EXPECT_EQ(CountCalls(kGetCalData), 0);
    core.ResetTargetCache();
    EXPECT_EQ(RunOn(core, kUpload, {kApt}).results.value(0).status, 0);
}

TEST_F(CoreCalFlowTest, FileIsLetGoBeforeTheAnswer)
{
    RunFlow(kUpload, {kApt, kPathLoss});
    EXPECT_FALSE(RunFlow(kSave, {kApt, kPathLoss}, FileAt("all.ini")).hadFile);
    EXPECT_FALSE(RunFlow(kLoad, {kApt}, FileAt("all.ini")).hadFile);
    EXPECT_FALSE(RunFlow(kLoad, {kApt}, FileAt("missing.ini")).hadFile);
}

TEST_F(CoreCalFlowTest, FileThatCantBeUsedIsTheItemsFailure)
{
    RunFlow(kUpload, {kApt});
    const QString path = m_folder.filePath("none/cal.ini");
    const SAnswer saved = RunFlow(kSave, {kApt}, FileAt("none/cal.ini"));
    ASSERT_EQ(saved.results.size(), 1);
    EXPECT_EQ(saved.results[0].status, 50);
    EXPECT_TRUE(saved.results[0].message.endsWith(" to " + path + " failed (create file failed)"))
        << qPrintable(saved.results[0].message);
    const SAnswer loaded = RunFlow(kLoad, {kPathLoss, kApt}, FileAt("none/cal.ini"));
    ASSERT_EQ(loaded.results.size(), 2);
    for (const SEachItemOperationResult &result : loaded.results) {
        EXPECT_EQ(result.status, 50);
        EXPECT_TRUE(result.message.endsWith(" from " + path + " failed (load file failed)"))
            << qPrintable(result.message);
    }
    EXPECT_EQ(RunFlow(kLoad, {kApt}, nullptr).results.value(0).status, 50);
}

TEST_F(CoreCalFlowTest, SavedDataLoadsIntoACoreThatHasReadNothing)
{
    RunFlow(kUpload, {kApt, kPathLoss});
    EXPECT_TRUE(RunFlow(kSave, {kApt}, FileAt("apt.ini")).isAllSuccess);
    EXPECT_TRUE(RunFlow(kSave, {kPathLoss}, FileAt("loss.ini")).isAllSuccess);
    CTestCore other;
    EXPECT_TRUE(RunOn(other, kLoad, {kApt}, FileAt("apt.ini")).isAllSuccess);
    EXPECT_TRUE(RunOn(other, kLoad, {kPathLoss}, FileAt("loss.ini")).isAllSuccess);
    EXPECT_TRUE(RunOn(other, kDownload, {kApt, kPathLoss}).isAllSuccess);
    EXPECT_EQ(RunOn(other, kLoad, {kApt}, FileAt("loss.ini")).results.value(0).status, 51);
}

TEST_F(CoreCalFlowTest, ProgressNamesTheItemAndEndsWithAllRoutes)
{
    struct SStep
    {
        QString item;
        int round, done, all;
    };
    QVector<SStep> steps;
    QObject::connect(
        &m_core, &CNrCore::Signal_CalProgress, &m_core,
        [&](const QString &item, int round, int done, int all) {
            steps.append({item, round, done, all});
        },
        Qt::DirectConnection);
    for (const char *item : {kApt, kPathLoss}) {
        for (const SFlow *flow : {&kUpload, &kDownload, &kSave, &kLoad}) {
            steps.clear();
            RunFlow(*flow, {item}, FileAt(QString(item) + ".ini"));
            ASSERT_FALSE(steps.isEmpty());
            for (const SStep &step : steps) {
                EXPECT_EQ(step.item, item);
                EXPECT_EQ(step.round > 0, !flow->usesFile);
                EXPECT_LE(step.done, step.all);
            }
            EXPECT_EQ(steps.last().done, steps.last().all);
        }
    }
}

TEST_F(CoreCalFlowTest, FlowsWaitForTheirTurn)
{
    VondSim_Hold(kContRx);
    m_core.Test("Continuous RX", PackagedText(GoodValues()));
    ASSERT_EQ(VondSim_WaitUntilHeld(kContRx, kLongMs), 1);
    m_core.UploadFromFlashStart({kApt});
    EXPECT_EQ(CountCalls(kGetCalData), 0);
    VondSim_Release(kContRx);
    WaitForPool();
    EXPECT_GT(CountCalls(kGetCalData), 0);
}

TEST_F(CoreCalFlowTest, LogTellsTheFlowItsItemsAndItsEnd)
{
    for (const SFlow *flow : kFlows) {
        const LogCapture log(lcCore());
        RunFlow(*flow, {kApt}, FileAt("log.ini"));
        const QStringList lines = log.Lines(QtDebugMsg);
        EXPECT_TRUE(lines.contains(QString(flow->countLog) + " 1")) << qPrintable(lines.join('\n'));
        EXPECT_TRUE(lines.contains(QString(flow->itemLog) + " \"APT Profile\""))
            << qPrintable(lines.join('\n'));
        EXPECT_TRUE(lines.contains(flow->endLog)) << qPrintable(lines.join('\n'));
    }
}

TEST_F(CoreCalFlowTest, StartsOfTheFlashFlowsAreLogged)
{
    const LogCapture log(lcCore());
    RunFlow(kUpload, {kApt, kPathLoss});
    RunFlow(kDownload, {kApt});
    const QStringList lines = log.Lines(QtDebugMsg);
    for (const char *line :
         {"[CNrCore]UploadFromFlashStart() 2", "[CNrCore]UploadFromFlashStart()--",
          "[CNrCore]DownloadToFlashStart() 1", "[CNrCore]DownloadToFlashStart()--"})
        EXPECT_TRUE(lines.contains(line)) << qPrintable(lines.join('\n'));
}

}  // namespace
