// A request in the middle of typing sends what the widgets show afterwards: every request of every
// page, by its mnemonic where it has one, with the focus left in an editor.
//
// What is sent is compared with a second, quiet request of the same page: nothing is being typed
// then, so its bytes are those of what the widgets show.
#include <QCheckBox>
#include <QStatusBar>
#include <QTemporaryDir>

#include "tests/common/TestClass.h"
#include "tests/device/CalibrationSession.h"
#include "tests/device/TxPages.h"

namespace {

struct SAsk
{
    const char *page;
    const char *button;
    Qt::Key mnemonic;  // with Alt; 0: the button is clicked by the program
    const char *call;
    const char *over;  // widget that is on again when the answer has come
};

constexpr Qt::Key kNone = Qt::Key_unknown;

constexpr SAsk kAsks[] = {
    {"CNrContRxDockWidgetV7", "m_start", Qt::Key_S, "VOND_MMRf_ContRxV7_r", "m_stop"},
    {"CNrRssiDockWidgetV7", "m_start", Qt::Key_S, "VOND_MMRf_RssiV7_r", "m_start"},
    {"CNrRssiDockWidgetV7", "m_btnRssiSeqSrhCalculator", kNone, "VOND_MMRf_GainSearchV7_r",
     "m_btnRssiSeqSrhCalculator"},
    {"CNrRsrpForceDockWidgetV7", "m_start", Qt::Key_S, "VOND_NRf_RsrpV7_r", "m_stop"},
    {"CNrRsrpNormalDockWidgetV7", "m_start", Qt::Key_S, "VOND_NRf_RsrpV7_r", "m_stop"},
    {"CNrSingleToneTxDockWidgetV7", "m_start", Qt::Key_S, "VOND_MMRf_SingleToneTxV7_r", "m_stop"},
    {"CNrSingleToneTxDockWidgetV7", "m_btnFetchPd", Qt::Key_F, "VOND_MMRf_GetPdValueV7_r",
     "m_btnFetchPd"},
    {"CNrPuschTxForcedDockWidgetV7", "m_start", Qt::Key_S, "VOND_NRf_PuschTxV7_r", "m_stop"},
    {"CNrPuschTxForcedDockWidgetV7", "m_btnCalculate", kNone, "VOND_NRf_GetDlFreqV7_r",
     "m_btnCalculate"},
    {"CNrPuschTxNormalDockWidgetV7", "m_start", Qt::Key_S, "VOND_NRf_PuschTxV7_r", "m_stop"},
    {"CNrPuschTxNormalDockWidgetV7", "m_btnCalculate", kNone, "VOND_NRf_GetDlFreqV7_r",
     "m_btnCalculate"},
};

constexpr const char *kTexts[] = {"", "-", "-99999", "99999999", "12.", "5"};

QList<QAbstractSpinBox *> Editors(const QWidget *page)
{
    QList<QAbstractSpinBox *> editors;
    for (auto *box : page->findChildren<QAbstractSpinBox *>()) {
        if (box->isVisible() && box->isEnabled() && !box->isReadOnly())
            editors.append(box);
    }
    return editors;
}

void Replace(QAbstractSpinBox *editor, const QString &text)
{
    QApplication::setActiveWindow(editor->window());  // a box may have been in front
    editor->setFocus();
    editor->selectAll();
    QTest::keyClick(editor, Qt::Key_Backspace);
    QTest::keyClicks(editor, text);
}

void Trigger(const CPluginSession &session, const char *button, Qt::Key mnemonic)
{
    if (mnemonic != kNone)
        QTest::keyClick(session.Window(), mnemonic, Qt::AltModifier);
    else
        session.Find<QAbstractButton>(button)->click();
}

// The request of the call that the trigger makes; empty when none came.
QByteArray Ask(const CPluginSession &session, const SAsk &ask, bool byHand)
{
    VondSim_ClearJournal();  // a look at a long one takes long
    CBoxWatcher boxes;
    Trigger(session, ask.button, byHand ? ask.mnemonic : kNone);
    if (!WaitUntil([&] {
            return CountCalls(ask.call) > 0 &&
                   (session.Find(ask.over)->isEnabled() || !boxes.Seen().isEmpty());
        }))
        return {};
    const QByteArray request = JournalOf(ask.call)[0].request;
    auto *stop = session.Find<QAbstractButton>("m_stop");
    auto *start = session.Find<QAbstractButton>("m_start");
    if (stop && WaitUntil([&] { return stop->isEnabled() || start->isEnabled(); }) &&
        stop->isEnabled()) {
        stop->click();
        if (!WaitUntil([&] { return start->isEnabled(); }))
            return {};
    }
    return request;
}

}  // namespace

class CEditUnderWayTest : public QObject
{
    Q_OBJECT

private slots:
    void requestSendsWhatThePageShowsAfterwards_data()
    {
        QTest::addColumn<int>("index");
        for (int i = 0; i < static_cast<int>(std::size(kAsks)); ++i)
            QTest::addRow("%s %s", kAsks[i].page, kAsks[i].button) << i;
    }

    void requestSendsWhatThePageShowsAfterwards()
    {
        QFETCH(int, index);
        const SAsk &ask = kAsks[index];
        CPluginSession session("handset", 1, ask.page);
        QVERIFY(session.ShowAndWait());
        QApplication::setActiveWindow(session.Window());
        if (qstrcmp(ask.button, "m_btnCalculate") == 0) {
            auto *search = session.Find<QCheckBox>("cmdIf_request_group1_memberProperty_enableCsr");
            search->click();
            QVERIFY(session.Find("m_btnCalculate")->isEnabled());
        }
        QByteArray quietBefore = Ask(session, ask, false);
        QVERIFY(!quietBefore.isEmpty());
        for (QAbstractSpinBox *editor : Editors(session.Page())) {
            for (const char *text : kTexts) {
                const QByteArray what = editor->objectName().toLatin1() + " \"" + text + '"';
                const QString before = editor->text();
                Replace(editor, text);
                const bool isUnfinished = !editor->hasAcceptableInput();
                const QByteArray sent = Ask(session, ask, true);
                const QString shown = editor->text();
                if (isUnfinished)
                    QVERIFY2(shown == before, what + " shows " + shown.toLatin1());
                editor->clearFocus();
                QCOMPARE(editor->text(), shown);
                const QByteArray quiet = Ask(session, ask, false);
                QVERIFY2(!sent.isEmpty() && sent == quiet, what);
                if (isUnfinished)
                    QVERIFY2(sent == quietBefore, what);
                quietBefore = quiet;
            }
        }
    }

    void writeStoresWhatThePageShowsAfterwards_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<QString>("editor");
        QTest::addColumn<bool>("isTable");
        const auto name = [](int group, const char *member) {
            return CCalibrationSession::DataName(group, member);
        };
        QTest::newRow("a loss") << kPathLossPage << name(2, "lna0") << true;
        QTest::newRow("an offset") << kPathLossPage << name(1, "plOffset") << true;
        QTest::newRow("a downlink frequency") << kPathLossPage << name(4, "freq") << true;
        QTest::newRow("a coupler loss") << kAptPage << name(11, "couplerLossHigh") << false;
        QTest::newRow("a PA gain") << kAptPage << name(4, "paGain1") << false;
        QTest::newRow("a pRf") << kAptPage << name(3, "pRf1") << false;
        QTest::newRow("a temperature index") << kAptPage << name(11, "normalTempIndex") << false;
        QTest::newRow("an uplink frequency") << kAptPage << name(12, "ulFreq") << true;
    }

    void writeStoresWhatThePageShowsAfterwards()
    {
        QFETCH(QString, page);
        QFETCH(QString, editor);
        QFETCH(bool, isTable);
        CCalibrationSession session(page);
        QVERIFY(session.ShowAndWait());
        QApplication::setActiveWindow(session.Window());
        QVERIFY(session.Run(kRead));
        auto *box = isTable ? qobject_cast<QAbstractSpinBox *>(
                                  session.Find<QTableWidget>(editor)->cellWidget(0, 0))
                            : session.Find<QAbstractSpinBox>(editor);
        QVERIFY(box);
        const auto write = [&session](bool byHand) {
            const int before = CountCalls(kWriteCall);
            if (byHand)
                QTest::keyClick(session.Window(), Qt::Key_W, Qt::AltModifier);
            else
                session.Find<QAbstractButton>("m_btnDownload")->click();
            WaitUntil([&] { return CountCalls(kWriteCall) > before && session.IsIdle(); });
            return Rounds(before);
        };
        for (const char *text : kTexts) {
            const QVector<QByteArray> original = write(false);
            const QString before = box->text();
            Replace(box, text);
            const bool isUnfinished = !box->hasAcceptableInput();
            const QVector<QByteArray> sent = write(true);
            const QString shown = box->text();
            QVERIFY2(!isUnfinished || shown == before, text);
            QVERIFY2(!isUnfinished || sent == original, text);
            box->clearFocus();
            QCOMPARE(box->text(), shown);
            QCOMPARE(write(false), sent);
            QVERIFY(session.Run(kRead));
            QCOMPARE(box->text(), shown);  // what was shown is what the flash holds
        }
    }

    void otherFlowsAndSelectionsLeaveAnEmptiedLossAsItWas_data()
    {
        QTest::addColumn<QString>("request");
        for (const char *request : {"read", "import", "export", "selection"})
            QTest::newRow(request) << QString(request);
    }

    void otherFlowsAndSelectionsLeaveAnEmptiedLossAsItWas()
    {
        QFETCH(QString, request);
        const QTemporaryDir folder;
        const QString file = folder.filePath("loss.ini");
        CCalibrationSession session(kPathLossPage);
        QVERIFY(session.ShowAndWait());
        QApplication::setActiveWindow(session.Window());
        QVERIFY(session.Run(kRead));
        QVERIFY(session.Run(kExport, file));
        QFile exported(file);
        QVERIFY(exported.open(QIODevice::ReadOnly));
        const QByteArray original = exported.readAll();
        exported.close();
        auto *cell = session.Cell(2, "lna0", 0, 0);
        const QString before = cell->text();
        Replace(cell, "");
        if (request == "selection") {
            session.TurnWheel("powerMode", -1);
            session.TurnWheel("powerMode", 1);
        } else {
            const SFlowButton &flow = request == "read"     ? kRead
                                      : request == "import" ? kImport
                                                            : kExport;
            if (request != "read")
                AnswerFileDialog(file);
            session.Window()->statusBar()->clearMessage();
            QTest::keyClick(session.Window(),
                            request == "read"     ? Qt::Key_R
                            : request == "import" ? Qt::Key_I
                                                  : Qt::Key_E,
                            Qt::AltModifier);
            QVERIFY(
                WaitUntil([&] { return session.IsIdle() && session.StatusBar() == flow.done; }));
        }
        QCOMPARE(cell->text(), before);
        QVERIFY(session.Run(kExport, file));
        QVERIFY(exported.open(QIODevice::ReadOnly));
        QCOMPARE(exported.readAll(), original);
    }
};

QUORLIN_TEST_CLASS(CEditUnderWayTest)
#include "EditUnderWayTest.moc"
