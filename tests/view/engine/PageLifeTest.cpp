// The life of a page: first show, the walks, what they leave alone.
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMainWindow>
#include <QMouseEvent>
#include <QPointer>
#include <QSignalSpy>
#include <QtTest>

#include "Model/ModelText.h"
#include "Support/Log.h"
#include "tests/common/LogCapture.h"
#include "tests/common/TestClass.h"
#include "tests/view/engine/TestPage.h"

namespace {

const char kBand[] = "request.group1.band";
const char kBandMember[] =
    "{'trait':{'dataType':'list','value':['n1','n78'],'defaultValue':'n78'}}";
const char kResult[] = "response.group1.result";
const char kResultMember[] = "{'trait':{'dataType':'label','defaultValue':'NA'}}";

CTestDocument Document()
{
    return CTestDocument().Member(kBand, kBandMember).Member(kResult, kResultMember);
}

class CSubclassedBox : public QComboBox
{
    Q_OBJECT
public:
    using QComboBox::QComboBox;
};

}  // namespace

class CPageLifeTest : public QObject
{
    Q_OBJECT

private slots:
    void hiddenPageNeverAsksForItsModel()
    {
        CTestPage page(Document());
        QCoreApplication::processEvents();
        QCOMPARE(page.m_requests, 0);
        page.show();
        QCOMPARE(page.m_requests, 1);
    }

    void secondShowDoesNothing()
    {
        CTestPage page(Document());
        QSignalSpy done(&page, &CTestPage::Signal_InitDone);
        auto *band = page.Add<QComboBox>(kBand);
        page.Init();
        band->setCurrentText("n1");
        page.hide();
        page.show();
        QCOMPARE(page.m_requests, 1);
        QCOMPARE(done.size(), 1);
        QCOMPARE(band->currentText(), QString("n1"));
    }

    void firstShowTellsTheStatusBarAndStylesThePage()
    {
        CTestPage page(Document());
        page.m_answersAtOnce = false;
        QSignalSpy status(&page, &CTestPage::Signal_UpdateStatus);
        LogCapture log(lcEngine());
        page.show();
        QCOMPARE(status.size(), 1);
        QCOMPARE(status[0][0].toString(), QString("Start Init: Test page"));
        QCOMPARE(status[0][1].toInt(), 0);
        QCOMPARE(page.styleSheet(), QString("QGroupBox::title { color: rgb(32, 81, 124);}"));
        const QString hyphens(75, '-');
        QCOMPARE(log.Debug(),
                 (QStringList{hyphens, " Start Init the page:  \"Test page\"", hyphens}));
    }

    void pageIsReadyOnceTheModelHasCome()
    {
        CTestPage page(Document());
        page.m_answersAtOnce = false;
        QSignalSpy done(&page, &CTestPage::Signal_InitDone);
        auto *band = page.Add<QComboBox>(kBand);
        page.show();
        QVERIFY(!page.IsModelReady());
        QCOMPARE(done.size(), 0);
        page.Deliver();
        QVERIFY(page.IsModelReady());
        QCOMPARE(done.size(), 1);
        QCOMPARE(band->currentText(), QString("n78"));
    }

    void emptyModelStringStillEndsInit()
    {
        CTestPage page(Document());
        page.m_text.clear();
        auto *label = page.AddNamed<QLabel>("label_main");
        label->setText("as designed");
        auto *frame = page.AddNamed<QGroupBox>("groupBox_12");
        QSignalSpy done(&page, &CTestPage::Signal_InitDone);
        LogCapture log(lcEngine());
        page.Init();
        QCOMPARE(done.size(), 1);
        QVERIFY(!page.IsModelReady());
        QCOMPARE(label->text(), QString("as designed"));
        QCOMPARE(frame->font().family(), QString("Arial"));
        QCOMPARE(frame->font().weight(), 75);
        QVERIFY(log.Has("Without any INIT info, Data Model is empty STRING format."));
        QCOMPARE(page.PackageMemberValue(), std::string("{}"));
    }

    void packageWithoutAModelIsAnEmptyObjectWhateverThePageHolds()
    {
        CTestPage page(Document());
        page.m_text.clear();
        page.Add<QComboBox>(kBand);
        page.Init();
        LogCapture log(lcEngine());
        QCOMPARE(page.PackageMemberValue(), std::string("{}"));
        QCOMPARE(log.Critical(),
                 QStringList("====== Failed to packge: Cannot get its JSON ojbect ======  "
                             "\"cmdIf_request_group1_memberProperty_band\""));
    }

    void brokenModelTextFailsEachWidgetAndEndsInit()
    {
        CTestPage page(Document());
        page.m_text = "{ this is no JSON";
        page.Add<QComboBox>(kBand);
        page.Add<QLabel>(kResult);
        QSignalSpy done(&page, &CTestPage::Signal_InitDone);
        LogCapture log(lcEngine());
        page.Init();
        QCOMPARE(log.Count("====== Failed processing name: Cannot get the JSON Object====== "), 2);
        QCOMPARE(done.size(), 1);
        QVERIFY(page.IsModelReady());
    }

    void titleAreaSwallowsTheMouseButForTheDoubleClick_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("reachesTheBase");
        QTest::newRow("move") << 173 << false;
        QTest::newRow("press") << 174 << false;
        QTest::newRow("release") << 175 << false;
        QTest::newRow("double click") << int(QEvent::NonClientAreaMouseButtonDblClick) << true;
    }

    void titleAreaSwallowsTheMouseButForTheDoubleClick()
    {
        QFETCH(int, type);
        QFETCH(bool, reachesTheBase);
        QMainWindow window;
        auto *page = new CTestPage(Document(), &window);
        window.addDockWidget(Qt::TopDockWidgetArea, page);
        window.show();
        page->setFloating(true);
        QMouseEvent event(static_cast<QEvent::Type>(type), QPointF(5, 5), QPointF(5, 5),
                          page->pos() + QPointF(5, 5), Qt::LeftButton, Qt::LeftButton,
                          Qt::NoModifier);
        QCOMPARE(QCoreApplication::sendEvent(page, &event), reachesTheBase);
        // The base docks a floating page on a double click.
        QCOMPARE(page->isFloating(), !reachesTheBase);
    }

    void otherEventsReachTheBase()
    {
        CTestPage page(Document());
        page.Init();
        page.setWindowTitle("Renamed");  // QDockWidget renames its action in event()
        QCOMPARE(page.toggleViewAction()->text(), QString("Renamed"));
    }

    void widgetsWithoutAnInterfaceWordAreLeftAlone()
    {
        CTestPage page(Document());
        auto *edit = page.AddNamed<QLineEdit>("request_group1_memberProperty_band");
        edit->setText("mine");
        LogCapture log(lcEngine());
        page.Init();
        page.PackageMemberValue();
        QCOMPARE(log.Critical(), QStringList());
        QVERIFY(log.Debug().contains(" Skip  \"request_group1_memberProperty_band\""));
        QCOMPARE(edit->text(), QString("mine"));
    }

    void subclassOfABoundClassIsNotBound()
    {
        CTestPage page(Document());
        auto *band = page.Add<CSubclassedBox>(kBand);
        LogCapture log(lcEngine());
        page.Init();
        QCOMPARE(band->count(), 0);
        QCOMPARE(log.Critical(), QStringList("---> [Fail][Init][type1]cannot find the mapping of "
                                             "Data Type and QWidget <---"));
    }

    void groupBoxesAreSetInBoldArial()
    {
        CTestPage page(Document());
        auto *frame = page.AddNamed<QGroupBox>("groupBox_12");
        page.Init();
        QCOMPARE(frame->font().family(), QString("Arial"));
        QCOMPARE(frame->font().weight(), 75);
    }

    void updateAndAppendTouchOnlyResultSections()
    {
        CTestPage page(Document());
        auto *band = page.Add<QComboBox>(kBand);
        auto *result = page.Add<QLabel>(kResult);
        auto *caption = page.AddCaption<QLabel>(kResult);
        page.Init();
        caption->setText("kept");
        CTestDocument update = Document();
        update.Member(kBand, "{'trait':{'dataType':'list','defaultValue':'n1'}}");
        update.Member(kResult,
                      "{'caption':'new','trait':{'dataType':'label','defaultValue':'-80'}}");
        page.UpdateWidget(update.Json());
        QCOMPARE(band->currentText(), QString("n78"));
        QCOMPARE(result->text(), QString("-80"));
        QCOMPARE(caption->text(), QString("kept"));
    }

    void modelIsNotReadyWhileAnUpdateIsUnderWay()
    {
        CTestDocument document;
        document.Member("response.group1.mode", kBandMember);
        CTestPage page(document);
        auto *mode = page.Add<QComboBox>("response.group1.mode");
        page.Init();
        QList<bool> ready;
        connect(mode, &QComboBox::currentTextChanged, this,
                [&] { ready.append(page.IsModelReady()); });
        document.Member("response.group1.mode",
                        "{'trait':{'dataType':'list','defaultValue':'n1'}}");
        page.UpdateWidget(document.Json());
        QCOMPARE(ready, QList<bool>{false});
        QVERIFY(page.IsModelReady());
    }

    void updateCannotChangeAGroupType()
    {
        CTestPage page(Document());
        auto *result = page.Add<QLabel>(kResult);
        page.Init();
        CTestDocument update;
        update.Group("response.group1", 9);
        update.Member(kResult, "{'trait':{'dataType':'label','defaultValue':'shown'}}");
        page.UpdateWidget(update.Json());
        QCOMPARE(result->text(), QString("shown"));
        QCOMPARE(page.GetGroupType("cmdIf.response.group1.memberProperty.result"), 9);
    }

    void groupTypeOfAPathWithoutAGroupIsZero()
    {
        CTestPage page(Document());
        page.Init();
        QCOMPARE(page.GetGroupType("cmdIf.request.group1.memberProperty.band"), 1);
        QCOMPARE(page.GetGroupType("cmdIf.request.group1"), 0);
        QCOMPARE(page.GetGroupType("memberProperty.band"), 0);
    }

    void calibrationPageBindsItsOwnInterface()
    {
        CTestDocument document(eInterfaceCalDataIf);
        document.Member("data.group1.gain", kBandMember);
        CTestPage page(document);
        auto *gain = page.Add<QComboBox>("data.group1.gain");
        QCOMPARE(gain->objectName(), QString("calDataIf_data_group1_memberProperty_gain"));
        page.Init();
        QCOMPARE(gain->currentText(), QString("n78"));
        QCOMPARE(page.Package("data.group1.gain").toString(), QString("n78"));
        document.Member("data.group1.gain", "{'trait':{'dataType':'list','defaultValue':'n1'}}");
        page.UpdateWidget(document.Json());
        QCOMPARE(gain->currentText(), QString("n1"));
    }

    void hiddenAndDisabledWidgetsAndResultsArePackaged()
    {
        CTestDocument document = Document();
        document.Member("request.group1.off",
                        "{'defaultEnableStatus':0,'trait':{'dataType':'list','value':['x'],"
                        "'defaultValue':'x'}}");
        CTestPage page(document);
        page.Add<QComboBox>(kBand);
        page.Add<QLabel>(kResult);
        page.Add<QComboBox>("request.group1.off");
        page.Init();
        page.hide();
        QCOMPARE(page.Package(kBand).toString(), QString("n78"));
        QCOMPARE(page.Package(kResult).toString(), QString("NA"));
        QCOMPARE(page.Package("request.group1.off").toString(), QString("x"));
    }

    void longLivedPagePackagesTheSameAfterManyRuns()
    {
        CTestPage page(Document());
        page.Add<QComboBox>(kBand);
        page.Init();
        const std::string first = page.PackageMemberValue();
        for (int i = 0; i < 600; ++i)
            QCOMPARE(page.PackageMemberValue(), first);
    }

    void germanUserStillPackagesAPoint()
    {
        const QLocale before;
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        CTestDocument document;
        document.Member("request.group1.power",
                        "{'trait':{'dataType':'pointRange','value':{'min':-70.5,'max':70.5,"
                        "'decimals':2},'defaultValue':'60.10'}}");
        document.ColumnTable("request.group2", 1)
            .Member("request.group2.loss",
                    "{'trait':{'dataType':'pointRange','value':{'min':0,'max':9999,"
                    "'decimals':2},'defaultValue':['1060.10']}}");
        CTestPage page(document);
        auto *power = page.Add<QDoubleSpinBox>("request.group1.power");
        page.Add<QTableWidget>("request.group2.loss");
        page.Init();
        const QString tip = power->toolTip();
        const QJsonValue scalar = page.Package("request.group1.power");
        const QJsonValue row = page.Package("request.group2.loss");
        QLocale::setDefault(before);
        QCOMPARE(tip, QString("-70.5~70.5"));
        QCOMPARE(scalar.toString(), QString("60.10"));
        QCOMPARE(row.toArray(), QJsonArray{"1060.10"});
    }

    void pageDestroyedWhileItWaitsForItsModelIsGoneForGood()
    {
        QPointer<CTestPage> page = new CTestPage(Document());
        page->m_answersAtOnce = false;
        page->Add<QComboBox>(kBand);
        page->show();
        // The answer of a worker is on its way as the page goes.
        QObject worker;
        connect(
            &worker, &QObject::objectNameChanged, page.data(), [page] { page->Deliver(); },
            Qt::QueuedConnection);
        worker.setObjectName("answer");
        delete page.data();
        QCoreApplication::processEvents();
        QVERIFY(page.isNull());
    }
};

QUORLIN_TEST_CLASS(CPageLifeTest)
#include "PageLifeTest.moc"
