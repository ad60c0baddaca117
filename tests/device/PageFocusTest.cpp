// Where the focus is while a request runs and after it: where it was, or on nothing.
#include <QAbstractButton>
#include <QApplication>
#include <QDoubleSpinBox>
#include <QPushButton>

#include "tests/common/BoxWatcher.h"
#include "tests/common/SimJournal.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"
#include "tests/device/RequestPages.h"

namespace {

QWidget *Focus(const CPluginSession &session)
{
    return session.Window()->focusWidget();
}

bool Stays(const CPluginSession &session, const QWidget *before)
{
    return !Focus(session) || Focus(session) == before;
}

// As the keyboard does: to what has the focus, or to the window.
void PressSpace(const CPluginSession &session)
{
    QTest::keyClick(Focus(session) ? Focus(session) : session.Window(), Qt::Key_Space);
}

// Alt and the letter of a button's text.
void PressMnemonic(const CPluginSession &session, const char *button)
{
    const QString text = session.Find<QAbstractButton>(button)->text();
    const char letter = text[text.indexOf('&') + 1].toUpper().toLatin1();
    QWidget *focus = Focus(session) ? Focus(session) : session.Window();
    QTest::keyClick(focus, Qt::Key(letter), Qt::AltModifier);
}

QVector<double> Losses(const CPluginSession &session)
{
    QVector<double> losses;
    for (const QDoubleSpinBox *cell : session.Page()->findChildren<QDoubleSpinBox *>())
        losses.append(cell->value());
    return losses;
}

}  // namespace

class PageFocusTest : public QObject
{
    Q_OBJECT

private slots:
    void focusStaysOnTheButtonOrOnNothing_data() { AddRequests(); }
    void focusStaysOnTheButtonOrOnNothing();
    void spaceBehindAReadChangesNoCell_data();
    void spaceBehindAReadChangesNoCell();
    void editorKeepsTheFocusBehindAMnemonic();
    void nothingTakesTheFocusBehindABox();
};

void PageFocusTest::focusStaysOnTheButtonOrOnNothing()
{
    QFETCH(SRequest, request);
    CPluginSession session("handset", 1, request.page);
    QVERIFY(Ready(session, request));
    auto *button = session.Find<QPushButton>(request.button);
    button->setFocus(Qt::TabFocusReason);
    QCOMPARE(Focus(session), button);
    VondSim_Hold(request.call);
    const int calls = Journal().size();
    PressSpace(session);
    QVERIFY(VondSim_WaitUntilHeld(request.call, 20000));
    QVERIFY(Stays(session, button));
    PressSpace(session);
    VondSim_Release(request.call);
    QVERIFY(session.WaitForStatus(request.done));
    QVERIFY(Stays(session, button));
    QVERIFY(Journal().size() > calls);
    // What is on again has the focus, and its Space.
    QCOMPARE(Focus(session), button->isEnabled() ? button : nullptr);
}

void PageFocusTest::spaceBehindAReadChangesNoCell_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<bool>("byMnemonic");
    for (const char *page : {"CNrRxPathlossDockWidgetV7", "CNrAptProfileDockWidgetV7"}) {
        QTest::addRow("%s, Space on Read", page) << page << false;
        QTest::addRow("%s, Alt+R", page) << page << true;
    }
}

void PageFocusTest::spaceBehindAReadChangesNoCell()
{
    QFETCH(QString, page);
    QFETCH(bool, byMnemonic);
    CPluginSession session("handset", 1, page);
    QVERIFY(session.ShowAndWait());
    const auto read = [&] {
        if (byMnemonic)
            PressMnemonic(session, "m_btnUpload");
        else
            PressSpace(session);
    };
    session.Find<QPushButton>("m_btnUpload")->setFocus(Qt::TabFocusReason);
    read();
    QVERIFY(session.WaitForStatus("Read data from target successfully."));
    const QVector<double> losses = Losses(session);
    const int reads = CountCalls("VOND_MMRf_GetCalDataV7_r");
    PressSpace(session);  // reads once more, and no more than that
    QVERIFY(WaitUntil([&] {
        return CountCalls("VOND_MMRf_GetCalDataV7_r") == 2 * reads && session.busy.size() == 4;
    }));
    QCOMPARE(Losses(session), losses);
}

void PageFocusTest::editorKeepsTheFocusBehindAMnemonic()
{
    CPluginSession session("handset", 1, "CNrRssiDockWidgetV7");
    QVERIFY(session.ShowAndWait());
    auto *editor = session.Find("cmdIf_request_group1_memberProperty_numFreq");
    editor->setFocus(Qt::TabFocusReason);
    PressMnemonic(session, "m_start");
    QVERIFY(session.WaitForStatus("Fetch RSSI done"));
    QCOMPARE(Focus(session), editor);
}

// The window is active again when a box has gone; Qt looks for something to have the focus then.
void PageFocusTest::nothingTakesTheFocusBehindABox()
{
    CPluginSession session("handset", 1, "CNrSingleToneTxDockWidgetV7");
    QVERIFY(session.ShowAndWait());
    session.Press("m_start");
    QVERIFY(session.WaitForStatus("Single Tone Tx start..."));
    QVERIFY(!Focus(session));
    VondSim_AddFault(R"({"function": "VOND_MMRf_GetPdValueV7_r", "kind": "fail", "result": 7})");
    CBoxWatcher boxes;
    PressMnemonic(session, "m_btnFetchPd");
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QApplication::setActiveWindow(session.Window());  // as a desktop does
    QVERIFY(session.Window()->isActiveWindow());
    QVERIFY(!qobject_cast<QAbstractButton *>(Focus(session)));
    PressSpace(session);
    QCOMPARE(QString(VondSim_RunningTest()), QString("SingleToneTx"));
    QCOMPARE(CountCalls("VOND_MMRf_TestStopV7_r"), 0);
}

QUORLIN_TEST_CLASS(PageFocusTest)
#include "PageFocusTest.moc"
