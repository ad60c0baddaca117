// The window of the bench host with the tool on the simulated DUT: its pages, and what it tells of the radio.
#include <dlfcn.h>

#include <QAbstractButton>
#include <QLabel>
#include <QPushButton>
#include <QStatusBar>
#include <QTabWidget>
#include <QTest>

#include "Host/BenchHost.h"
#include "Host/SimulatedDut.h"
#include "Host/ToolWindow.h"
#include "HostTestFiles.h"
#include "tests/common/TestClass.h"

class HostPagesTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void HasThePagesOfTheSimulatedDut();
    void TellsTheRadioAsToolAndDutKnowIt();
    void TellsTheRadioWhileACallIsHeld();
    void KnowsThatNoDutIsPluggedIn();
    void ProfileIsThatOfTheDut();

private:
    QString Text(const char *name) const { return m_host->findChild<QLabel *>(name)->text(); }
    bool IsShown(const char *name) const { return m_host->findChild<QLabel *>(name)->isVisible(); }
    void ShowTool();
    QAbstractButton *PageButton(const char *name) const;
    void Press(const char *button);

    std::unique_ptr<CPluginHandle> m_plugin;
    std::unique_ptr<CSimulatedDut> m_dut;
    std::unique_ptr<CBenchHost> m_host;
    CToolWindow m_tool;
};

namespace {

constexpr char kContRx[] = "VOND_MMRf_ContRxV7_r";

// A function of VondSim.h that a host doesn't need.
template <class Function>
Function GateCall(const char *name)
{
    void *library = dlopen("libVondCore.so", RTLD_NOW | RTLD_NOLOAD);
    return reinterpret_cast<Function>(dlsym(library, name));
}

}  // namespace

void HostPagesTest::init()
{
    m_plugin = std::make_unique<CPluginHandle>();
    QString error;
    QVERIFY2(m_plugin->Load(BuiltFile("plugins/libQuorlinRf.so"), error), qPrintable(error));
    m_dut = std::make_unique<CSimulatedDut>();
    QVERIFY(m_dut->IsThere());
    (*m_dut)->Reset();
    m_host = std::make_unique<CBenchHost>(*m_plugin);
    m_host->show();
}

void HostPagesTest::cleanup()
{
    m_host.reset();
    if (m_plugin)
        m_plugin->Tool().ResetPlugin();  // the tool's memory of the DUT outlives it
    m_dut.reset();
    m_plugin.reset();
}

void HostPagesTest::ShowTool()
{
    m_host->ShowTool();
    QTRY_COMPARE_WITH_TIMEOUT(FindToolWindow()->statusBar()->currentMessage(), QString(kPagesReady),
                              60000);
    QVERIFY(m_tool.Attach());
    QVERIFY(m_tool.RaisePage("Continuous RX"));
}

QAbstractButton *HostPagesTest::PageButton(const char *name) const
{
    return m_tool.PageButton("Continuous RX", name);
}

void HostPagesTest::Press(const char *name)
{
    QAbstractButton *button = PageButton(name);
    QTRY_VERIFY(button->isVisible() && button->isEnabled());
    QTest::mouseClick(button, Qt::LeftButton);
}

void HostPagesTest::HasThePagesOfTheSimulatedDut()
{
    const auto *pages = m_host->findChild<QTabWidget *>("m_panels");
    QStringList titles;
    for (int i = 0; i < pages->count(); ++i)
        titles << pages->tabText(i);
    QCOMPARE(titles, QStringList({"DUT", "Faults", "Door", "Plug-in"}));
    QCOMPARE(pages->currentIndex(), 0);
}

void HostPagesTest::TellsTheRadioAsToolAndDutKnowIt()
{
    QCOMPARE(Text("m_toolRadio"), QString("none"));
    QCOMPARE(Text("m_dutRadio"), QString("Radio: idle"));
    QVERIFY(!IsShown("m_dutRadioSign"));
    ShowTool();
    Press("m_start");
    QTRY_VERIFY2(Text("m_toolRadio").startsWith("Continuous RX"), qPrintable(Text("m_toolRadio")));
    QTRY_VERIFY2(Text("m_dutRadio").startsWith("Radio: Continuous RX, n"),
                 qPrintable(Text("m_dutRadio")));
    QVERIFY(IsShown("m_toolRadioSign") && IsShown("m_dutRadioSign"));
    QTRY_COMPARE(Text("m_busy"), QString("A test runs"));
    Press("m_stop");
    QTRY_COMPARE(Text("m_dutRadio"), QString("Radio: idle"));
    QTRY_COMPARE(Text("m_toolRadio"), QString("none"));
    QTRY_COMPARE(Text("m_busy"), QString("Idle"));
}

// The window lives on, and goes on asking the DUT, in the middle of a call of the tool.
void HostPagesTest::TellsTheRadioWhileACallIsHeld()
{
    const auto hold = GateCall<decltype(&VondSim_Hold)>("VondSim_Hold");
    const auto release = GateCall<decltype(&VondSim_Release)>("VondSim_Release");
    const auto wait = GateCall<decltype(&VondSim_WaitUntilHeld)>("VondSim_WaitUntilHeld");
    ShowTool();
    hold(kContRx);
    Press("m_start");
    QTRY_COMPARE(wait(kContRx, 0), 1);
    (*m_dut)->SetPlugged(0);
    QTRY_COMPARE(Text("m_dutRadio"), QString("Radio: no DUT is plugged in"));
    QCOMPARE(Text("m_busy"), QString("Working"));
    (*m_dut)->SetPlugged(1);
    QTRY_COMPARE(Text("m_dutRadio"), QString("Radio: idle"));
    release(kContRx);
    QTRY_COMPARE(Text("m_busy"), QString("A test runs"));
    Press("m_stop");
    QTRY_COMPARE(Text("m_busy"), QString("Idle"));
}

void HostPagesTest::KnowsThatNoDutIsPluggedIn()
{
    (*m_dut)->SetPlugged(0);
    QCOMPARE(m_host->Query().isSupport, false);
    QCOMPARE(
        Text("m_hint"),
        QString("No DUT is plugged in. Plug it in on the page DUT, then press Reset and Query."));
    (*m_dut)->SetPlugged(1);
    QTest::mouseClick(m_host->findChild<QPushButton *>("m_reset"), Qt::LeftButton);
    QTest::mouseClick(m_host->findChild<QPushButton *>("m_query"), Qt::LeftButton);
    QCOMPARE(Text("m_isSupport"), QString("Yes, now"));
    QVERIFY(!IsShown("m_hint"));
    // The tool has its answer in memory.
    (*m_dut)->SetPlugged(0);
    QCOMPARE(m_host->Query().isSupport, true);
    QVERIFY2(Text("m_hint").startsWith("No DUT is plugged in: the tool goes by what it has read"),
             qPrintable(Text("m_hint")));
    QTest::mouseClick(m_host->findChild<QPushButton *>("m_reset"), Qt::LeftButton);
    QCOMPARE(m_host->Query().isSupport, false);
}

void HostPagesTest::ProfileIsThatOfTheDut()
{
    QCOMPARE((*m_dut)->SetProfile("c2k"), 0);
    m_host->Query();
    QCOMPARE(Text("m_profile"), QString("c2k"));
    QCOMPARE(Text("m_reason"), QString("It is C2K modem now."));
    QVERIFY2(Text("m_hint").startsWith("The DUT's C2K modem is active"),
             qPrintable(Text("m_hint")));
}

QUORLIN_TEST_CLASS(HostPagesTest)
#include "HostPagesTest.moc"
