// Calibration through the view controller: what a page reads, edits, writes, exports and imports.
#include <QtTest>

#include "Model/JsonPath.h"
#include "Model/ModelText.h"
#include "tests/common/SimJournal.h"
#include "tests/common/TestClass.h"
#include "tests/viewcontroller/BusyCore.h"
#include "tests/viewcontroller/SignalSpies.h"

namespace {

using Ctrl = CQuorlinViewCtrl;

constexpr char kBlockInfo[] = "VOND_MMRf_GetCalBlkInfoV7_r";
constexpr uint32_t kLongMs = 20000;  // ends a broken test; never waited for in a good one
constexpr char kShown[] =
    "calDataIf.data.group11.memberProperty.couplerLossHigh.trait.defaultValue";

// The page of a route that packages its coupler loss, or nothing but the route.
std::string AptPage(const char *couplerLoss = nullptr)
{
    QJsonObject page = ModelFromText(GetCore().GetDataModel("APT Profile"));
    InsertJsonObject(page, "calDataIf.config.group1", "memberValue", "txRoute", "1");
    QJsonObject config = GetJsonValueConst(page, "calDataIf.config.group1.memberValue").toObject();
    config["aggBwRegion"] = "BW0";
    ModifyJsonValue(page, "calDataIf.config.group1.memberValue", config, 0);
    if (couplerLoss)
        InsertJsonObject(page, "calDataIf.data.group11", "memberValue", "couplerLossHigh",
                         couplerLoss);
    return ModelToText(page);
}

QString CouplerLoss(const std::string &document)
{
    return GetJsonValueConst(ModelFromText(document), kShown).toString();
}

}  // namespace

class ViewCtrlCalTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void readAnswersWithTheRecordInFlash();
    void writeStoresThePageFirst();
    void exportStoresThePageAndImportAnswersWithIt();
    void saveToAPathThatCantBeWrittenIsAnswered();
    void loadOfAMissingFileIsAnswered();
    void progressIsThatOfTheRequest();
    void answerOfTheOtherItemIsNotTaken();
    void resetInAFlowEndsItsProgress();
    void recordIsGivenAndTakenOnTheCallingThread();

private:
    QTemporaryDir m_folder;
};

void ViewCtrlCalTest::initTestCase()
{
    RegisterOperationResultTypes();
}

void ViewCtrlCalTest::init()
{
    Settle();
    VondSim_Reset();
    VondSim_SetProfile("handset");  // with its flash as it was
    GetCore().ResetTargetCache();
    VondSim_ClearJournal();
}

void ViewCtrlCalTest::readAnswersWithTheRecordInFlash()
{
    Ctrl ctrl;
    const QSignalSpy done(&ctrl, &Ctrl::Signal_AptUploadFromFlashDone);
    ctrl.AptUploadFromFlash(AptPage());
    Settle();
    QCOMPARE(done.size(), 1);
    QCOMPARE(Words(done[0]).value(0), QString("APT Profile|0|"));
    const double db = CouplerLoss(done[0][1].value<std::string>()).toDouble();
    QVERIFY2(db > 20.0 && db < 30.0, qPrintable(QString::number(db)));
}

void ViewCtrlCalTest::writeStoresThePageFirst()
{
    Ctrl ctrl;
    const QSignalSpy written(&ctrl, &Ctrl::Signal_AptDownloadToFlashDone);
    const QSignalSpy read(&ctrl, &Ctrl::Signal_AptUploadFromFlashDone);
    ctrl.AptUploadFromFlash(AptPage());
    Settle();
    ctrl.AptDownloadToFlash(AptPage("3.5"));
    Settle();
    QCOMPARE(written.size(), 1);
    QCOMPARE(Words(written[0]), QStringList("APT Profile|0|"));
    ctrl.SetAptCalibrationData(AptPage("9"));  // in memory alone
    ctrl.AptUploadFromFlash(AptPage());
    Settle();
    QCOMPARE(CouplerLoss(read[1][1].value<std::string>()), QString("3.50000"));
}

void ViewCtrlCalTest::exportStoresThePageAndImportAnswersWithIt()
{
    Ctrl ctrl;
    const QSignalSpy saved(&ctrl, &Ctrl::Signal_AptSaveToFileDone);
    const QSignalSpy loaded(&ctrl, &Ctrl::Signal_AptLoadFromFileDone);
    const QString path = m_folder.filePath(QString::fromUtf8("p\xc3\xa4ge.ini"));
    ctrl.AptUploadFromFlash(AptPage());
    Settle();
    ctrl.AptSaveToFile(AptPage("4.25"), path);
    Settle();
    QCOMPARE(saved.size(), 1);
    QCOMPARE(Words(saved[0]), QStringList("APT Profile|0|"));
    QVERIFY(QFile::exists(path));
    ctrl.SetAptCalibrationData(AptPage("9"));
    ctrl.AptLoadFromFile(AptPage(), path);
    Settle();
    QCOMPARE(loaded.size(), 1);
    QCOMPARE(Words(loaded[0]).value(0), QString("APT Profile|0|"));
    QCOMPARE(CouplerLoss(loaded[0][1].value<std::string>()), QString("4.25000"));
}

void ViewCtrlCalTest::saveToAPathThatCantBeWrittenIsAnswered()
{
    Ctrl ctrl;
    const QSignalSpy saved(&ctrl, &Ctrl::Signal_AptSaveToFileDone);
    ctrl.AptUploadFromFlash(AptPage());
    Settle();
    const QString path = m_folder.filePath("none/apt.ini");
    ctrl.AptSaveToFile(AptPage(), path);
    Settle();
    QCOMPARE(saved.size(), 1);
    const auto result = saved[0][0].value<SEachItemOperationResult>();
    QCOMPARE(result.status, 50);
    QVERIFY2(result.message.endsWith(path + " failed (create file failed)"),
             qPrintable(result.message));
}

void ViewCtrlCalTest::loadOfAMissingFileIsAnswered()
{
    Ctrl ctrl;
    const QSignalSpy loaded(&ctrl, &Ctrl::Signal_PathLossLoadFromFileDone);
    ctrl.PathLossLoadFromFile("{}", m_folder.filePath("missing.ini"));
    Settle();
    QCOMPARE(loaded.size(), 1);
    QCOMPARE(loaded[0][0].value<SEachItemOperationResult>().status, 50);
}

void ViewCtrlCalTest::progressIsThatOfTheRequest()
{
    Ctrl ctrl, other;
    const QSignalSpy progress(&ctrl, &Ctrl::Signal_CalProgress);
    const QSignalSpy ofOther(&other, &Ctrl::Signal_CalProgress);
    ctrl.PathLossUploadFromFlash("{}");
    Settle();
    QVERIFY(progress.size() > 0);
    const QVariantList last = progress.last();
    QCOMPARE(last[1], last[2]);
    QVERIFY(last[0].toInt() > 0);
    QCOMPARE(ofOther.size(), 0);
    const int told = progress.size();
    emit GetCore().Signal_CalProgress("RX PathLoss", 1, 1, 1);  // of nobody's request here
    QCOMPARE(progress.size(), told);
}

void ViewCtrlCalTest::answerOfTheOtherItemIsNotTaken()
{
    Ctrl ctrl;
    const CSignalSpies spies(ctrl);
    const QSignalSpy progress(&ctrl, &Ctrl::Signal_CalProgress);
    const std::string page = AptPage();
    VondSim_Hold(kBlockInfo);
    ctrl.AptUploadFromFlash(page);
    QVERIFY(VondSim_WaitUntilHeld(kBlockInfo, kLongMs));
    emit GetCore().Signal_CalProgress("RX PathLoss", 1, 1, 1);
    emit GetCore().Signal_UploadFromFlashDone(true, {{"RX PathLoss", 0, "of the other"}});
    emit GetCore().Signal_UploadFromFlashDone(true, {});
    emit GetCore().Signal_DownloadToFlashDone(true, {{"APT Profile", 0, "of another flow"}});
    QCoreApplication::processEvents();
    QCOMPARE(spies.Fired().size(), 0);
    QCOMPARE(progress.size(), 0);
    VondSim_Release(kBlockInfo);
    Settle();
    QCOMPARE(spies.Fired().size(), 1);
    QCOMPARE(spies.Fired()[0].arguments.value(0), QString("APT Profile|0|"));
}

void ViewCtrlCalTest::resetInAFlowEndsItsProgress()
{
    Ctrl ctrl;
    const QSignalSpy progress(&ctrl, &Ctrl::Signal_CalProgress);
    const std::string page = AptPage();
    VondSim_Hold(kBlockInfo);
    ctrl.AptUploadFromFlash(page);
    QVERIFY(VondSim_WaitUntilHeld(kBlockInfo, kLongMs));
    ctrl.ResetTargetCache();
    VondSim_Release(kBlockInfo);
    Settle();
    QCOMPARE(progress.size(), 0);
}

void ViewCtrlCalTest::recordIsGivenAndTakenOnTheCallingThread()
{
    Ctrl ctrl;
    const std::string page = AptPage("6.5");
    ctrl.SetAptCalibrationData(page);
    QCOMPARE(CouplerLoss(ctrl.GetAptCalibrationData(page)), QString("6.50000"));
    QCOMPARE(CountCalls(kBlockInfo), 0);

    QJsonObject loss = ModelFromText(GetCore().GetDataModel("RX PathLoss"));
    InsertJsonObject(loss, "calDataIf.config.group1", "memberValue", "route", "1");
    InsertJsonObject(loss, "calDataIf.data.group1", "memberValue", "plOffset",
                     QJsonArray{"2.5", "1"});
    ctrl.SetPathLossCalibrationData(ModelToText(loss));
    const QJsonObject shown = ModelFromText(ctrl.GetPathLossCalibrationData(ModelToText(loss)));
    QCOMPARE(
        GetJsonValueConst(shown, "calDataIf.data.group1.memberProperty.plOffset.trait.defaultValue")
            .toArray()
            .first()
            .toString(),
        QString("2.50000"));
}

QUORLIN_TEST_CLASS(ViewCtrlCalTest)
#include "ViewCtrlCalTest.moc"
