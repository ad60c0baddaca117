// The recipes, carried out on an example and tried on the simulated DUT: a page in the real form, a
// member that costs no line of code, a target operation.
#include <QtTest>

#include "Operations/link/TargetLink.h"
#include "View/form/QuorlinForm.h"
#include "Vond/VondCore.h"
#include "tests/common/BoxWatcher.h"
#include "tests/common/GoodCommands.h"
#include "tests/common/PoolJobs.h"
#include "tests/common/SimJournal.h"
#include "tests/common/WaitUntil.h"
#include "tests/recipes/ExamplePageTypes.h"
#include "tests/recipes/ExamplePdValue.h"
#include "tests/recipes/NrExampleDockWidgetV7.h"

namespace {

constexpr uint32_t kHandle = 7;
constexpr char kRead[] = "VOND_MMRf_GetPdValueV7_r";
constexpr int16_t kTxPower = 2560;  // 10 dBm
// The detector reads a little off: its slope, its offset, and chance.
constexpr double kDetectorDb = 1;

// The tool form with the example page in it, and the simulated DUT behind it.
class CExampleTool
{
public:
    CExampleTool() : m_form(&RegisterExamplePageTypes)
    {
        VondSim_Reset();
        VondSim_SetProfile("handset");
        SetTargetHandle(kHandle);
        m_form.show();
        m_form.Slot_GetInitPageListDone({"CNrExampleDockWidgetV7"});
        EndPoolJobs();
        VondSim_ClearJournal();
    }

    CNrExampleDockWidgetV7 *Page() { return Find<CNrExampleDockWidgetV7>({}); }
    template <typename Widget>
    Widget *Find(const QString &name)
    {
        return m_form.findChild<Widget *>(name);
    }
    template <typename Widget>
    Widget *Request(const QString &member)
    {
        return Find<Widget>("cmdIf_request_group1_memberProperty_" + member);
    }
    QString Result()
    {
        return Find<QLabel>("cmdIf_response_group1_memberProperty_pdValue")->text();
    }
    QString Status() { return m_form.statusBar()->currentMessage(); }
    bool Start(const QString &status)
    {
        QTest::mouseClick(Find<QPushButton>("m_start"), Qt::LeftButton);
        return WaitUntil([&] { return Status() == status; });
    }

private:
    CQuorlinForm m_form;
};

// A tone on the DUT, for the detector to read.
bool Transmit()
{
    SMMSingleToneCmdV7 command = SingleToneCommand();
    command.txPowerValue = kTxPower;
    return VOND_MMRf_SingleToneTxV7_r(kHandle, kTargetTimeoutMs, &command) == VOND_SUCCESS;
}

// What the DUT's detector read last, as the page words it.
QString LastReading(double correction = 0)
{
    int16_t value = 0;
    const QByteArray answer = JournalOf(kRead).last().answer;
    std::copy_n(answer.constData(), sizeof value, reinterpret_cast<char *>(&value));
    return QString::number(value / 256.0 + correction, 'f', 2);
}

}  // namespace

class RecipeTest : public QObject
{
    Q_OBJECT

private slots:
    void pageComesUpInTheToolFormWithItsDocument();
    void startSendsTheMembersToTheTargetAndShowsTheAnswer();
    void failureOfTheTargetIsShownInTheResultBox();
    void addedMemberIsShownEnabledAndSentByTheDocumentAlone();
    void operationAnswersWithCodeAndText();
};

void RecipeTest::pageComesUpInTheToolFormWithItsDocument()
{
    CExampleTool tool;
    QCOMPARE(tool.Status(), QString("Init done."));
    QVERIFY(tool.Page()->isVisible());
    QCOMPARE(tool.Page()->windowTitle(), QString("Example"));
    auto *detector = tool.Request<QComboBox>("detector");
    QCOMPARE(detector->count(), 2);
    QCOMPARE(detector->currentText(), QString("1"));
    QCOMPARE(tool.Result(), QString("NA"));
}

void RecipeTest::startSendsTheMembersToTheTargetAndShowsTheAnswer()
{
    CExampleTool tool;
    QVERIFY(Transmit());
    QSignalSpy busy(tool.Page(), SIGNAL(Signal_PluginIsBusy(bool)));
    QVERIFY(tool.Start("Example done."));
    QCOMPARE(CountCalls(kRead), 1);
    const SJournalCall call = JournalOf(kRead)[0];
    QCOMPARE(call.call.handle, kHandle);
    QCOMPARE(call.call.timeoutMs, kTargetTimeoutMs);
    QCOMPARE(call.request, QByteArray("\x01\x00\x00\x00", 4));
    QCOMPARE(tool.Result(), LastReading());
    QVERIFY(qAbs(tool.Result().toDouble() - kTxPower / 256.0) < kDetectorDb);
    QCOMPARE(busy.size(), 2);
    QVERIFY(tool.Find<QPushButton>("m_start")->isEnabled());
}

void RecipeTest::failureOfTheTargetIsShownInTheResultBox()
{
    CExampleTool tool;
    CBoxWatcher boxes;
    QVERIFY(tool.Start("Example failed."));
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QCOMPARE(boxes.Seen()[0].title, QString("Example failed"));
    QCOMPARE(boxes.Seen()[0].informative, QString("Target: nothing is being transmitted"));
    QCOMPARE(tool.Result(), QString("NA"));
}

void RecipeTest::addedMemberIsShownEnabledAndSentByTheDocumentAlone()
{
    CExampleTool tool;
    QVERIFY(Transmit());
    auto *loss = tool.Request<QDoubleSpinBox>("couplerLoss");
    QCOMPARE(tool.Find<QLabel>("cmdIf_request_group1_memberProperty_couplerLoss_caption")->text(),
             QString("Coupler Loss (dB)"));
    QCOMPARE(loss->maximum(), 40.0);
    QCOMPARE(loss->text(), QString("10.00"));
    QVERIFY(!loss->isEnabled());
    tool.Request<QCheckBox>("corrected")->click();
    QVERIFY(loss->isEnabled());
    loss->setValue(12.5);
    QVERIFY(tool.Start("Example done."));
    QCOMPARE(tool.Result(), LastReading(12.5));
    tool.Request<QCheckBox>("corrected")->click();
    QVERIFY(!loss->isEnabled());
}

void RecipeTest::operationAnswersWithCodeAndText()
{
    VondSim_Reset();
    SetTargetHandle(kHandle);
    CExamplePdValue operation;
    int16_t value = 77;
    QCOMPARE(operation.Read(1, value), 3u);
    QCOMPARE(operation.GetErrorMessage(), QString("Target: nothing is being transmitted"));
    QCOMPARE(value, int16_t(77));
    QVERIFY(Transmit());
    QCOMPARE(operation.Read(1, value), 0u);
    QVERIFY(qAbs(value - kTxPower) < kDetectorDb * 256);
}

QTEST_MAIN(RecipeTest)
#include "RecipeTest.moc"
