// Settings of a page: saved to a file, loaded from one, and restored at the start.
#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QDoubleSpinBox>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QtTest>

#include "tests/common/BoxWatcher.h"
#include "tests/common/SimJournal.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"
#include "tests/device/CalibrationSession.h"
#include "tests/device/PathLossTables.h"
#include "tests/device/TxPages.h"

namespace {

constexpr char kRssi[] = "CNrRssiDockWidgetV7";
const QString kTone = "cmdIf_request_group1_memberProperty_";

void Trigger(const CPluginSession &session, const QString &action)
{
    for (QAction *own : session.Page()->actions() + session.Window()->actions()) {
        if (own->objectName() == action)
            own->trigger();
    }
}

void SetTone(const CPluginSession &session)
{
    session.Find<QComboBox>(kTone + "band")->setCurrentText("n78");
    session.Find<QDoubleSpinBox>(kTone + "txPowerValue")->setValue(-3.5);
    auto *frequency = session.Find<QSpinBox>(kTone + "ulFrequency");
    frequency->setValue(frequency->minimum() + 30);
}

bool Save(const CPluginSession &session, const QString &file)
{
    AnswerFileDialog(file);
    Trigger(session, "m_actionSaveSettings");
    return session.WaitForStatus(QString("Settings saved to %1.").arg(file));
}

void Load(const CPluginSession &session, const QString &file)
{
    AnswerFileDialog(file);
    Trigger(session, "m_actionLoadSettings");
}

QByteArray StartedWith(CPluginSession &session)
{
    VondSim_ClearJournal();
    session.Press("m_start");
    if (!session.WaitForStatus(Status(kSingleTone, "start...")))
        return {};
    const QVector<SJournalCall> starts = JournalOf(kSingleTone.start);
    session.Press("m_stop");
    return session.WaitForStatus(Status(kSingleTone, "stop.")) ? starts.value(0).request
                                                               : QByteArray();
}

// With ' for ".
QByteArray Json(QByteArray text)
{
    return text.replace('\'', '"');
}

void Put(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

QByteArray BytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

}  // namespace

class PageSettingsTest : public QObject
{
    Q_OBJECT

private slots:
    void loadedSettingsGiveTheSameCommand_data()
    {
        QTest::addColumn<QString>("profile");
        QTest::newRow("handset") << "handset";
        QTest::newRow("largest") << "largest";
    }
    void loadedSettingsGiveTheSameCommand()
    {
        QFETCH(QString, profile);
        const QTemporaryDir folder;
        const QString file = folder.filePath("tone.json");
        QByteArray sent;
        {
            CBoxWatcher boxes;
            CPluginSession session(profile, 1, kSingleTone.className);
            QVERIFY(session.ShowAndWait());
            SetTone(session);
            QVERIFY(Save(session, file));
            sent = StartedWith(session);
            QVERIFY(!sent.isEmpty());
        }
        CBoxWatcher boxes;
        CPluginSession session(profile, 1, kSingleTone.className);
        QVERIFY(session.ShowAndWait());
        QVERIFY(StartedWith(session) != sent);
        const int before = boxes.Seen().size();
        Load(session, file);
        QVERIFY(session.WaitForStatus(QString("Settings loaded from %1.").arg(file)));
        QCOMPARE(boxes.Seen().size(), before);
        QCOMPARE(StartedWith(session), sent);
    }

    void theFileHasTheFormThatPlansTake()
    {
        const QTemporaryDir folder;
        CPluginSession session("handset", 1, kRssi);
        QVERIFY(session.ShowAndWait());
        QVERIFY(Save(session, folder.filePath("rssi.json")));
        const QJsonObject root =
            QJsonDocument::fromJson(BytesOf(folder.filePath("rssi.json"))).object();
        QCOMPARE(root["version"].toInt(), 1);
        QCOMPARE(root["page"].toString(), QString("RSSI"));
        const QJsonObject request = root["request"].toObject();
        QCOMPARE(request["group1"].toObject()["band"].toString(),
                 session.Find<QComboBox>(kTone + "band")->currentText());
        QCOMPARE(request["group2"].toObject()["dlFrequency"].toArray().size(), 5);
    }

    void whatIsRefusedIsListedAndTheRestIsSet()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath("odd.json");
        Put(file, Json("{'version': 1, 'page': 'Single Tone TX', 'request': {'group1': { 'band': "
                       "'n999', 'txPowerValue': '7.00', 'noSuchMember': '1'}}}"));
        CPluginSession session("handset", 1, kSingleTone.className);
        QVERIFY(session.ShowAndWait());
        CBoxWatcher boxes;
        Load(session, file);
        QVERIFY(session.WaitForStatus("Not all settings were loaded."));
        QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
        QCOMPARE(boxes.Seen()[0].text,
                 QString("group1.noSuchMember: this page has no such setting\n"
                         "Band: n999 is not possible here, it stays n1"));
        QCOMPARE(session.Find<QDoubleSpinBox>(kTone + "txPowerValue")->value(), 7.0);
    }

    void aFileThatIsNotForThisPageChangesNothing_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("words");
        QTest::newRow("another page")
            << Json("{'version': 1, 'page': 'RSSI', 'request': {'group1': {'band': 'n78'}}}")
            << "These are settings of the page RSSI.";
        QTest::newRow("a newer version") << Json("{'version': 2, 'page': 'Single Tone TX', "
                                                 "'request': {'group1': {'band': 'n78'}}}")
                                         << "They are of version 2; this tool knows version 1.";
        QTest::newRow("cut") << Json("{'version': 1, 'page': 'Single To")
                             << "It is no JSON: unterminated string, at byte 34.";
        QTest::newRow("numbers")
            << Json("{'version': 1, 'page': 'Single Tone TX', 'request': {'group1': {'band': 78}}}")
            << "group1.band is no text.";
        QTest::newRow("group that is a number")
            << Json("{'version': 1, 'page': 'Single Tone TX', 'request': {'group1': 7}}")
            << "group1 is no text.";
        QTest::newRow("list with a number") << Json("{'version': 1, 'page': 'Single Tone TX', "
                                                    "'request': {'group1': {'band': ['n1', 7]}}}")
                                            << "group1.band is no text.";
        QTest::newRow("no version") << Json("{'page': 'Single Tone TX', 'request': {'group1': {}}}")
                                    << "It has no version.";
        QTest::newRow("no page") << Json("{'version': 1, 'request': {'group1': {}}}")
                                 << "It names no page.";
        QTest::newRow("no settings")
            << Json("{'version': 1, 'page': 'Single Tone TX'}") << "It has no settings.";
        QTest::newRow("empty") << QByteArray() << "It is no JSON: illegal value, at byte 0.";
        QTest::newRow("huge") << QByteArray(3 * 1024 * 1024, ' ')
                              << "it has 3 MB, and such a file at most 2";
    }
    void aFileThatIsNotForThisPageChangesNothing()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, words);
        const QTemporaryDir folder;
        const QString file = folder.filePath("file.json");
        Put(file, bytes);
        CPluginSession session("handset", 1, kSingleTone.className);
        QVERIFY(session.ShowAndWait());
        CBoxWatcher boxes;
        Load(session, file);
        QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
        QVERIFY2(boxes.Seen()[0].text.endsWith(words), qPrintable(boxes.Seen()[0].text));
        QCOMPARE(session.Find<QComboBox>(kTone + "band")->currentText(), QString("n1"));
    }

    void settingsThatCannotBeSavedAreToldInABox()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath("none/tone.json");
        CPluginSession session("handset", 1, kSingleTone.className);
        QVERIFY(session.ShowAndWait());
        CBoxWatcher boxes;
        const QString gone = folder.filePath("none");
        QVERIFY(QDir().mkdir(gone));
        AnswerFileDialog(file, [gone](QFileDialog *dialog) {
            QObject::connect(dialog, &QDialog::accepted, [gone] { QDir().rmdir(gone); });
        });
        Trigger(session, "m_actionSaveSettings");
        QVERIFY(session.WaitForStatus("Save settings failed."));
        QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
        QVERIFY2(boxes.Seen()[0].text.startsWith(file + ": "), qPrintable(boxes.Seen()[0].text));
    }

    void aRunningTestKeepsItsSettings()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath("tone.json");
        Put(file, Json("{'version': 1, 'page': 'Single Tone TX', 'request': {'group1': {'band': "
                       "'n78'}}}"));
        CPluginSession session("handset", 1, kSingleTone.className);
        QVERIFY(session.ShowAndWait());
        session.Press("m_start");
        QVERIFY(session.WaitForStatus(Status(kSingleTone, "start...")));
        CBoxWatcher boxes;
        Load(session, file);
        QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
        QCOMPARE(boxes.Seen()[0].text, QString("The page's inputs are off now."));
        QCOMPARE(session.Find<QComboBox>(kTone + "band")->currentText(), QString("n1"));
    }

    void aCalibrationPageHasItsSelectionAlone()
    {
        const QTemporaryDir folder;
        const QString file = folder.filePath("apt.json");
        CPluginSession session("handset", 1, "CNrAptProfileDockWidgetV7");
        QVERIFY(session.ShowAndWait());
        QVERIFY(Save(session, file));
        const QJsonObject root = QJsonDocument::fromJson(BytesOf(file)).object();
        QCOMPARE(root.keys(), (QStringList{"config", "page", "version"}));
        Load(session, file);
        QVERIFY(session.WaitForStatus(QString("Settings loaded from %1.").arg(file)));
    }

    void cellsAreKeptWhenLoadedSettingsChooseOtherData_data()
    {
        QTest::addColumn<bool>("wasAtASelector");
        QTest::newRow("before, when the cell was old") << true;
        QTest::newRow("never") << false;
    }
    void cellsAreKeptWhenLoadedSettingsChooseOtherData()
    {
        QFETCH(bool, wasAtASelector);
        const QTemporaryDir folder;
        const QString file = folder.filePath("lpm.json");
        Put(file, Json("{'version': 1, 'page': 'RX Pathloss', 'config': {'group1': "
                       "{'powerMode': 'LPM', 'route': '2'}}}"));
        CCalibrationSession session(kPathLossPage);
        QVERIFY(session.ShowAndWait());
        QVERIFY(session.Run(kRead));
        if (wasAtASelector)
            session.Selector("route")->setFocus();
        session.Type(kMain, "lna0", 0, 4, "2");
        Load(session, file);
        QVERIFY(session.WaitForStatus(QString("Settings loaded from %1.").arg(file)));
        QCOMPARE(session.Selector("powerMode")->currentText(), QString("LPM"));
        QCOMPARE(session.Selector("route")->currentText(), QString("2"));
        QVERIFY(session.CellText(kMain, "lna0", 0, 4) != "2.00000");
        session.Select("powerMode", "HPM");
        session.Select("route", "1");
        QCOMPARE(session.CellText(kMain, "lna0", 0, 4), QString("2.00000"));
    }

    void theLastSettingsComeBackForWhoWantsThem()
    {
        CBoxWatcher boxes;
        for (const bool isWanted : {true, false}) {
            {
                CPluginSession session("handset", 1, kSingleTone.className);
                QVERIFY(session.ShowAndWait());
                auto *restore = session.Window()->findChild<QAction *>("m_actionRestoreSettings");
                QVERIFY(restore && restore->isCheckable());
                restore->setChecked(isWanted);
                SetTone(session);
            }
            CPluginSession session("handset", 1, kSingleTone.className);
            QVERIFY(session.ShowAndWait());
            QTRY_COMPARE(session.Find<QComboBox>(kTone + "band")->currentText(),
                         QString(isWanted ? "n78" : "n1"));
            for (const auto &box : boxes.Seen())
                QFAIL(qPrintable(box.text));
            QCOMPARE(session.Find<QDoubleSpinBox>(kTone + "txPowerValue")->value(),
                     isWanted ? -3.5 : 23.0);
        }
    }
};

QUORLIN_TEST_CLASS(PageSettingsTest)
#include "PageSettingsTest.moc"
