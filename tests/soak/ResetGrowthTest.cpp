// A reset gives back what the pages had.
//
// Qt keeps something for each spin box that has gone as long as a style sheet is in force; the form's buttons
// have one, and outlive the pages.
#include <memory>
#include <vector>

#include <QDockWidget>
#include <QThreadPool>
#include <QtTest>

#include "Simulator/VondSim.h"
#include "tests/common/Cells.h"
#include "tests/common/PluginSession.h"
#include "tests/common/TestClass.h"
#include "tests/soak/SoakMemory.h"

namespace {

constexpr int kWarmUps = 2;
constexpr int kResets = 4;
constexpr long long kMostAReset = 150000;  // the log grows; spin boxes would take some 700,000

using Blocks = std::vector<std::unique_ptr<char[]>>;

long long InUse()
{
    return static_cast<long long>(ReadMemory().inUse);
}

// Blocks of all sizes that stay, so that the next pages stand in other places.
Blocks Scatter()
{
    Blocks blocks;
    for (std::size_t i = 0; i < 3000; ++i)
        blocks.push_back(std::make_unique<char[]>(16 + i * 37 % 2000));
    return blocks;
}

}  // namespace

class ResetGrowthTest : public QObject
{
    Q_OBJECT

private slots:
    void pagesThatAreResetLeaveNoMemoryInUse();
};

void ResetGrowthTest::pagesThatAreResetLeaveNoMemoryInUse()
{
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
    QSKIP("a sanitizer has an allocator of its own, which mallinfo2 does not know");
#endif
    CPluginSession session;
    std::vector<Blocks> scattered;
    long long before = 0;  // scattered blocks among it
    for (int reset = 0; reset < kWarmUps + kResets; ++reset) {
        QVERIFY(session.ShowAndWait());
        for (const QDockWidget *page : session.Window()->findChildren<QDockWidget *>())
            MakeAllEditors(page);
        const long long withPages = InUse();
        scattered.push_back(Scatter());
        before += InUse() - withPages;
        session->ResetPlugin();
        QThreadPool::globalInstance()->waitForDone();
        QCoreApplication::processEvents();
        VondSim_ClearJournal();
        if (reset + 1 == kWarmUps)
            before = InUse();
    }
    const long long growth = InUse() - before;
    QVERIFY2(growth < kResets * kMostAReset, qPrintable(QString("%1 bytes").arg(growth)));
}

QUORLIN_TEST_CLASS(ResetGrowthTest)
#include "ResetGrowthTest.moc"
