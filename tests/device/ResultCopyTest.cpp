// Results on the pages are marked, and copied with their captions: by mouse, keyboard and menu.
#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QtTest>

#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"
#include "tests/device/RsrpSession.h"

namespace {

QString Copied()
{
    return QGuiApplication::clipboard()->text();
}

QString CellText(const QTableWidget *table, int row, int column)
{
    if (const auto *label = qobject_cast<QLabel *>(table->cellWidget(row, column)))
        return label->text();
    return table->item(row, column) ? table->item(row, column)->text() : QString();
}

// As the table shows it, with the captions of rows and columns.
QString ShownText(const QTableWidget *table, int firstRow, int lastRow)
{
    const auto caption = [table](int section, Qt::Orientation orientation) {
        return table->model()->headerData(section, orientation).toString();
    };
    QStringList header(QString{});
    for (int c = 0; c < table->columnCount(); ++c)
        header.append(caption(c, Qt::Horizontal));
    QString text = header.join('\t') + '\n';
    for (int r = firstRow; r <= lastRow; ++r) {
        QStringList line(caption(r, Qt::Vertical));
        for (int c = 0; c < table->columnCount(); ++c)
            line.append(CellText(table, r, c));
        text += line.join('\t') + '\n';
    }
    return text;
}

}  // namespace

class ResultCopyTest : public QObject
{
    Q_OBJECT

private slots:
    // The newest rows are labels, the older ones items.
    void reportsAreCopiedAsTheyAreShown_data() { BothRsrpPages(); }

    void reportsAreCopiedAsTheyAreShown()
    {
        QFETCH(QString, mode);
        CRsrpSession session(mode);
        QVERIFY(session.Running());
        constexpr int kReports = 70;
        while (session.Rows() < kReports)
            QVERIFY(session.Fetch());
        QApplication::setActiveWindow(session.Window());
        QTableWidget *table = session.Table();
        session.Find("m_stop")->setFocus();
        table->setFocus(Qt::TabFocusReason);
        QVERIFY(table->hasFocus());
        QTest::keyClick(table, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier);
        QVERIFY(session.WaitForStatus(
            QString("%1 cells copied.").arg(table->rowCount() * table->columnCount())));
        QCOMPARE(Copied(), ShownText(table, 0, table->rowCount() - 1));
    }

    void rowsMarkedByTheirHeadersAreCopied()
    {
        CRsrpSession session("Normal");
        QVERIFY(session.Running());
        while (session.Rows() < 4)
            QVERIFY(session.Fetch());
        QApplication::setActiveWindow(session.Window());
        QTableWidget *table = session.Table();
        QHeaderView *header = table->verticalHeader();
        const auto place = [&](int row) {
            return QPoint(3, header->sectionViewportPosition(row) + header->sectionSize(row) / 2);
        };
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, place(1));
        QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::ShiftModifier, place(2));
        table->setFocus();
        QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(Copied(), ShownText(table, 1, 2));
    }

    void cellOfAClickIsCopiedByTheMenu()
    {
        CPluginSession session("handset", 1, "CNrRssiDockWidgetV7");
        QVERIFY(session.ShowAndWait());
        QApplication::setActiveWindow(session.Window());
        session.Press("m_start");
        QVERIFY(session.WaitForStatus("Fetch RSSI done"));
        auto *table =
            session.Find<QTableWidget>("cmdIf_response_group2_memberProperty_dlFrequency");
        const QPoint place = table->visualRect(table->model()->index(1, 0)).center();
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, place);
        QContextMenuEvent ask(QContextMenuEvent::Mouse, place,
                              table->viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(table->viewport()->childAt(place), &ask);
        auto *menu = session.Page()->findChild<QMenu *>("m_contextMenu");
        QVERIFY(menu);
        QStringList names;
        for (QAction *action : menu->actions()) {
            names.append(action->objectName());
            if (action->objectName() == "m_actionCopyWithHeaders")
                action->trigger();
        }
        menu->close();
        QVERIFY(names.contains("m_actionCopyCells"));
        QVERIFY(!names.contains("m_actionPasteCells"));
        const QString caption = table->horizontalHeaderItem(0)->text();
        QCOMPARE(Copied(), "\t" + caption + "\n" + table->verticalHeaderItem(1)->text() + "\t" +
                               CellText(table, 1, 0) + "\n");
    }

    void tabReachesTheResultsAndTheArrowsMoveInThem()
    {
        CPluginSession session("handset", 1, "CNrRssiDockWidgetV7");
        QVERIFY(session.ShowAndWait());
        QApplication::setActiveWindow(session.Window());
        session.Press("m_start");
        QVERIFY(session.WaitForStatus("Fetch RSSI done"));
        auto *table =
            session.Find<QTableWidget>("cmdIf_response_group2_memberProperty_dlFrequency");
        session.Find("cmdIf_request_group1_memberProperty_band")->setFocus(Qt::TabFocusReason);
        constexpr int kMost = 100;
        for (int i = 0; i < kMost && !table->hasFocus(); ++i)
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QVERIFY(table->hasFocus());
        QTest::keyClick(table, Qt::Key_Home, Qt::ControlModifier);
        QTest::keyClick(table, Qt::Key_End, Qt::ControlModifier | Qt::ShiftModifier);
        QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(Copied(), ShownText(table, 0, table->rowCount() - 1));
    }
};

QUORLIN_TEST_CLASS(ResultCopyTest)
#include "ResultCopyTest.moc"
