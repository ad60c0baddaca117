// The plug-in at its outermost door: metadata, instance, launch query, show, hide, reset.
#include <dlfcn.h>

#include <QComboBox>
#include <QDockWidget>
#include <QJsonObject>
#include <QtTest>

#include "tests/common/BoxWatcher.h"
#include "tests/common/PluginSession.h"
#include "tests/common/SimJournal.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"

class PluginEntryTest : public QObject
{
    Q_OBJECT

private slots:
    void metadataNamesTheTool();
    void twoInstanceCallsReturnTheSameObject();
    void aDestroyedInstanceIsMadeAnew();
    void castsAnswerForClassInterfaceAndId();
    void pluginNameIsThatOfTheMetadata();
    void launchQueryAnswersForEachProfile_data();
    void launchQueryAnswersForEachProfile();
    void unsupportedDutLeavesNeedsAsTheyAre();
    void supportedDutLeavesTheReasonEmpty();
    void launchQueryNeedsNoWindow();
    void launchQueryTakesTheHostsHandle();
    void handleIsZeroUntilTheHostSetsIt();
    void showHideShowActivatesAndInitsOnce();
    void windowKeepsItsSizeWhileThePagesComeIn();
    void secondShowChangesNothingButTheActivation();
    void resetThenShowRunsTheInitFlowAgain();
    void resetAsksTheTargetAnew();
    void otherGenerationHasNoPages();
    void signalsCarryThePluginName();
    void leftoverOperationsDoNothing();
};

void PluginEntryTest::metadataNamesTheTool()
{
    const QJsonObject data = QPluginLoader(PluginFile()).metaData();
    QCOMPARE(data["IID"].toString(), QString("com.halvane.Vond.VondToolPlugin"));
    QCOMPARE(data["className"].toString(), QString("QuorlinPluginInterface"));
#ifdef QT_NO_DEBUG
    QCOMPARE(data["debug"].toBool(), false);
#endif
    const QJsonObject own = data["MetaData"].toObject();
    QCOMPARE(own["type"].toString(), QString("RF"));
    QCOMPARE(own["name"].toString(), QString("Quorlin RF"));
    QCOMPARE(own["version"].toString(), QString("0.1"));
    QVERIFY(own["dependencies"].isArray());
    QVERIFY(own["dependencies"].toArray().isEmpty());
}

void PluginEntryTest::twoInstanceCallsReturnTheSameObject()
{
    CPluginSession session;
    void *library = dlopen(qPrintable(PluginFile()), RTLD_LAZY);
    QVERIFY(library);
    auto instance = reinterpret_cast<QObject *(*)()>(dlsym(library, "qt_plugin_instance"));
    QVERIFY(instance);
    QCOMPARE(instance(), instance());
    QCOMPARE(instance(), session.Object());
    dlclose(library);
}

void PluginEntryTest::aDestroyedInstanceIsMadeAnew()
{
    CPluginSession first;
    first.Unload();
    CPluginSession second;
    QCOMPARE(second->GetPluginName(), QString("Quorlin RF"));
    QVERIFY(second.ShowAndWait());
}

void PluginEntryTest::castsAnswerForClassInterfaceAndId()
{
    CPluginSession session;
    QObject *object = session.Object();
    auto *interface = dynamic_cast<VondPluginInterface *>(object);
    QVERIFY(interface);
    QCOMPARE(object->qt_metacast("QuorlinPluginInterface"), static_cast<void *>(object));
    QCOMPARE(object->qt_metacast("VondPluginInterface"), static_cast<void *>(interface));
    QCOMPARE(object->qt_metacast("com.halvane.Vond.VondToolPlugin"),
             static_cast<void *>(interface));
}

void PluginEntryTest::pluginNameIsThatOfTheMetadata()
{
    CPluginSession session;
    const QJsonObject data = QPluginLoader(PluginFile()).metaData()["MetaData"].toObject();
    QCOMPARE(session->GetPluginName(), data["name"].toString());
}

void PluginEntryTest::launchQueryAnswersForEachProfile_data()
{
    QTest::addColumn<bool>("isSupport");
    QTest::addColumn<QString>("reason");

    QTest::newRow("handset") << true << "";
    QTest::newRow("largest") << true << "";
    QTest::newRow("gen0") << true << "";
    QTest::newRow("c2k") << false << "It is C2K modem now.";
    QTest::newRow("no-nr") << false << "Not support this RAT from SW multi-RAT world mode ID info.";
    QTest::newRow("unplugged") << false << "Not Support due to without any this RAT info from SW.";
}

void PluginEntryTest::launchQueryAnswersForEachProfile()
{
    QFETCH(bool, isSupport);
    QFETCH(QString, reason);
    CPluginSession session(QTest::currentDataTag());
    const SPluginToolLaunchRequirement answer = session->QueryLaunchRequirement();
    QCOMPARE(answer.isSupport, isSupport);
    QCOMPARE(answer.unsupportReason, reason);
    QCOMPARE(answer.launchNote, QString());
    QCOMPARE(answer.isNeedDb, false);
    QCOMPARE(answer.isNeedDriver, true);
}

void PluginEntryTest::unsupportedDutLeavesNeedsAsTheyAre()
{
    CPluginSession session("c2k");
    const SPluginToolLaunchRequirement answer = session->QueryLaunchRequirement();
    QVERIFY(!answer.isSupport);
    QVERIFY(!answer.isNeedDb);
    QVERIFY(answer.isNeedDriver);
    QVERIFY(!answer.unsupportReason.isEmpty());
}

void PluginEntryTest::supportedDutLeavesTheReasonEmpty()
{
    CPluginSession session("handset");
    QVERIFY(session->QueryLaunchRequirement().isSupport);
    QVERIFY(session->QueryLaunchRequirement().unsupportReason.isEmpty());
}

void PluginEntryTest::launchQueryNeedsNoWindow()
{
    CPluginSession session;
    QVERIFY(session->QueryLaunchRequirement().isSupport);
    QVERIFY(!session.Window()->isVisible());
    QVERIFY(session.activations.isEmpty());
}

void PluginEntryTest::launchQueryTakesTheHostsHandle()
{
    CPluginSession session("handset", 0x1234);
    session->QueryLaunchRequirement();
    for (const SJournalCall &entry : Journal())
        QCOMPARE(entry.call.handle, 0x1234u);
    qApp->setProperty("vondTargetHandle", 77u);
    session->ResetPlugin();
    VondSim_ClearJournal();
    session->QueryLaunchRequirement();
    QVERIFY(!Journal().isEmpty());
    for (const SJournalCall &entry : Journal())
        QCOMPARE(entry.call.handle, 77u);
}

void PluginEntryTest::handleIsZeroUntilTheHostSetsIt()
{
    CPluginSession session;
    qApp->setProperty("vondTargetHandle", QVariant());
    session->ResetPlugin();
    VondSim_ClearJournal();
    session->QueryLaunchRequirement();
    QVERIFY(!Journal().isEmpty());
    for (const SJournalCall &entry : Journal())
        QCOMPARE(entry.call.handle, 0u);
}

void PluginEntryTest::showHideShowActivatesAndInitsOnce()
{
    CPluginSession session;
    QVERIFY(session.ShowAndWait());
    const auto pages = session.Window()->findChildren<QDockWidget *>();
    session->HidePlugin();
    session->ShowPlugin();
    QCOMPARE(session.activations, (QVector<bool>{true, false, true}));
    QVERIFY(session.Window()->isEnabled());
    QCOMPARE(session.Window()->findChildren<QDockWidget *>(), pages);
    QCOMPARE(session.StatusBar(), QString("Init done."));
}

void PluginEntryTest::windowKeepsItsSizeWhileThePagesComeIn()
{
    CPluginSession session;
    QVERIFY(session.ShowAndWait());
    QCoreApplication::processEvents();
    QCOMPARE(session.Window()->size(), QSize(1004, 769));
}

void PluginEntryTest::secondShowChangesNothingButTheActivation()
{
    CPluginSession session;
    QVERIFY(session.ShowAndWait());
    const int calls = Journal().size();
    session->ShowPlugin();
    QCOMPARE(session.activations, (QVector<bool>{true}));
    session->HidePlugin();
    session->ShowPlugin();
    QCOMPARE(session.activations, (QVector<bool>{true, false, true}));
    QCOMPARE(Journal().size(), calls);
    QCOMPARE(session.StatusBar(), QString("Init done."));
}

void PluginEntryTest::resetThenShowRunsTheInitFlowAgain()
{
    CPluginSession session;
    QVERIFY(session.ShowAndWait());
    QPointer<QDockWidget> page = session.Find<QDockWidget>("CNrContRxDockWidgetV7");
    QVERIFY(page);
    session->HidePlugin();
    session->ResetPlugin();
    QVERIFY(!page);
    QVERIFY(session.Window()->findChildren<QDockWidget *>().isEmpty());
    session->ShowPlugin();
    QCOMPARE(session.StatusBar(), QString("Please to wait the init flow..."));
    QVERIFY(!session.Window()->isEnabled());
    QVERIFY(session.WaitForStatus("Init done."));
    QVERIFY(session.Window()->isEnabled());
    QVERIFY(session.Find<QDockWidget>("CNrContRxDockWidgetV7"));
}

void PluginEntryTest::resetAsksTheTargetAnew()
{
    CPluginSession session("handset");
    QVERIFY(session->QueryLaunchRequirement().isSupport);
    VondSim_SetProfile("no-nr");
    QVERIFY(session->QueryLaunchRequirement().isSupport);
    session->ResetPlugin();
    QVERIFY(!session->QueryLaunchRequirement().isSupport);
}

void PluginEntryTest::otherGenerationHasNoPages()
{
    CPluginSession session("gen0");
    CBoxWatcher boxes;
    session->ShowPlugin();
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QCOMPARE(session.StatusBar(), QString("Init failed."));
    QCOMPARE(boxes.Seen()[0].title, QString("Quorlin RF"));
    QVERIFY(boxes.Seen()[0].text.contains("Without any RF page init flow."));
    QCOMPARE(boxes.Seen()[0].icon, int(QMessageBox::Warning));
    QVERIFY(session.Window()->isEnabled());
    QVERIFY(session.Window()->findChildren<QDockWidget *>().isEmpty());
}

void PluginEntryTest::signalsCarryThePluginName()
{
    CPluginSession session;
    QVERIFY(session.ShowAndWait());
    session->HidePlugin();
    QCOMPARE(session.names, QStringList({"Quorlin RF", "Quorlin RF"}));
}

void PluginEntryTest::leftoverOperationsDoNothing()
{
    CPluginSession session;
    QVERIFY(session->HostCheck(1, 2));
    session->HostNotify(3);
    session->HostNotifyAfter(4);
    QCOMPARE(session->GetPluginNote(), QString());
    QVERIFY(session.activations.isEmpty());
    QVERIFY(session.busy.isEmpty());
    QVERIFY(Journal().isEmpty());
}

QUORLIN_TEST_CLASS(PluginEntryTest)
#include "PluginEntryTest.moc"
