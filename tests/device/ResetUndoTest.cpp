// Reset, Reset PA Gain and Reset PD, and the way back: the button "Undo" in the status bar.
#include <QMainWindow>
#include <QStatusBar>

#include "tests/common/TestClass.h"
#include "tests/device/CalibrationSession.h"

namespace {

using Tables = QVector<QPair<int, const char *>>;  // group and member

struct SReset
{
    const char *name;
    const char *page;
    const char *routeType;  // null: the page has none
    const char *button;
    Tables tables;
};

const QVector<SReset> kResets = {
    {"type 1", kPathLossPage, "Type1", "m_btnReset_2", {{2, "lna0"}, {3, "lna0"}}},
    {"type 2", kPathLossPage, "Type2", "m_btnReset_2", {{5, "main"}, {6, "gain0"}, {7, "gain0"}}},
    {"PA gain", kAptPage, nullptr, "m_btnResetPaGain", {{7, "paHighPaGain"}}},
    {"PD", kAptPage, nullptr, "m_btnResetPd", {{9, "paHighPd"}}},
};

QPushButton *UndoButton(const CCalibrationSession &session)
{
    for (auto *button : session.Window()->statusBar()->findChildren<QPushButton *>()) {
        if (button->text() == "Undo" && button->isVisible())
            return button;
    }
    return nullptr;
}

bool PressUndo(const CCalibrationSession &session)
{
    QPushButton *undo = UndoButton(session);
    if (!undo || !undo->isEnabled())
        return false;
    QTest::mouseClick(undo, Qt::LeftButton);
    return true;
}

QStringList Texts(const CCalibrationSession &session, const Tables &tables)
{
    QStringList texts;
    for (const auto &table : tables)
        texts += session.TableTexts(table.first, table.second);
    return texts;
}

bool IsZero(const QStringList &texts)
{
    return texts.count("0.00000") == texts.size();
}

// The page with the DUT's data and the reset's tables in view.
bool IsReady(CCalibrationSession &session, const SReset &reset)
{
    if (!session.ShowAndWait() || !session.Run(kRead))
        return false;
    if (reset.routeType)
        session.Select("routeType", reset.routeType);
    return !IsZero(Texts(session, reset.tables));
}

}  // namespace

class ResetUndoTest : public QObject
{
    Q_OBJECT

private slots:
    void undoneResetLeavesTheFlashAsItWas_data() { AddResets(); }
    void undoneResetLeavesTheFlashAsItWas();
    void undoLeavesWhatWasEditedSince_data() { AddResets(); }
    void undoLeavesWhatWasEditedSince();
    void undoGoesWithWhatComesNext_data();
    void undoGoesWithWhatComesNext();
    void undoShowsTheSelectionOfTheReset_data() { AddResets(); }
    void undoShowsTheSelectionOfTheReset();
    void resetsInARowAreUndoneOneByOne();
    void resetOfZerosLeavesNoUndo();
    void undoIsReachedByKeysAndLeavesTheFocusAlone();
    void toolTipOfResetNamesAllOfItsTables();

private:
    static void AddResets()
    {
        QTest::addColumn<int>("row");
        for (int i = 0; i < kResets.size(); ++i)
            QTest::newRow(kResets[i].name) << i;
    }
};

void ResetUndoTest::undoneResetLeavesTheFlashAsItWas()
{
    QFETCH(int, row);
    const SReset &reset = kResets[row];
    CCalibrationSession session(reset.page);
    QVERIFY(IsReady(session, reset));
    const QStringList before = Texts(session, reset.tables);
    QVERIFY(session.Run(kWrite));
    const QVector<QByteArray> written = Rounds(0);
    QVERIFY(!UndoButton(session));
    session.Press(reset.button);
    QVERIFY(IsZero(Texts(session, reset.tables)));
    QVERIFY(PressUndo(session));
    QCOMPARE(Texts(session, reset.tables), before);
    QVERIFY(!UndoButton(session));
    QVERIFY(session.Run(kWrite));
    QCOMPARE(Rounds(written.size()), written);
}

void ResetUndoTest::undoLeavesWhatWasEditedSince()
{
    QFETCH(int, row);
    const SReset &reset = kResets[row];
    CCalibrationSession session(reset.page);
    QVERIFY(IsReady(session, reset));
    const auto &last = reset.tables.last();
    session.Type(last.first, last.second, 0, 1, "2.5");
    session.Type(last.first, last.second, 0, 2, "3.5");
    QStringList expected = Texts(session, reset.tables);
    session.Press(reset.button);
    session.Type(last.first, last.second, 0, 1, "1.25");
    session.Type(last.first, last.second, 0, 2, "0");  // the same value, but the user's
    QTest::keyClick(session.Cell(last.first, last.second, 0, 2), Qt::Key_Return);
    const int at = expected.size() - session.TableTexts(last.first, last.second).size();
    expected[at + 1] = "1.25000";
    expected[at + 2] = "0.00000";
    QVERIFY(PressUndo(session));
    QCOMPARE(Texts(session, reset.tables), expected);
}

void ResetUndoTest::undoGoesWithWhatComesNext_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("next");
    for (int row : {0, 3}) {
        for (const char *next : {"read", "write", "tab", "hide"})
            QTest::newRow(qPrintable(QString(kResets[row].name) + ", " + next)) << row << next;
    }
}

void ResetUndoTest::undoGoesWithWhatComesNext()
{
    QFETCH(int, row);
    QFETCH(QString, next);
    const SReset &reset = kResets[row];
    CCalibrationSession session(reset.page);
    QVERIFY(IsReady(session, reset));
    session.Press(reset.button);
    QVERIFY(UndoButton(session));
    if (next == "read")
        QVERIFY(session.Run(kRead));
    else if (next == "write")
        QVERIFY(session.Run(kWrite));
    else if (next == "tab")
        QVERIFY(session.ClickTab("RSSI"));
    else
        session.Window()->hide();
    QVERIFY(!UndoButton(session));
    session.Window()->show();
    QVERIFY(!UndoButton(session));
}

void ResetUndoTest::undoShowsTheSelectionOfTheReset()
{
    QFETCH(int, row);
    const SReset &reset = kResets[row];
    CCalibrationSession session(reset.page);
    QVERIFY(IsReady(session, reset));
    const QStringList before = Texts(session, reset.tables);
    const QString band = session.Selector("band")->currentText();
    session.Press(reset.button);
    session.Select("band", "n78");
    QVERIFY(PressUndo(session));
    QCOMPARE(session.Selector("band")->currentText(), band);
    QCOMPARE(Texts(session, reset.tables), before);
    QVERIFY(!UndoButton(session));
}

void ResetUndoTest::resetsInARowAreUndoneOneByOne()
{
    CCalibrationSession session(kAptPage);
    QVERIFY(IsReady(session, kResets[3]));
    const QStringList gains = session.TableTexts(7, "paHighPaGain");
    const QStringList detector = session.TableTexts(9, "paHighPd");
    session.Press("m_btnResetPaGain");
    session.Press("m_btnResetPd");
    QCOMPARE(UndoButton(session)->toolTip(), QString("Takes back Reset PD"));
    QVERIFY(PressUndo(session));
    QVERIFY(IsZero(session.TableTexts(7, "paHighPaGain")));
    QCOMPARE(session.TableTexts(9, "paHighPd"), detector);
    QCOMPARE(UndoButton(session)->toolTip(), QString("Takes back Reset PA Gain"));
    QVERIFY(PressUndo(session));
    QCOMPARE(session.TableTexts(7, "paHighPaGain"), gains);
    QVERIFY(!UndoButton(session));
}

void ResetUndoTest::resetOfZerosLeavesNoUndo()
{
    CCalibrationSession session(kPathLossPage);
    QVERIFY(session.ShowAndWait());
    session.Press("m_btnReset_2");
    QVERIFY(!UndoButton(session));
    QVERIFY(session.Run(kRead));
    session.Press("m_btnReset_2");
    session.Press("m_btnReset_2");
    QVERIFY(PressUndo(session));
    QVERIFY(!IsZero(session.TableTexts(2, "lna0")));
    QVERIFY(!UndoButton(session));
}

void ResetUndoTest::undoIsReachedByKeysAndLeavesTheFocusAlone()
{
    CCalibrationSession session(kPathLossPage);
    QVERIFY(IsReady(session, kResets[0]));
    QApplication::setActiveWindow(session.Window());
    session.Press("m_btnReset_2");
    QAbstractSpinBox *cell = session.Cell(2, "lna0", 0, 0);
    cell->setFocus();
    QVERIFY(UndoButton(session)->focusPolicy() & Qt::TabFocus);
    QVERIFY(PressUndo(session));
    QCOMPARE(QApplication::focusWidget(), cell);
    QVERIFY(!IsZero(session.TableTexts(2, "lna0")));

    session.Press("m_btnReset_2");
    UndoButton(session)->setFocus();
    QTest::keyClick(UndoButton(session), Qt::Key_Space);
    QVERIFY(!IsZero(session.TableTexts(2, "lna0")));
    QVERIFY(!UndoButton(session));
    QVERIFY2(!QApplication::focusWidget(), "no other button is next to be pressed by Space");
}

void ResetUndoTest::toolTipOfResetNamesAllOfItsTables()
{
    CCalibrationSession session(kPathLossPage);
    QVERIFY(session.ShowAndWait());
    const auto *reset = session.Find<QPushButton>("m_btnReset_2");
    session.Select("routeType", "Type1");
    QVERIFY(reset->toolTip().contains("Main Path"));
    QVERIFY(reset->toolTip().contains("Diversity Path"));
    session.Select("routeType", "Type2");
    QVERIFY(reset->toolTip().contains("Partial-On Pathloss"));
    QVERIFY(reset->toolTip().contains("Gain by gain Pathloss"));
    session.Select("routeType", "Type1");
    QVERIFY(reset->toolTip().contains("Diversity Path"));
}

QUORLIN_TEST_CLASS(ResetUndoTest)
#include "ResetUndoTest.moc"
