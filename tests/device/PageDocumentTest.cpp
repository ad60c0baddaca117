// The way of a page's document: who prints it, who parses it, and on which thread. Objects pass
// between page and core; the text of an answer is made on the pool, once.
#include <memory>

#include <QApplication>
#include <QComboBox>
#include <QPushButton>
#include <QTableWidget>
#include <QThreadPool>
#include <QTimer>
#include <QtTest>

#include "Model/JsonPath.h"
#include "Model/ModelResources.h"
#include "Model/ModelText.h"
#include "Simulator/VondSim.h"
#include "View/Rx/NrRsrpNormalDockWidgetV7.h"
#include "View/Rx/NrRssiDockWidgetV7.h"
#include "View/Rx/NrRxPathlossDockWidgetV7.h"
#include "View/Tx/NrAptProfileDockWidgetV7.h"
#include "View/Tx/NrSingleToneTxDockWidgetV7.h"
#include "tests/common/WaitUntil.h"

namespace {

constexpr char kReadCall[] = "VOND_MMRf_GetCalDataV7_r";
constexpr uint32_t kLongMs = 20000;  // ends a broken test; never waited for in a good one
constexpr char kCouplerLoss[] = "calDataIf_data_group11_memberProperty_couplerLossHigh";

// What was printed and parsed since this object was made, the document's log apart, which is off.
class CTextWatch
{
public:
    QPair<int, int> Here() const { return Since(m_here, ModelTextCountHere()); }
    QPair<int, int> Elsewhere() const
    {
        const auto all = Since(m_all, ModelTextCountInAll());
        return {all.first - Here().first, all.second - Here().second};
    }

private:
    // Printed, parsed.
    static QPair<int, int> Since(const SModelTextCount &then, const SModelTextCount &now)
    {
        return {now.printed - then.printed, now.parsed - then.parsed};
    }

    const SModelTextCount m_here = ModelTextCountHere();
    const SModelTextCount m_all = ModelTextCountInAll();
};

const QPair<int, int> kNothing{0, 0};
const QPair<int, int> kOnce{1, 1};

// A page on the simulated DUT with its document in it.
template <typename Page>
class CShown : public Page
{
public:
    CShown() : Page(nullptr)
    {
        QObject::connect(this, &Page::Signal_UpdateStatus,
                         [this](const QString &text) { m_status = text; });
        this->resize(1000, 700);
        this->show();
    }
    bool IsReady()
    {
        return WaitUntil([this] { return this->m_modelReady; }) && EndJobs();
    }
    bool PressAndWait(const char *button, const QString &status)
    {
        m_status.clear();
        Button(button)->click();
        return WaitUntil([&] { return m_status == status; }) && EndJobs();
    }
    QPushButton *Button(const char *name) const
    {
        return this->template findChild<QPushButton *>(name);
    }
    QComboBox *Selector(const QString &member) const
    {
        return this->template findChild<QComboBox *>("calDataIf_config_group1_memberProperty_" +
                                                     member);
    }
    using Page::m_dataModel;
    using Page::PackageDocument;

    // What the pool still does, such as the document of a next page, is not of the next request.
    static bool EndJobs() { return QThreadPool::globalInstance()->waitForDone(kLongMs); }

private:
    QString m_status;
};

// Goes to a selector, as a user does, and takes the next entry.
void ChooseNext(QComboBox *selector)
{
    selector->setFocus();
    QTest::keyClick(selector,
                    selector->currentIndex() + 1 < selector->count() ? Qt::Key_Down : Qt::Key_Up);
}

template <typename Page>
void ReadAndChoose(const QStringList &selectors)
{
    CShown<Page> page;
    QVERIFY(page.IsReady());
    {
        const CTextWatch texts;
        QVERIFY(page.PressAndWait("m_btnUpload", "Read data from target successfully."));
        QCOMPARE(texts.Here(), kNothing);
        QCOMPARE(texts.Elsewhere(), kOnce);
    }
    for (const QString &name : selectors) {
        QComboBox *selector = page.Selector(name);
        QVERIFY2(selector->count() > 1, qPrintable(name));
        const QString before = selector->currentText();
        const CTextWatch texts;
        ChooseNext(selector);
        QVERIFY(selector->currentText() != before);
        QCOMPARE(texts.Here(), kNothing);
        QCOMPARE(texts.Elsewhere(), kNothing);
    }
    const CTextWatch texts;
    QVERIFY(page.PressAndWait("m_btnDownload", "Write data to target successfully."));
    QCOMPARE(texts.Here(), kNothing);
    QCOMPARE(texts.Elsewhere(), kOnce);
}

}  // namespace

class PageDocumentTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        RegisterOperationResultTypes();
        InitModelResources();
    }
    void init() { VondSim_Reset(); }
    void cleanup() { QVERIFY(QThreadPool::globalInstance()->waitForDone(kLongMs)); }

    void documentOfANewPageIsParsedOnThePool();
    void pathLossFlowsAndSelectionsLeaveTheGuiThreadAlone();
    void aptFlowsAndSelectionsLeaveTheGuiThreadAlone();
    void reportsLeaveTheGuiThreadAlone();
    void readingsLeaveTheGuiThreadAlone();
    void rssiLeavesTheGuiThreadAlone();
    void answerIsWhatMemoryHolds();
    void hundredsOfSelectionsLeaveTheDocumentAsItWas();
    void pageMayGoWhileAReadFills();
};

void PageDocumentTest::documentOfANewPageIsParsedOnThePool()
{
    const CTextWatch texts;
    CShown<CNrAptProfileDockWidgetV7> page;
    QVERIFY(page.IsReady());
    QCOMPARE(texts.Here(), kNothing);
}

void PageDocumentTest::pathLossFlowsAndSelectionsLeaveTheGuiThreadAlone()
{
    ReadAndChoose<CNrRxPathlossDockWidgetV7>({"powerMode", "freqIdx", "path", "type2GainModeIdx"});
}

void PageDocumentTest::aptFlowsAndSelectionsLeaveTheGuiThreadAlone()
{
    ReadAndChoose<CNrAptProfileDockWidgetV7>({"txRoute"});
}

void PageDocumentTest::reportsLeaveTheGuiThreadAlone()
{
    CShown<CNrRsrpNormalDockWidgetV7> page;
    QVERIFY(page.IsReady());
    const CTextWatch texts;
    QVERIFY(page.PressAndWait("m_start", "Rsrp start..."));
    page.findChild<QTimer *>("reportTimer")->stop();
    const auto *table =
        page.findChild<QTableWidget *>("cmdIf_response_group1_memberProperty_RSRP0");
    for (int fetch = 0; fetch < 3; ++fetch) {
        const int before = table->rowCount();
        QVERIFY(QMetaObject::invokeMethod(&page, "Slot_RsrpRxTimerTimeout"));
        QVERIFY(WaitUntil([&] { return table->rowCount() > before; }));
    }
    QVERIFY(page.PressAndWait("m_stop", "Rsrp stop."));
    QCOMPARE(texts.Here(), kNothing);
}

void PageDocumentTest::readingsLeaveTheGuiThreadAlone()
{
    CShown<CNrSingleToneTxDockWidgetV7> page;
    QVERIFY(page.IsReady());
    QVERIFY(page.PressAndWait("m_start", "Single Tone Tx start..."));
    const CTextWatch texts;
    QPushButton *const read = page.Button("m_btnFetchPd");
    read->click();
    QVERIFY(WaitUntil([&] { return read->isEnabled(); }));
    QVERIFY(page.EndJobs());
    QCOMPARE(texts.Here(), kNothing);
    QCOMPARE(texts.Elsewhere(), kOnce);
    QVERIFY(page.PressAndWait("m_stop", "Single Tone Tx stop."));
}

void PageDocumentTest::rssiLeavesTheGuiThreadAlone()
{
    CShown<CNrRssiDockWidgetV7> page;
    QVERIFY(page.IsReady());
    const CTextWatch texts;
    QVERIFY(page.PressAndWait("m_start", "Fetch RSSI done"));
    QCOMPARE(texts.Here(), kNothing);
    QCOMPARE(texts.Elsewhere(), kOnce);
}

// By object and by text alike.
void PageDocumentTest::answerIsWhatMemoryHolds()
{
    CShown<CNrAptProfileDockWidgetV7> page;
    QVERIFY(page.IsReady());
    QVERIFY(page.PressAndWait("m_btnUpload", "Read data from target successfully."));
    const QJsonObject packaged = page.PackageDocument();
    CQuorlinViewCtrl ctrl;
    const std::string text = ctrl.GetAptCalibrationData(ModelToText(packaged));
    const QJsonObject shown = ctrl.GetCalibrationData(ECalItem::Apt, packaged);
    QCOMPARE(ModelToText(shown), text);
    const QString path = QString(kCouplerLoss).replace('_', '.') + ".trait.defaultValue";
    QVERIFY(!GetJsonValueConst(shown, path).toString().isEmpty());
    QCOMPARE(GetJsonValueConst(page.m_dataModel, path), GetJsonValueConst(shown, path));
}

// Among them are those at which the page makes its document anew.
void PageDocumentTest::hundredsOfSelectionsLeaveTheDocumentAsItWas()
{
    CShown<CNrRxPathlossDockWidgetV7> page;
    QVERIFY(page.IsReady());
    QVERIFY(page.PressAndWait("m_btnUpload", "Read data from target successfully."));
    QComboBox *const mode = page.Selector("powerMode");
    ChooseNext(mode);
    ChooseNext(mode);
    const std::string before = ModelToText(page.PackageDocument());
    const CTextWatch texts;
    for (int i = 0; i < 300; ++i)
        ChooseNext(mode);
    QCOMPARE(texts.Here(), kNothing);
    QVERIFY(ModelToText(page.PackageDocument()) == before);
}

void PageDocumentTest::pageMayGoWhileAReadFills()
{
    auto page = std::make_unique<CShown<CNrRxPathlossDockWidgetV7>>();
    QVERIFY(page->IsReady());
    VondSim_Hold(kReadCall);
    page->Button("m_btnUpload")->click();
    QVERIFY(VondSim_WaitUntilHeld(kReadCall, kLongMs));
    page.reset();
    VondSim_Release(kReadCall);
    QVERIFY(QThreadPool::globalInstance()->waitForDone(kLongMs));
    QCoreApplication::processEvents();

    // The answer waits for the GUI thread.
    page = std::make_unique<CShown<CNrRxPathlossDockWidgetV7>>();
    QVERIFY(page->IsReady());
    page->Button("m_btnUpload")->click();
    QVERIFY(QThreadPool::globalInstance()->waitForDone(kLongMs));
    page.reset();
    QCoreApplication::processEvents();

    // The answer is shown, and the page has not gone on yet.
    page = std::make_unique<CShown<CNrRxPathlossDockWidgetV7>>();
    QVERIFY(page->IsReady());
    QVERIFY(QMetaObject::invokeMethod(page.get(), "Slot_PathLossUploadFromFlashDone",
                                      Q_ARG(SEachItemOperationResult, SEachItemOperationResult()),
                                      Q_ARG(std::string, std::string())));
    page.reset();
    QCoreApplication::processEvents();
}

QTEST_MAIN(PageDocumentTest)
#include "PageDocumentTest.moc"
