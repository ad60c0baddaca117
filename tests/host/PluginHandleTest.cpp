// Loading of plug-ins: the good one is followed, the wrong ones are refused with clear words.
#include "Host/PluginHandle.h"

#include <QPointer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include "HostTestFiles.h"
#include "tests/common/TestClass.h"

class PluginHandleTest : public QObject
{
    Q_OBJECT

private slots:
    void LoadsAPluginByItsInterface();
    void RefusesWrongFiles_data();
    void RefusesWrongFiles();
    void RefusesAFileThatIsNoPlugin();
    void RefusesAFolder();
    void FollowsTheActivationSignal();
    void FollowsTheBusySignal();
    void DeletesTheRootObjectWithItself();
};

void PluginHandleTest::LoadsAPluginByItsInterface()
{
    CPluginHandle plugin;
    QString error;
    QVERIFY2(plugin.Load(FakePlugin("FakeTool"), error), qPrintable(error));
    QCOMPARE(plugin.Tool().GetPluginName(), QString("Fake tool"));
    QCOMPARE(plugin.File(), FakePlugin("FakeTool"));
    QCOMPARE(plugin.MetaData().value("className").toString(), QString("CFakeTool"));
    QCOMPARE(plugin.IsActivated(), false);
    QCOMPARE(plugin.IsBusy(), false);
}

void PluginHandleTest::RefusesWrongFiles_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("words");

    QTest::newRow("missing") << FakePlugin("NoSuchTool") << "There is no plug-in file";
    QTest::newRow("other interface") << FakePlugin("OtherInterfaceTool")
                                     << "it has \"com.halvane.Vond.OtherPlugin\", this host needs "
                                        "\"com.halvane.Vond.VondToolPlugin\"";
    QTest::newRow("right id, no interface")
        << FakePlugin("CastlessTool") << "doesn't offer VondPluginInterface";
    QTest::newRow("no signals") << FakePlugin("SignallessTool") << "lacks a signal";
}

void PluginHandleTest::RefusesWrongFiles()
{
    QFETCH(QString, file);
    QFETCH(QString, words);
    CPluginHandle plugin;
    QString error;
    // Qt warns of a connection by name that can't be made; that is how the lack is found out.
    if (file.contains("Signalless"))
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression("No such signal .*Activated"));
    QCOMPARE(plugin.Load(file, error), false);
    QVERIFY2(error.contains(words) && error.contains(file), qPrintable(error));
}

void PluginHandleTest::RefusesAFileThatIsNoPlugin()
{
    QTemporaryDir folder;
    QFile file(folder.filePath("libText.so"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("This is a text.\n") > 0);
    file.close();
    CPluginHandle plugin;
    QString error;
    QCOMPARE(plugin.Load(file.fileName(), error), false);
    QVERIFY2(error.contains("is no Qt plug-in"), qPrintable(error));
}

void PluginHandleTest::RefusesAFolder()
{
    CPluginHandle plugin;
    QString error;
    QCOMPARE(plugin.Load(QDir::tempPath(), error), false);
    QVERIFY2(error.contains("There is no plug-in file"), qPrintable(error));
}

void PluginHandleTest::FollowsTheActivationSignal()
{
    CPluginHandle plugin;
    QString error;
    QVERIFY2(plugin.Load(FakePlugin("FakeTool"), error), qPrintable(error));
    QSignalSpy spy(&plugin, &CPluginHandle::Signal_Activated);
    plugin.Tool().ShowPlugin();
    QCOMPARE(spy.takeFirst(), QVariantList({"Fake tool", true}));
    QCOMPARE(plugin.IsActivated(), true);
    plugin.Tool().HidePlugin();
    QCOMPARE(spy.takeFirst(), QVariantList({"Fake tool", false}));
    QCOMPARE(plugin.IsActivated(), false);
}

void PluginHandleTest::FollowsTheBusySignal()
{
    CPluginHandle plugin;
    QString error;
    QVERIFY2(plugin.Load(FakePlugin("FakeTool"), error), qPrintable(error));
    QSignalSpy spy(&plugin, &CPluginHandle::Signal_Busy);
    plugin.Tool().Slot_PluginIsBusy(true);
    QCOMPARE(spy.takeFirst(), QVariantList({"Fake tool", true}));
    QCOMPARE(plugin.IsBusy(), true);
    plugin.Tool().Slot_PluginIsBusy(false);
    QCOMPARE(plugin.IsBusy(), false);
}

void PluginHandleTest::DeletesTheRootObjectWithItself()
{
    auto plugin = std::make_unique<CPluginHandle>();
    QString error;
    QVERIFY2(plugin->Load(FakePlugin("FakeTool"), error), qPrintable(error));
    const QPointer<QObject> root = plugin->RootObject();
    QVERIFY(root);
    plugin->Tool().ShowPlugin();
    plugin.reset();
    QVERIFY(!root);
}

QUORLIN_TEST_CLASS(PluginHandleTest)
#include "PluginHandleTest.moc"
