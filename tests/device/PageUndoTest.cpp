// Undo of edits on both calibration pages, by the user's keys: what is one command, what a command
// brings back, and under which selection.
#include <cstddef>

#include <QTabWidget>
#include <QWheelEvent>

#include "tests/common/TestClass.h"
#include "tests/device/UndoSteps.h"

namespace {

constexpr int kPaGain = 7;  // groups of the APT page
constexpr int kPd = 9;
constexpr char kHighGain[] = "paHighPaGain";
constexpr int kMostCommands = 500;

void AddPageRows()
{
    QTest::addColumn<QString>("page");
    QTest::newRow("path loss") << kPathLossPage;
    QTest::newRow("APT") << kAptPage;
}

void TurnWheel(QWidget *editor, int notches)
{
    const QPointF at = editor->rect().center();
    QWheelEvent wheel(at, editor->mapToGlobal(at.toPoint()), {}, {0, 120 * notches}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(editor, &wheel);
}

}  // namespace

class PageUndoTest : public QObject
{
    Q_OBJECT

private slots:
    void typedNumberIsOneCommand();
    void keysAreTheEditorsAsLongAsItsTextHasSomethingToUndo();
    void stepsInOneEditorAreOneCommand();
    void choicesInOneListAreOneCommand();
    void editThatChangesNothingIsNoCommand();
    void scalarEditIsNamedAndComesBack();
    void whatThePageShowsByItselfIsNoCommand_data() { AddPageRows(); }
    void whatThePageShowsByItselfIsNoCommand();
    void resetIsUndoneAndRedoneByKeys();
    void undoneEditsOfTwoRoutesLeaveTheFlash();
    void redoneEditsOfTwoRoutesAreWritten();
    void undoLeavesTheFocusInPeace();
    void undoShowsTheTabOfItsCell();
    void undoGoesOnBehindAWrite();
    void actionsAreOffWhileAFlowRuns();
    void readRightBehindAnEditDoesNotBlockTheWindow();
    void resetOfTheDutDropsThemAll();
    void pageMayGoWhileUndoShowsASelection_data();
    void pageMayGoWhileUndoShowsASelection();
    void unloadWithCommandsIsClean();
    void tenThousandEditsKeepABoundedNumber();

private:
    Q_SLOT void ResetOnce()
    {
        if (m_tool && m_resets++ == 0)
            (*m_tool)->ResetPlugin();
    }

    CUndoSession *m_tool = nullptr;
    int m_resets = 0;
};

void PageUndoTest::typedNumberIsOneCommand()
{
    CUndoSession session(kAptPage);
    QVERIFY(session.IsRead());
    const QString before = session.CellText(kPaGain, kHighGain, 0, 3);
    session.Edit(kPaGain, kHighGain, 0, 3, "18.5");
    QCOMPARE(session.UndoText(), QString("Undo Edit PA Gain[3]"));
    QVERIFY(session.Action("m_actionUndo")->text().endsWith("\tCtrl+Z"));
    session.PressUndo();
    QCOMPARE(session.CellText(kPaGain, kHighGain, 0, 3), before);
    QCOMPARE(session.UndoText(), QString("Undo Read"));
    QCOMPARE(session.ActionText("m_actionRedo"), QString("Redo Edit PA Gain[3]"));
    session.PressRedo();
    QCOMPARE(session.CellText(kPaGain, kHighGain, 0, 3), QString("18.50000"));
    QVERIFY(!session.CanRedo());
}

void PageUndoTest::keysAreTheEditorsAsLongAsItsTextHasSomethingToUndo()
{
    CUndoSession session(kAptPage);
    QVERIFY(session.IsRead());
    session.Edit(kPaGain, kHighGain, 0, 1, "2");
    const QString before = session.CellText(kPaGain, kHighGain, 0, 3);
    session.Type(kPaGain, kHighGain, 0, 3, "18.5");
    session.PressUndo();
    QVERIFY(session.CellText(kPaGain, kHighGain, 0, 3) != "18.5");
    QCOMPARE(session.CellText(kPaGain, kHighGain, 0, 1), QString("2.00000"));
    for (int i = 0; i < 10 && session.CellText(kPaGain, kHighGain, 0, 1) == "2.00000"; ++i)
        session.PressUndo();
    QCOMPARE(session.CellText(kPaGain, kHighGain, 0, 3), before);
    QVERIFY(session.CellText(kPaGain, kHighGain, 0, 1) != "2.00000");
}

void PageUndoTest::stepsInOneEditorAreOneCommand()
{
    CUndoSession session(kAptPage);
    QVERIFY(session.IsRead());
    QAbstractSpinBox *cell = session.Cell(kPaGain, kHighGain, 0, 3);
    const QString before = cell->text();
    cell->setFocus();
    for (int i = 0; i < 3; ++i)
        TurnWheel(cell, 1);
    QTest::keyClick(cell, Qt::Key_PageUp);
    QVERIFY(cell->text() != before);
    session.PressUndo();
    QCOMPARE(cell->text(), before);
    QCOMPARE(session.UndoText(), QString("Undo Read"));
}

void PageUndoTest::choicesInOneListAreOneCommand()
{
    CUndoSession session(kAptPage);
    QVERIFY(session.IsRead());
    auto *level = session.Find<QComboBox>(session.DataName(1, "paControlLevel"));
    const QString before = level->currentText();
    level->setFocus();
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(level, level->currentIndex() > 4 ? Qt::Key_Up : Qt::Key_Down);
    QVERIFY(level->currentText() != before);
    QCOMPARE(session.UndoText(), QString("Undo Edit PA Control Level"));
    session.PressUndo();
    QCOMPARE(level->currentText(), before);
    QCOMPARE(session.UndoText(), QString("Undo Read"));
    session.PressRedo();
    session.Cell(kPaGain, kHighGain, 0, 0)->setFocus();
    level->setFocus();
    const QString chosen = level->currentText();
    QTest::keyClick(level, level->currentIndex() > 4 ? Qt::Key_Up : Qt::Key_Down);
    session.PressUndo();
    QCOMPARE(level->currentText(), chosen);  // another visit, another command
}

void PageUndoTest::editThatChangesNothingIsNoCommand()
{
    CUndoSession session(kAptPage);
    QVERIFY(session.IsRead());
    const QString text = session.CellText(kPaGain, kHighGain, 0, 3);
    session.Edit(kPaGain, kHighGain, 0, 3, text);
    QCOMPARE(session.UndoText(), QString("Undo Read"));
    session.Cell(kPaGain, kHighGain, 0, 4)->setFocus();
    session.Cell(kPaGain, kHighGain, 0, 5)->setFocus();
    QCOMPARE(session.UndoText(), QString("Undo Read"));
}

void PageUndoTest::scalarEditIsNamedAndComesBack()
{
    CUndoSession session(kAptPage);
    QVERIFY(session.IsRead());
    auto *prf = session.Find<QSpinBox>(session.DataName(3, "pRf1"));
    const QString before = prf->text();
    session.Type(prf, "17");
    QTest::keyClick(prf, Qt::Key_Return);
    QCOMPARE(session.UndoText(), QString("Undo Edit pRf[1]"));
    session.PressUndo();
    QCOMPARE(prf->text(), before);
}

void PageUndoTest::whatThePageShowsByItselfIsNoCommand()
{
    QFETCH(QString, page);
    CUndoSession session(page);
    QVERIFY(session.ShowAndWait());
    session.Select("band", "n78");
    session.Select("band", "n1");
    QVERIFY(!session.CanUndo());
    QVERIFY(session.Run(kRead));
    session.Select("band", "n78");
    QCOMPARE(session.UndoText(), QString("Undo Read"));
    QVERIFY(session.Run(kRead));  // the same again
    QCOMPARE(session.UndoText(), QString("Undo Read"));
}

void PageUndoTest::resetIsUndoneAndRedoneByKeys()
{
    CUndoSession session(kAptPage);
    QVERIFY(session.IsRead());
    const QStringList before = session.TableTexts(kPd, "paHighPd");
    session.Press("m_btnResetPd");
    QCOMPARE(session.UndoText(), QString("Undo Reset PD"));
    session.PressUndo();
    QCOMPARE(session.TableTexts(kPd, "paHighPd"), before);
    QVERIFY(!session.Window()->statusBar()->findChild<QPushButton *>("m_btnUndo") ||
            !session.Window()->statusBar()->findChild<QPushButton *>("m_btnUndo")->isVisible());
    session.PressRedo();
    QVERIFY(session.TableTexts(kPd, "paHighPd") != before);
    session.PressUndo();
    QCOMPARE(session.Written(), QStringList());
}

void PageUndoTest::undoneEditsOfTwoRoutesLeaveTheFlash()
{
    CUndoSession session(kAptPage);
    QVERIFY(session.IsRead());
    session.Edit(kPaGain, kHighGain, 0, 3, "18.5");
    session.Select("band", "n78");
    session.Edit(kPaGain, kHighGain, 1, 4, "-3");
    session.Select("band", "n1");
    session.PressUndo();
    QCOMPARE(session.Selector("band")->currentText(), QString("n78"));
    session.PressUndo();
    QCOMPARE(session.Selector("band")->currentText(), QString("n1"));
    QCOMPARE(session.UndoText(), QString("Undo Read"));
    QCOMPARE(session.Written(), QStringList());
}

void PageUndoTest::redoneEditsOfTwoRoutesAreWritten()
{
    CUndoSession session(kPathLossPage);
    QVERIFY(session.IsRead());
    session.Edit(2, "lna0", 0, 0, "12.5");
    session.Select("powerMode", "LPM");
    session.Edit(2, "lna0", 0, 0, "1.03125");
    session.Select("band", "n78");
    session.PressUndo();
    QCOMPARE(session.Selector("powerMode")->currentText(), QString("LPM"));
    session.PressUndo();
    QCOMPARE(session.Selector("powerMode")->currentText(), QString("HPM"));
    session.Select("band", "n78");
    session.PressRedo();
    QCOMPARE(session.CellText(2, "lna0", 0, 0), QString("12.50000"));
    session.PressRedo();
    QCOMPARE(session.CellText(2, "lna0", 0, 0), QString("1.03125"));
    const SFlashPlace place{eFlashType1, 1, 0};
    const int loss = offsetof(SMMType1PathlossBlockV7, loss);
    const int hpm = loss + int(offsetof(SMMLossPair, hpm));
    const int lpm = loss + int(offsetof(SMMLossPair, lpm));
    QStringList expected = {FlashWord(place, 0, hpm, 400), FlashWord(place, 0, lpm, 33)};
    if (lpm < hpm)
        std::swap(expected[0], expected[1]);
    QCOMPARE(session.Written(), expected);
}

void PageUndoTest::undoLeavesTheFocusInPeace()
{
    CUndoSession session(kAptPage);
    QVERIFY(session.IsRead());
    session.Edit(kPaGain, kHighGain, 0, 3, "18.5");
    session.Select("band", "n78");
    QAbstractSpinBox *other = session.Cell(kPaGain, kHighGain, 0, 9);
    other->setFocus();
    session.PressUndo();
    QCOMPARE(session.Selector("band")->currentText(), QString("n1"));
    QCOMPARE(QApplication::focusWidget(), other);
}

void PageUndoTest::undoShowsTheTabOfItsCell()
{
    CUndoSession session(kAptPage);
    QVERIFY(session.IsRead());
    auto *tabs = session.Find<QTabWidget>("m_tables");
    session.Edit(kPaGain, kHighGain, 0, 3, "18.5");
    const int tab = tabs->currentIndex();
    tabs->setCurrentIndex(tab == 0 ? 1 : 0);
    session.Selector("band")->setFocus();
    session.PressUndo();
    QCOMPARE(tabs->currentIndex(), tab);
    QVERIFY(session.Cell(kPaGain, kHighGain, 0, 3)->isVisible());
}

void PageUndoTest::undoGoesOnBehindAWrite()
{
    CUndoSession session(kAptPage);
    QVERIFY(session.IsRead());
    session.Edit(kPaGain, kHighGain, 0, 3, "18.5");
    QCOMPARE(session.Written().size(), 1);
    session.PressUndo();
    QCOMPARE(session.Written(), QStringList());
}

void PageUndoTest::actionsAreOffWhileAFlowRuns()
{
    CUndoSession session(kAptPage);
    QVERIFY(session.IsRead());
    session.Edit(kPaGain, kHighGain, 0, 3, "18.5");
    QVERIFY(session.ChangeCount() == "1 changed cell");
    VondSim_Hold(kReadCall);
    session.Press(kRead.button);
    QVERIFY(VondSim_WaitUntilHeld(kReadCall, 20000));
    for (const char *name :
         {"m_actionUndo", "m_actionRevertRecord", "m_actionRevertAll", "m_actionCopyRecord"})
        QVERIFY2(!session.Action(name)->isEnabled(), name);
    VondSim_Release(kReadCall);
    QVERIFY(session.WaitForStatus(kRead.done));
    QVERIFY(WaitUntil([&] { return session.CanUndo(); }));
}

// What has changed is counted behind the edit, when the flow has the records already.
void PageUndoTest::readRightBehindAnEditDoesNotBlockTheWindow()
{
    CUndoSession session(kAptPage);
    QVERIFY(session.IsRead());
    VondSim_Hold(kReadCall);
    session.Edit(kPaGain, kHighGain, 0, 3, "18.5");
    session.Press(kRead.button);
    QVERIFY(VondSim_WaitUntilHeld(kReadCall, 20000));
    for (int i = 0; i < 20; ++i)
        QCoreApplication::processEvents();
    VondSim_Release(kReadCall);
    QVERIFY(session.WaitForStatus(kRead.done));
    QCOMPARE(session.UndoText(), QString("Undo Read"));
    session.PressUndo();
    QCOMPARE(session.ChangeCount(), QString("1 changed cell"));
}

void PageUndoTest::resetOfTheDutDropsThemAll()
{
    CUndoSession session(kAptPage);
    QVERIFY(session.IsRead());
    session.Edit(kPaGain, kHighGain, 0, 3, "18.5");
    QCOMPARE(session.ChangeCount(), QString("1 changed cell"));
    session->ResetPlugin();
    QCOMPARE(session.ChangeCount(), QString());
    QVERIFY(session.ShowAndWait());
    QVERIFY(!session.CanUndo());
    QVERIFY(!session.CanRedo());
    QVERIFY(!session.Action("m_actionRevertAll")->isEnabled());
    QCOMPARE(session.ChangeCount(), QString());
}

void PageUndoTest::pageMayGoWhileUndoShowsASelection_data()
{
    QTest::addColumn<bool>("isFlow");
    QTest::newRow("edit") << false;
    QTest::newRow("Read") << true;
}

// A host that resets as soon as the page says that it is busy.
void PageUndoTest::pageMayGoWhileUndoShowsASelection()
{
    QFETCH(bool, isFlow);
    CUndoSession session(kAptPage);
    QVERIFY(session.IsRead());
    if (!isFlow)
        session.Edit(kPaGain, kHighGain, 0, 3, "18.5");
    session.Select("band", "n78");
    const QPointer<QDockWidget> page(session.Page());
    m_resets = 0;
    m_tool = &session;
    connect(session.Object(), SIGNAL(Signal_PluginIsBusy(QString, bool)), this, SLOT(ResetOnce()));
    session.Selector("band")->setFocus();
    session.PressUndo();
    m_tool = nullptr;
    QCOMPARE(m_resets, 1);
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!page);
}

void PageUndoTest::unloadWithCommandsIsClean()
{
    CUndoSession session(kAptPage);
    QVERIFY(session.IsRead());
    session.Edit(kPaGain, kHighGain, 0, 3, "18.5");
    session.Press("m_btnResetPd");
    session.PressUndo();
    session.Unload();
    QVERIFY(!session.Window());
}

void PageUndoTest::tenThousandEditsKeepABoundedNumber()
{
    CUndoSession session(kAptPage);
    QVERIFY(session.IsRead());
    QAbstractSpinBox *cell = session.Cell(kPaGain, kHighGain, 0, 3);
    cell->setFocus();
    for (int i = 0; i < 10000; ++i) {
        cell->selectAll();
        QTest::keyClick(cell, static_cast<char>('1' + i % 9));
        QTest::keyClick(cell, Qt::Key_Return, Qt::KeypadModifier);
        cell->setFocus();
    }
    int undone = 0;
    for (; session.CanUndo() && undone <= kMostCommands; ++undone)
        session.Action("m_actionUndo")->trigger();
    QCOMPARE(undone, kMostCommands);
    QCOMPARE(cell->text(), QString("%1.00000").arg(1 + (10000 - kMostCommands - 1) % 9));
}

QUORLIN_TEST_CLASS(PageUndoTest)
#include "PageUndoTest.moc"
