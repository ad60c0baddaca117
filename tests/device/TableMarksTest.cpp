// Marked cells in the whole tool: every table of editors has them, what a command changes goes to the
// flash, and menus and dialogs go with the page.
#include <QClipboard>
#include <QHeaderView>
#include <QInputDialog>
#include <QMenu>

#include "tests/common/TestClass.h"
#include "tests/device/CalibrationSession.h"

namespace {

constexpr const char *kPages[] = {
    "CNrContRxDockWidgetV7",        "CNrRssiDockWidgetV7",          "CNrRxPathlossDockWidgetV7",
    "CNrRsrpForceDockWidgetV7",     "CNrRsrpNormalDockWidgetV7",    "CNrSingleToneTxDockWidgetV7",
    "CNrPuschTxForcedDockWidgetV7", "CNrPuschTxNormalDockWidgetV7", "CNrAptProfileDockWidgetV7",
};

bool IsEditor(const QWidget *cell)
{
    return qobject_cast<const QAbstractSpinBox *>(cell) || qobject_cast<const QComboBox *>(cell) ||
           qobject_cast<const QLineEdit *>(cell);
}

// Tables of editors alone, without hidden rows or columns.
QList<QTableWidget *> EditorTables(const QWidget *page)
{
    QList<QTableWidget *> tables;
    for (QTableWidget *table : page->findChildren<QTableWidget *>()) {
        bool isEdited = table->columnCount() > 1 && table->rowCount() > 0;
        for (int r = 0; isEdited && r < table->rowCount(); ++r) {
            for (int c = 0; c < table->columnCount(); ++c)
                isEdited = isEdited && IsEditor(table->cellWidget(r, c));
        }
        if (isEdited)
            tables.append(table);
    }
    return tables;
}

QString TextOf(const QWidget *cell)
{
    if (const auto *box = qobject_cast<const QAbstractSpinBox *>(cell))
        return box->text();
    if (const auto *list = qobject_cast<const QComboBox *>(cell))
        return list->currentText();
    return qobject_cast<const QLineEdit *>(cell)->text();
}

int MarkedCells(const QTableWidget *table)
{
    return table->selectionModel()->selectedIndexes().size();
}

void ClickRow(const QTableWidget *table, int row, Qt::KeyboardModifiers modifiers = {})
{
    QHeaderView *header = table->verticalHeader();
    const int y = header->sectionViewportPosition(row) + header->sectionSize(row) / 2;
    QTest::mouseClick(header->viewport(), Qt::LeftButton, modifiers, QPoint(4, y));
}

QMenu *OpenMenu()
{
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

void AskMenu(QWidget *cell)
{
    QContextMenuEvent event(QContextMenuEvent::Mouse, cell->rect().center(),
                            cell->mapToGlobal(cell->rect().center()));
    QApplication::sendEvent(cell, &event);
}

}  // namespace

class TableMarksTest : public QObject
{
    Q_OBJECT

private slots:
    void everyTableOfEditorsIsMarkedAndCopied_data()
    {
        QTest::addColumn<QString>("page");
        for (const char *page : kPages)
            QTest::newRow(page) << QString(page);
    }
    void everyTableOfEditorsIsMarkedAndCopied();
    void pastedAndFilledCellsGoToTheFlash();
    void undoKeyTakesAWholePasteBack();
    void refusedPasteIsNamedInTheStatusLineAndInABox();
    void commandPassesOverDisabledCells();
    void openMenuGoesWithAResetAndAnUnload();
    void dialogOfAnOffsetGoesWithAReset();
    void menuOverACellIsNotThePageMenu();
};

void TableMarksTest::everyTableOfEditorsIsMarkedAndCopied()
{
    QFETCH(QString, page);
    CPluginSession session("handset", 1, page);
    QVERIFY(session.ShowAndWait());
    const bool hasTables = page.contains("Pathloss") || page.contains("Apt");
    const QList<QTableWidget *> tables = EditorTables(session.Page());
    QVERIFY(!tables.isEmpty() || !hasTables);
    for (QTableWidget *table : tables) {
        const QByteArray name = table->objectName().toUtf8();
        QWidget *first = table->cellWidget(0, 0);
        QTest::keyClick(first, Qt::Key_Right, Qt::ShiftModifier);
        QVERIFY2(MarkedCells(table) == 2, name);
        QTest::keyClick(first, Qt::Key_C, Qt::ControlModifier);
        QVERIFY2(QGuiApplication::clipboard()->text() ==
                     TextOf(first) + '\t' + TextOf(table->cellWidget(0, 1)) + '\n',
                 name);
        QTest::keyClick(first, Qt::Key_Escape);
        QVERIFY2(MarkedCells(table) == 0, name);
        ClickRow(table, 0);
        QVERIFY2(MarkedCells(table) == table->columnCount(), name);
    }
    // One table of the page is marked.
    for (int i = 0; i + 1 < tables.size(); ++i)
        QCOMPARE(MarkedCells(tables[i]), 0);
}

void TableMarksTest::pastedAndFilledCellsGoToTheFlash()
{
    CCalibrationSession session(kAptPage);
    QVERIFY(session.ShowAndWait());
    QVERIFY(session.Run(kRead));
    QVERIFY(session.Run(kWrite));
    const QVector<QByteArray> before = Rounds(0);
    QTableWidget *table = session.Table(7, "paHighPaGain");
    QWidget *first = table->cellWidget(0, 0);
    first->setFocus();
    QGuiApplication::clipboard()->setText("1.5\t-2.5\r\n");
    QTest::keyClick(first, Qt::Key_V, Qt::ControlModifier);
    QTest::keyClick(first, Qt::Key_Escape);
    // The second column's value into the third and the fourth.
    QWidget *second = table->cellWidget(0, 1);
    second->setFocus();
    QTest::keyClick(second, Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClick(second, Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClick(second, Qt::Key_R, Qt::ControlModifier);
    QCOMPARE(session.TableTexts(7, "paHighPaGain").mid(0, 4),
             (QStringList{"1.50000", "-2.50000", "-2.50000", "-2.50000"}));

    const int skip = JournalOf(kWriteCall).size();
    QVERIFY(session.Run(kWrite));
    const QVector<SWordChange> changes = Changes(before, Rounds(skip));
    QCOMPARE(changes.size(), 4);
    QCOMPARE(changes[0].after, int16_t(48));
    for (int i = 1; i < 4; ++i)
        QCOMPARE(changes[i].after, int16_t(-80));
}

void TableMarksTest::undoKeyTakesAWholePasteBack()
{
    CCalibrationSession session(kAptPage);
    QVERIFY(session.ShowAndWait());
    QVERIFY(session.Run(kRead));
    QTableWidget *table = session.Table(7, "paHighPaGain");
    const QStringList before = session.TableTexts(7, "paHighPaGain");
    QWidget *first = table->cellWidget(0, 0);
    first->setFocus();
    QGuiApplication::clipboard()->setText("1.5\t-2.5\t3.5\n");
    QTest::keyClick(first, Qt::Key_V, Qt::ControlModifier);
    const QStringList pasted = session.TableTexts(7, "paHighPaGain");
    QVERIFY(pasted != before);
    QVERIFY(MarkedCells(table) > 0);
    QTest::keyClick(first, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(session.TableTexts(7, "paHighPaGain"), before);
    QTest::keyClick(first, Qt::Key_Y, Qt::ControlModifier);
    QCOMPARE(session.TableTexts(7, "paHighPaGain"), pasted);
}

void TableMarksTest::refusedPasteIsNamedInTheStatusLineAndInABox()
{
    CCalibrationSession session(kAptPage);
    QVERIFY(session.ShowAndWait());
    QVERIFY(session.Run(kRead));
    QTableWidget *table = session.Table(7, "paHighPaGain");
    const QStringList before = session.TableTexts(7, "paHighPaGain");
    QWidget *first = table->cellWidget(0, 0);
    first->setFocus();
    QGuiApplication::clipboard()->setText("1.5\t2,5\n");
    CBoxWatcher boxes;
    QTest::keyClick(first, Qt::Key_V, Qt::ControlModifier);
    const QString said = session.StatusBar();
    const QString place =
        QString("Paste: %1, %2: ")
            .arg(table->model()->headerData(0, Qt::Vertical).toString().simplified(),
                 table->model()->headerData(1, Qt::Horizontal).toString());
    QVERIFY2(said.startsWith(place + "\"2,5\" has a comma; decimals take a point. Allowed: " +
                             table->cellWidget(0, 1)->toolTip()),
             qPrintable(said));
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
    QCOMPARE(boxes.Seen().first().text, said);
    QCOMPARE(session.TableTexts(7, "paHighPaGain"), before);
}

void TableMarksTest::commandPassesOverDisabledCells()
{
    CCalibrationSession session(kAptPage);
    QVERIFY(session.ShowAndWait());
    QVERIFY(session.Run(kRead));
    QTableWidget *table = session.Table(7, "paHighPaGain");
    table->cellWidget(0, 1)->setEnabled(false);
    const QString kept = TextOf(table->cellWidget(0, 1));
    ClickRow(table, 0);
    QTest::keyClick(table, Qt::Key_Delete);
    for (int c = 0; c < table->columnCount(); ++c)
        QCOMPARE(TextOf(table->cellWidget(0, c)), c == 1 ? kept : QString("0.00000"));
}

void TableMarksTest::openMenuGoesWithAResetAndAnUnload()
{
    CCalibrationSession session(kAptPage);
    QVERIFY(session.ShowAndWait());
    AskMenu(session.Table(7, "paHighPaGain")->cellWidget(0, 0));
    QPointer<QMenu> menu = OpenMenu();
    QVERIFY(menu);
    session->ResetPlugin();
    QVERIFY(WaitUntil([&] { return !menu; }));
    QVERIFY(!OpenMenu());

    QVERIFY(session.ShowAndWait());
    AskMenu(session.Table(7, "paHighPaGain")->cellWidget(0, 0));
    menu = OpenMenu();
    QVERIFY(menu);
    session.Unload();
    QVERIFY(!menu);
}

void TableMarksTest::dialogOfAnOffsetGoesWithAReset()
{
    CCalibrationSession session(kAptPage);
    QVERIFY(session.ShowAndWait());
    QTableWidget *table = session.Table(7, "paHighPaGain");
    ClickRow(table, 0);
    QTest::keyClick(table, Qt::Key_O, Qt::ControlModifier | Qt::ShiftModifier);
    const QPointer<QInputDialog> dialog = session.Page()->findChild<QInputDialog *>();
    QVERIFY(dialog && dialog->isVisible());
    session->ResetPlugin();
    QVERIFY(WaitUntil([&] { return !dialog; }));
}

void TableMarksTest::menuOverACellIsNotThePageMenu()
{
    CCalibrationSession session(kAptPage);
    QVERIFY(session.ShowAndWait());
    AskMenu(session.Table(7, "paHighPaGain")->cellWidget(0, 0));
    QMenu *menu = OpenMenu();
    QVERIFY(menu);
    QCOMPARE(menu->objectName(), QString("m_contextMenu"));
    menu->close();
}

QUORLIN_TEST_CLASS(TableMarksTest)
#include "TableMarksTest.moc"
