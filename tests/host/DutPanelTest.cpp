// The panel "DUT" of the bench host: every control, by mouse and by keyboard.
#include "Host/dut/DutPanel.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>

#include "PanelCalls.h"
#include "PanelWindow.h"
#include "tests/common/TestClass.h"

namespace {

QString ProfileName()
{
    return ToObject(VondSim_ProfileText()).value("name").toString();
}

}  // namespace

class DutPanelTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_window.reset(); }
    void OffersAllProfilesAndShowsTheOneInPlace();
    void ChoosesAProfileByKeyboard();
    void ChoosesAProfileByMouse();
    void RemembersTheProfile();
    void TakesAProfileFileAndRemembersIt();
    void BrokenProfileFileGetsWordsAndChangesNothing();
    void PlugIsPulledAndPutIn();
    void ResetBringsTheProfileAnew();
    void RadioLineTellsTheRunningTest();
    void RadioLineFollowsThePlug();
    void TellsTheFlashAndRestoresIt();
    void CaptionsNameTheControls();

private:
    QString Text(const char *name) const { return m_window->Find<QLabel>(name)->text(); }
    void Click(const char *button) const
    {
        QTest::mouseClick(m_window->Find<QPushButton>(button), Qt::LeftButton);
    }
    void Type(const char *name, const QString &text) const { m_window->Type(name, text); }
    void Choose(const char *box, const QString &value) const { m_window->Choose(box, value); }

    std::unique_ptr<CPanelWindow> m_window;
};

void DutPanelTest::init()
{
    m_window = std::make_unique<CPanelWindow>("DUT");
    QVERIFY(m_window->IsGood());
    QVERIFY(m_window->Find<CDutPanel>("CDutPanel")->isVisible());
}

void DutPanelTest::OffersAllProfilesAndShowsTheOneInPlace()
{
    const auto *box = m_window->Find<QComboBox>("m_profileChoice");
    for (uint32_t i = 0; const char *name = VondSim_ProfileName(i); ++i)
        QVERIFY2(box->findData(name) >= 0, name);
    QCOMPARE(box->currentText(), QString("handset"));
    QVERIFY2(Text("m_about").startsWith("A handset"), qPrintable(Text("m_about")));
}

void DutPanelTest::ChoosesAProfileByKeyboard()
{
    QSignalSpy changed(m_window->Find<CDutPanel>("CDutPanel"), &CDutPanel::Signal_DutChanged);
    QVERIFY(!m_window->Find<QLabel>("m_dutHint")->isVisible());
    auto *box = m_window->Find<QComboBox>("m_profileChoice");
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Down);
    QCOMPARE(box->currentText(), QString(VondSim_ProfileName(1)));
    QCOMPARE(ProfileName(), QString(VondSim_ProfileName(1)));
    QCOMPARE(changed.count(), 1);
    QVERIFY(m_window->Find<QLabel>("m_dutHint")->isVisible());
}

void DutPanelTest::ChoosesAProfileByMouse()
{
    auto *box = m_window->Find<QComboBox>("m_profileChoice");
    QTest::mouseClick(box, Qt::LeftButton);
    QVERIFY(box->view()->isVisible());
    const QModelIndex index = box->model()->index(box->findData("largest"), 0);
    box->view()->scrollTo(index);
    const QPoint at = box->view()->visualRect(index).center();
    QTest::mouseMove(box->view()->viewport(), at);
    // The popup takes a quick release for that of the click that has opened it.
    QTest::qWait(QApplication::doubleClickInterval());
    QTest::mouseClick(box->view()->viewport(), Qt::LeftButton, {}, at);
    QCOMPARE(ProfileName(), QString("largest"));
    QVERIFY(m_window->Find<QComboBox>("m_band")->count() > 20);
}

void DutPanelTest::RemembersTheProfile()
{
    QCOMPARE(CDutPanel::RememberedProfile(), QString());
    Choose("m_profileChoice", "c2k");
    QCOMPARE(CDutPanel::RememberedProfile(), QString("c2k"));
}

void DutPanelTest::TakesAProfileFileAndRemembersIt()
{
    const QString path = m_window->File("own.json");
    QVERIFY(WriteText(path, "{'name': 'own', 'base': 'handset', 'about': 'My own.'}"));
    CFileBoxes boxes(path);
    Click("m_profileFile");
    QTRY_COMPARE(boxes.Count(), 1);
    QCOMPARE(ProfileName(), QString("own"));
    QCOMPARE(Text("m_about"), QString("My own."));
    QCOMPARE(m_window->Find<QComboBox>("m_profileChoice")->currentText(), QString("own.json"));
    // The bands are those of the base.
    QVERIFY(m_window->Find<QComboBox>("m_band")->findData("n78") > 0);
    QCOMPARE(CDutPanel::RememberedProfile(), path);
    m_window->Open("DUT");
    QVERIFY(m_window->Find<QComboBox>("m_profileChoice")->findData(path) > 0);
    QFile::remove(path);
    QCOMPARE(CDutPanel::RememberedProfile(), QString());
}

void DutPanelTest::BrokenProfileFileGetsWordsAndChangesNothing()
{
    QVERIFY(StartSingleTone());
    const QString path = m_window->File("broken.json");
    QVERIFY(WriteText(path, "{'name': 'broken', 'base': 'handset', 'bnads': []}"));
    CFileBoxes boxes(path);
    Click("m_profileFile");
    QTRY_VERIFY(m_window->Find<QLabel>("m_dutMessage")->isVisible());
    QVERIFY2(Text("m_dutMessage").startsWith("The profile can't be used: ") &&
                 Text("m_dutMessage").contains("bnads"),
             qPrintable(Text("m_dutMessage")));
    QCOMPARE(ProfileName(), QString("handset"));
    QCOMPARE(QString(VondSim_RunningTest()), QString("SingleToneTx"));
    QCOMPARE(VondSim_IsPlugged(), 1);
    QCOMPARE(m_window->Find<QComboBox>("m_profileChoice")->currentText(), QString("handset"));
}

void DutPanelTest::PlugIsPulledAndPutIn()
{
    auto *box = m_window->Find<QCheckBox>("m_plugged");
    QVERIFY(box->isChecked());
    QTest::mouseClick(box, Qt::LeftButton, {}, {8, box->height() / 2});
    QCOMPARE(VondSim_IsPlugged(), 0);
    QTest::keyClick(box, Qt::Key_Space);
    QCOMPARE(VondSim_IsPlugged(), 1);
}

void DutPanelTest::ResetBringsTheProfileAnew()
{
    QVERIFY(StartSingleTone());
    Type("m_level", "-80");
    VondSim_FailNextCall(0);
    VondSim_SetScenario("weak-cell");
    Click("m_resetDut");
    QCOMPARE(QString(VondSim_RunningTest()), QString());
    QCOMPARE(VondSim_FaultCount(), 0u);
    QCOMPARE(CopiedText(&VondSim_GetScenarioText), QByteArray());
    QCOMPARE(Radio().value("levelDbm").toObject().value("default").toDouble(), -65.0);
    QCOMPARE(ProfileName(), QString("handset"));
    QCOMPARE(Text("m_radio"), QString("Radio: idle"));
    VondSim_FailNextCall(0);
    QTest::keyClick(m_window->Find<QPushButton>("m_resetDut"), Qt::Key_Space);
    QCOMPARE(VondSim_FaultCount(), 0u);
}

void DutPanelTest::RadioLineTellsTheRunningTest()
{
    QCOMPARE(Text("m_radio"), QString("Radio: idle"));
    QCOMPARE(Text("m_running"), QString());
    QVERIFY(StartSingleTone());
    QTRY_COMPARE(Text("m_radio"), QString("Radio: Single Tone TX, n41, 2593.000 MHz, 10 dBm"));
    QVERIFY2(Text("m_running").startsWith("Running for 0:0"), qPrintable(Text("m_running")));
    QVERIFY2(Text("m_running").contains(", route 9, "), qPrintable(Text("m_running")));
    QVERIFY2(Text("m_running").endsWith(" dBm at the connector"), qPrintable(Text("m_running")));
    VOND_MMRf_TestStopV7_r(kHandle, kTimeoutMs, 1);
    QTRY_COMPARE(Text("m_radio"), QString("Radio: idle"));
    QCOMPARE(Text("m_running"), QString());
    QVERIFY(StartRsrp(RsrpForcedCommand()));
    QTRY_VERIFY2(Text("m_radio").startsWith("Radio: RSRP, n1, "), qPrintable(Text("m_radio")));
    QTRY_VERIFY2(Text("m_running").startsWith("Running for 0:01"), qPrintable(Text("m_running")));
}

void DutPanelTest::RadioLineFollowsThePlug()
{
    VondSim_SetPlugged(0);
    QTRY_COMPARE(Text("m_radio"), QString("Radio: no DUT is plugged in"));
    QVERIFY(!m_window->Find<QCheckBox>("m_plugged")->isChecked());
}

void DutPanelTest::TellsTheFlashAndRestoresIt()
{
    QVERIFY2(Text("m_flashFile").startsWith("No file: "), qPrintable(Text("m_flashFile")));
    QVERIFY2(Text("m_flashSummary").endsWith(" kB: factory data"),
             qPrintable(Text("m_flashSummary")));
    const auto *table = m_window->Find<QTableView>("m_flash");
    QCOMPARE(table->model()->rowCount(), static_cast<int>(VondSim_FlashRecordCount()));

    // An entry of no blocks empties its record.
    auto request = std::make_unique<SMMSetCalDataReqV7>();
    auto answer = std::make_unique<SMMSetCalDataCnfV7>();
    request->radioKind = 1;
    request->version = 1;
    request->type1Count = 1;
    request->type1[0].route = 1;
    QCOMPARE(VOND_MMRf_SetCalDataV7_r(kHandle, kTimeoutMs, request.get(), answer.get()), 0);
    QTRY_VERIFY2(Text("m_flashSummary").endsWith(" kB: 1 changed"),
                 qPrintable(Text("m_flashSummary")));
    QCOMPARE(table->model()->index(0, CFlashModel::eState).data().toString(), QString("changed"));
    Click("m_restoreFlash");
    QVERIFY2(Text("m_flashSummary").endsWith(" kB: factory data"),
             qPrintable(Text("m_flashSummary")));
}

// What a screen reader says of each control, and the letter that leads there.
void DutPanelTest::CaptionsNameTheControls()
{
    const auto *panel = m_window->Find<CDutPanel>("CDutPanel");
    QSet<QKeySequence> letters;
    for (const QString host : {"Q", "S", "H", "D", "E", "R", "P"})
        letters << QKeySequence("Alt+" + host);
    int count = letters.size();
    for (const QWidget *widget : panel->findChildren<QWidget *>()) {
        if (!widget->objectName().startsWith("m_") || qobject_cast<const QGroupBox *>(widget))
            continue;
        const auto *label = qobject_cast<const QLabel *>(widget);
        const auto *button = qobject_cast<const QAbstractButton *>(widget);
        QVERIFY2(label || button || !widget->accessibleName().isEmpty(),
                 qPrintable(widget->objectName()));
        const QKeySequence letter =
            QKeySequence::mnemonic(button  ? button->text()
                                   : label ? (label->buddy() ? label->text() : QString())
                                           : QString());
        if (letter.isEmpty())
            continue;
        letters << letter;
        QVERIFY2(letters.size() == ++count, qPrintable(widget->objectName()));
    }
    QVERIFY(count > 14);
}

QUORLIN_TEST_CLASS(DutPanelTest)
#include "DutPanelTest.moc"
