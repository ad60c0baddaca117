// A host that calls exit() while a job is with the DUT: the job ends on its own thread, after the
// objects that exit() destroys are gone, and the process ends well. What the sanitizer build has to
// say is the other half.
//
// No test framework: the end of the process is the test.
#include <cstdlib>

#include <QApplication>
#include <QThreadPool>
#include <QtTest>

#include "Simulator/VondSim.h"
#include "tests/common/PluginSession.h"
#include "tests/common/WaitUntil.h"
#include "tests/device/ContRxProfiles.h"

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    // A pool that the host used first is destroyed after everything that the tool made.
    QThreadPool::globalInstance()->start([] {});
    auto *session = new CPluginSession(Type1Profile());
    if (!session->ShowAndWait())
        return 2;
    VondSim_AddFault(R"({"function": "VOND_MMRf_ContRxV7_r", "kind": "delay", "ms": 400})");
    session->Press("m_start");
    if (session->busy != QVector<bool>{true})
        return 3;
    // The request makes a job that makes the call.
    WaitUntil([] { return QThreadPool::globalInstance()->activeThreadCount() == 0; }, 100);
    std::exit(0);
}
