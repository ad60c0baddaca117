// Which cells of a calibration page differ from what was last read or imported: their looks, what
// their tool tips add, and their count in the status bar.
#include <cstddef>
#include <cstring>

#include <QHelpEvent>
#include <QTabWidget>
#include <QToolTip>

#include "tests/common/TestClass.h"
#include "tests/device/UndoSteps.h"

namespace {

constexpr int kPaGain = 7;  // groups of the APT page
constexpr char kHighGain[] = "paHighPaGain";

// As it looks to the user: bold digits.
bool IsChanged(const QWidget *editor)
{
    return editor->font().bold();
}

int ChangedIn(const QTableWidget *table)
{
    int count = 0;
    for (int r = 0; r < table->rowCount(); ++r) {
        for (int c = 0; c < table->columnCount(); ++c)
            count += IsChanged(table->cellWidget(r, c)) ? 1 : 0;
    }
    return count;
}

QString ShownTip(QWidget *editor)
{
    QToolTip::hideText();
    const QPoint at = editor->rect().center();
    QHelpEvent help(QEvent::ToolTip, at, editor->mapToGlobal(at));
    QCoreApplication::sendEvent(editor, &help);
    return QToolTip::text();
}

}  // namespace

class ChangedCellsTest : public QObject
{
    Q_OBJECT

private slots:
    void editedCellIsColouredUntilItIsAsBefore();
    void toolTipAddsWhatTheCellWas();
    void scalarIsShownAsChanged();
    void changesOfASelectionComeBackWithIt();
    void countIsOfAllRoutes();
    void countIsOutOfSightOnOtherPages();
    void resetIsColouredAsFarAsItChanges();
    void recordThatNeverCameInHasNoChanges();
    void importIsTheNewBase();
    void editorsThatNobodyHasSeenAreNotMadeForIt();
    void lateEditorsAreColouredWhenTheyAreMade();
    void valuesThatNoEditorHoldsAreNoChanges();
};

void ChangedCellsTest::editedCellIsColouredUntilItIsAsBefore()
{
    CUndoSession session(kAptPage);
    QVERIFY(session.IsRead());
    auto *cell = session.Cell(kPaGain, kHighGain, 0, 3);
    const QString before = cell->text();
    const QColor plain = cell->palette().color(QPalette::Base);
    session.Edit(kPaGain, kHighGain, 0, 3, "18.5");
    QCOMPARE(session.ChangeCount(), QString("1 changed cell"));
    QVERIFY(IsChanged(cell));
    QVERIFY(cell->palette().color(QPalette::Base) != plain);
    QCOMPARE(ChangedIn(session.Table(kPaGain, kHighGain)), 1);
    session.Edit(kPaGain, kHighGain, 0, 3, before);
    QCOMPARE(session.ChangeCount(), QString());
    QVERIFY(!IsChanged(cell));
    QCOMPARE(cell->palette().color(QPalette::Base), plain);
    session.PressUndo();
    QCOMPARE(session.ChangeCount(), QString("1 changed cell"));
    QVERIFY(IsChanged(cell));
    session.PressUndo();
    QCOMPARE(session.ChangeCount(), QString());
    QVERIFY(!IsChanged(cell));
}

void ChangedCellsTest::toolTipAddsWhatTheCellWas()
{
    CUndoSession session(kPathLossPage);
    QVERIFY(session.IsRead());
    auto *cell = session.Cell(2, "lna0", 0, 0);
    const QString before = cell->text();
    const QString limits = cell->toolTip();
    session.Edit(2, "lna0", 0, 0, "12.5");
    QCOMPARE(session.ChangeCount(), QString("1 changed cell"));
    QCOMPARE(cell->toolTip(), limits);
    const QString was = "was " + before;
    QCOMPARE(ShownTip(cell), limits.isEmpty() ? was : limits + "\n" + was);
    session.PressUndo();
    QCOMPARE(session.ChangeCount(), QString());
    QCOMPARE(ShownTip(cell), limits);
}

void ChangedCellsTest::scalarIsShownAsChanged()
{
    CUndoSession session(kAptPage);
    QVERIFY(session.IsRead());
    auto *prf = session.Find<QSpinBox>(session.DataName(3, "pRf1"));
    const QString before = prf->text();
    session.Type(prf, before == "17" ? "18" : "17");
    QTest::keyClick(prf, Qt::Key_Return);
    QCOMPARE(session.ChangeCount(), QString("1 changed cell"));
    QVERIFY(IsChanged(prf));
    QVERIFY(ShownTip(prf).endsWith("was " + before));
    auto *level = session.Find<QComboBox>(session.DataName(1, "paControlLevel"));
    level->setFocus();
    QTest::keyClick(level, level->currentIndex() > 4 ? Qt::Key_Up : Qt::Key_Down);
    QCOMPARE(session.ChangeCount(), QString("2 changed cells"));
    QVERIFY(IsChanged(level));
}

void ChangedCellsTest::changesOfASelectionComeBackWithIt()
{
    CUndoSession session(kPathLossPage);
    QVERIFY(session.IsRead());
    session.Edit(2, "lna0", 0, 5, "12.5");
    session.Select("powerMode", "LPM");
    QCOMPARE(ChangedIn(session.Table(2, "lna0")), 0);
    session.Edit(2, "lna0", 1, 6, "3.5");
    QCOMPARE(session.ChangeCount(), QString("2 changed cells"));
    session.Select("powerMode", "HPM");
    QCOMPARE(ChangedIn(session.Table(2, "lna0")), 1);
    QVERIFY(IsChanged(session.Cell(2, "lna0", 0, 5)));
    session.Select("powerMode", "LPM");
    QVERIFY(IsChanged(session.Cell(2, "lna0", 1, 6)));
    QCOMPARE(ChangedIn(session.Table(2, "lna0")), 1);
    session.Select("band", "n78");
    QCOMPARE(ChangedIn(session.Table(2, "lna0")), 0);
}

void ChangedCellsTest::countIsOfAllRoutes()
{
    CUndoSession session(kAptPage);
    QVERIFY(session.IsRead());
    session.Edit(kPaGain, kHighGain, 0, 3, "18.5");
    session.Select("band", "n78");
    QCOMPARE(session.ChangeCount(), QString("1 changed cell"));
    session.Edit(kPaGain, kHighGain, 0, 4, "17.5");
    QCOMPARE(session.ChangeCount(), QString("2 changed cells"));
    QVERIFY(session.Run(kWrite));
    QCOMPARE(session.ChangeCount(), QString("2 changed cells"));  // nothing was read yet
    QVERIFY(session.Run(kRead));
    QCOMPARE(session.ChangeCount(), QString());
}

void ChangedCellsTest::countIsOutOfSightOnOtherPages()
{
    CUndoSession session(kAptPage);
    QVERIFY(session.IsRead());
    session.Edit(kPaGain, kHighGain, 0, 3, "18.5");
    QCOMPARE(session.ChangeCount(), QString("1 changed cell"));
    const QString title = session.Page()->windowTitle();
    QVERIFY(session.ClickTab("RSSI"));
    QCOMPARE(session.ChangeCount(), QString());
    QVERIFY(session.ClickTab(title));
    QCOMPARE(session.ChangeCount(), QString("1 changed cell"));
}

void ChangedCellsTest::resetIsColouredAsFarAsItChanges()
{
    CUndoSession session(kAptPage);
    QVERIFY(session.IsRead());
    const QStringList before = session.TableTexts(kPaGain, kHighGain);
    const int changed = before.size() - before.count("0.00000");
    session.Press("m_btnResetPaGain");
    QCOMPARE(session.ChangeCount(), QString("%1 changed cells").arg(changed));
    QCOMPARE(ChangedIn(session.Table(kPaGain, kHighGain)), changed);
    session.PressUndo();
    QCOMPARE(session.ChangeCount(), QString());
    QCOMPARE(ChangedIn(session.Table(kPaGain, kHighGain)), 0);
}

void ChangedCellsTest::recordThatNeverCameInHasNoChanges()
{
    CUndoSession session(kAptPage);
    QVERIFY(session.ShowAndWait());
    session.Edit(kPaGain, kHighGain, 0, 3, "18.5");
    QCOMPARE(session.ChangeCount(), QString());
    QVERIFY(!IsChanged(session.Cell(kPaGain, kHighGain, 0, 3)));
}

void ChangedCellsTest::importIsTheNewBase()
{
    CUndoSession session(kAptPage);
    QVERIFY(session.IsRead());
    const QString before = session.CellText(kPaGain, kHighGain, 0, 3);
    session.Edit(kPaGain, kHighGain, 0, 3, "18.5");
    QVERIFY(session.Run(kExport, session.File("edited.ini")));
    session.PressUndo();
    QCOMPARE(session.ChangeCount(), QString());
    QVERIFY(session.Run(kImport, session.File("edited.ini")));
    QCOMPARE(session.CellText(kPaGain, kHighGain, 0, 3), QString("18.50000"));
    QCOMPARE(session.ChangeCount(), QString());
    session.Edit(kPaGain, kHighGain, 0, 3, before);
    QCOMPARE(session.ChangeCount(), QString("1 changed cell"));
    QVERIFY(ShownTip(session.Cell(kPaGain, kHighGain, 0, 3)).endsWith("was 18.50000"));
}

void ChangedCellsTest::editorsThatNobodyHasSeenAreNotMadeForIt()
{
    CUndoSession session(kAptPage);
    QVERIFY(session.IsReadByAUser());
    session.Find<QTabWidget>("m_tables")->setCurrentIndex(0);
    const QTableWidget *covered = session.Table(10, "paHighPd");
    QVERIFY(!covered->cellWidget(0, 0));
    session.Edit(kPaGain, kHighGain, 0, 3, "18.5");
    session.Select("band", "n78");
    session.Select("band", "n1");
    QVERIFY(session.Run(kRead));
    session.PressUndo();
    QCOMPARE(session.ChangeCount(), QString("1 changed cell"));
    QVERIFY(!covered->cellWidget(0, 0));
}

// A record is copied to another one, whose values on a covered tab change by that.
void ChangedCellsTest::lateEditorsAreColouredWhenTheyAreMade()
{
    CFlashFolder folder;
    {
        CCalibrationSession session(kAptPage);
        QVERIFY(session.ShowAndWait() && session.Run(kRead) && session.Run(kWrite));
    }
    CFlashFile flash(folder.Path());
    // Every record has other offsets than the next one.
    for (int i = 0; i < flash.records.size(); ++i) {
        const auto offset = static_cast<int16_t>(32 * i);
        for (QByteArray &block : flash.records[i].blocks) {
            if (flash.records[i].place.kind == eFlashApt)
                std::memcpy(block.data() + offsetof(SAptBlock, pa) +
                                offsetof(SAptPaPart, powerDetectorTempOffset),
                            &offset, sizeof offset);
        }
    }
    QVERIFY(flash.Save(folder.Path()));
    CUndoSession session(kAptPage, "handset", folder);
    QVERIFY(session.IsReadByAUser());
    const QTableWidget *covered = session.Table(10, "paHighPd");
    session.Select("band", "n78");
    QStringList targets;
    AnswerCopy({0}, QDialogButtonBox::Ok, &targets);
    session.Action("m_actionCopyRecord")->trigger();
    const QString route = targets.value(0).section(' ', 1, 1).remove(',');
    session.Select("txRoute", route);
    session.Select("aggBwRegion", targets.value(0).section(", ", 1, 1));
    QVERIFY(!session.ChangeCount().isEmpty());
    QVERIFY(!covered->cellWidget(0, 0));
    session.Find<QTabWidget>("m_tables")->setCurrentIndex(3);
    QVERIFY(WaitUntil([&] { return covered->cellWidget(0, 0) != nullptr; }));
    QVERIFY(IsChanged(covered->cellWidget(0, 0)));
    QCOMPARE(ChangedIn(covered), 1);
    session.Action("m_actionRevertRecord")->trigger();
    QCOMPARE(ChangedIn(covered), 0);
}

void ChangedCellsTest::valuesThatNoEditorHoldsAreNoChanges()
{
    CFlashFolder folder;
    {
        CCalibrationSession session(kPathLossPage);
        QVERIFY(session.ShowAndWait() && session.Run(kRead) && session.Run(kWrite));
    }
    CFlashFile flash(folder.Path());
    for (CFlashFile::SRecord &record : flash.records) {
        const int16_t most = INT16_MAX;
        for (int at = 0; record.place.kind == eFlashType1 && at < 8; at += 2)
            std::memcpy(record.blocks[0].data() + offsetof(SMMType1PathlossBlockV7, loss) + at,
                        &most, sizeof most);
    }
    QVERIFY(flash.Save(folder.Path()));
    CUndoSession session(kPathLossPage, "handset", folder);
    QVERIFY(session.IsRead());
    QCOMPARE(session.ChangeCount(), QString());
    session.Edit(2, "lna0", 1, 5, "12.5");
    QCOMPARE(session.ChangeCount(), QString("1 changed cell"));
    session.Select("powerMode", "LPM");
    session.Select("powerMode", "HPM");
    QCOMPARE(session.ChangeCount(), QString("1 changed cell"));
    QCOMPARE(ChangedIn(session.Table(2, "lna0")), 1);
}

QUORLIN_TEST_CLASS(ChangedCellsTest)
#include "ChangedCellsTest.moc"
