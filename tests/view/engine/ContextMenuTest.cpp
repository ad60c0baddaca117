// The one context menu of editors and tables, and what it leaves to the page menu.
#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLabel>
#include <QMenu>
#include <QSpinBox>
#include <QtTest>

#include "tests/common/TestClass.h"
#include "tests/view/engine/CellGrid.h"

namespace {

// As the right button does it, on what is seen there.
void AskMenu(QWidget *page, QWidget *widget)
{
    const QPoint at = widget->mapTo(page, widget->rect().center());
    QWidget *under = page->childAt(at);
    const QPoint pos = under->mapFrom(page, at);
    QContextMenuEvent event(QContextMenuEvent::Mouse, pos, under->mapToGlobal(pos));
    QApplication::sendEvent(under, &event);
}

QMenu *OpenMenu()
{
    return qobject_cast<QMenu *>(QApplication::activePopupWidget());
}

// The entries in order, without their keys; "|" is a line between two parts.
QString Entries()
{
    QStringList entries;
    for (const QAction *action : OpenMenu() ? OpenMenu()->actions() : QList<QAction *>())
        entries.append(action->isSeparator() ? "|"
                                             : action->text().section('\t', 0, 0).remove('&'));
    return entries.join(' ');
}

QAction *Entry(const QString &text)
{
    for (QAction *action : OpenMenu() ? OpenMenu()->actions() : QList<QAction *>()) {
        if (action->text().section('\t', 0, 0).remove('&') == text)
            return action;
    }
    return nullptr;
}

// As a user does it.
void Choose(const QString &text)
{
    QMenu *menu = OpenMenu();
    QAction *entry = Entry(text);
    QVERIFY2(entry, qPrintable(text));
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(entry).center());
}

const char kTextPart[] = "Undo Redo | Cut Copy Paste Delete | Select All | Step up Step down";
const char kTablePart[] = "Copy cells Copy with headers Paste cells Set to 0 Fill right "
                          "Add an offset... Interpolate Mark all cells";

}  // namespace

class CContextMenuTest : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        if (QMenu *menu = OpenMenu())
            menu->close();
    }

    void cellHasItsOwnEntriesTheMembersTheTablesAndThePages()
    {
        CCellGrid grid;
        grid.Cell(1, 1)->addAction(new QAction("Of the member", &grid.m_page));
        grid.m_table->addAction(new QAction("Of the table", &grid.m_page));
        grid.m_page.addAction(new QAction("Of the page", &grid.m_page));
        AskMenu(&grid.m_page, grid.Cell(1, 1));
        QCOMPARE(Entries(), QString(kTextPart) + " | Of the member | " + kTablePart +
                                " Of the table | Of the page");
    }

    void menuKeyAndShiftF10OpenItAtTheFocus()
    {
        CCellGrid grid;
        grid.Focus(1, 1);
        grid.Press(Qt::Key_F10, Qt::ShiftModifier);
        QVERIFY(OpenMenu());
        QVERIFY(Entries().startsWith(kTextPart));
        OpenMenu()->close();
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(1, 1));
        QApplication::sendEvent(grid.Cell(1, 1), &event);
        QVERIFY(OpenMenu());
    }

    void everyEntryOfTheTableWorks_data()
    {
        QTest::addColumn<QString>("entry");
        QTest::addColumn<QString>("numbers");
        QTest::newRow("paste") << "Paste cells"
                               << "0 7 7 7 4";
        QTest::newRow("zero") << "Set to 0"
                              << "0 0 0 0 4";
        QTest::newRow("fill right") << "Fill right"
                                    << "0 1 1 1 4";
        QTest::newRow("interpolate") << "Interpolate"
                                     << "0 1 -1 -3 4";
    }

    void everyEntryOfTheTableWorks()
    {
        QFETCH(QString, entry);
        CCellGrid grid;
        QGuiApplication::clipboard()->setText("7");
        grid.Box(0, 3)->setValue(entry == "Interpolate" ? -3 : 3);
        grid.MarkCells(0, 1, 0, 3);
        grid.Click(0, 2, {}, Qt::RightButton);
        AskMenu(&grid.m_page, grid.Cell(0, 2));
        Choose(entry);
        QTEST(grid.Numbers(0), "numbers");
    }

    void copyAndMarkAllWorkFromTheMenu()
    {
        CCellGrid grid;
        grid.MarkCells(0, 1, 0, 2);
        AskMenu(&grid.m_page, grid.Cell(0, 2));
        Choose("Copy cells");
        QCOMPARE(QGuiApplication::clipboard()->text(), QString("1.00000\t2.00000\n"));
        AskMenu(&grid.m_page, grid.Cell(0, 2));
        Choose("Copy with headers");
        QVERIFY(QGuiApplication::clipboard()->text().contains("\nRow 0\t1.00000"));
        AskMenu(&grid.m_page, grid.Cell(0, 2));
        Choose("Mark all cells");
        QCOMPARE(grid.Marked().count(' '), 14);
    }

    void withoutAMarkAnEntryIsForTheCellUnderTheMenu()
    {
        CCellGrid grid;
        grid.Focus(0, 0);
        AskMenu(&grid.m_page, grid.Cell(1, 2));
        Choose("Set to 0");
        QCOMPARE(grid.Numbers(1), QString("10 11 0 13 14"));
        QCOMPARE(grid.Numbers(0), QString("0 1 2 3 4"));
    }

    void disabledCellHasTheTablesPart()
    {
        CCellGrid grid;
        grid.Cell(1, 2)->setEnabled(false);
        AskMenu(&grid.m_page, grid.Cell(1, 2));
        QCOMPARE(Entries(), QString(kTablePart));
        Choose("Copy cells");
        QCOMPARE(QGuiApplication::clipboard()->text(), QString("12.00000\n"));
    }

    void editUnderWayIsFinishedBeforeTheMenuComes()
    {
        CCellGrid grid;
        grid.Focus(1, 1);
        QTest::keyClicks(grid.Cell(1, 1), "1.4");
        AskMenu(&grid.m_page, grid.Cell(1, 1));
        QCOMPARE(grid.Box(1, 1)->text(), QString("1.40625"));
    }

    void stepOfTheMenuEndsAsAnyStepDoes()
    {
        CCellGrid grid;
        grid.Focus(1, 1);
        AskMenu(&grid.m_page, grid.Cell(1, 1));
        Choose("Step up");
        QCOMPARE(grid.Box(1, 1)->text(), QString("11.03125"));
        QCOMPARE(grid.m_page.Edits().Editor(), grid.Cell(1, 1));
        AskMenu(&grid.m_page, grid.Cell(1, 1));
        Choose("Step down");
        QCOMPARE(grid.Box(1, 1)->text(), QString("11.00000"));
        grid.Box(1, 1)->setValue(40);
        AskMenu(&grid.m_page, grid.Cell(1, 1));
        QVERIFY(!Entry("Step up")->isEnabled());
    }

    void memberAloneHasItsOwnEntriesAndThePages()
    {
        CTestPage page(CTestDocument().Member(
            "request.group1.number",
            "{'trait':{'dataType':'range','value':{'min':0,'max':9},'defaultValue':'5'}}"));
        auto *box = page.Add<QSpinBox>("request.group1.number");
        page.addAction(new QAction("Of the page", &page));
        page.Init();
        AskMenu(&page, box);
        QCOMPARE(Entries(), QString(kTextPart) + " | Of the page");
    }

    void placeWithoutEntriesIsLeftToThePageMenu()
    {
        CTestPage page{CTestDocument()};
        auto *list = page.Add<QComboBox>("request.group1.list");
        auto *label = page.Add<QLabel>("request.group1.label");
        page.setContextMenuPolicy(Qt::CustomContextMenu);
        page.addAction(new QAction("Of the page", &page));
        page.Init();
        QSignalSpy asked(&page, &QWidget::customContextMenuRequested);
        AskMenu(&page, label);
        QVERIFY(!OpenMenu());
        QCOMPARE(asked.size(), 1);
        // A list never had one.
        AskMenu(&page, list);
        QVERIFY(!OpenMenu());
        QCOMPARE(asked.size(), 1);
        list->addAction(new QAction("Of the member", &page));
        AskMenu(&page, list);
        QCOMPARE(Entries(), QString("Of the member | Of the page"));
        QCOMPARE(asked.size(), 1);
    }

    void menuGoesWithThePageAndWhenItIsClosed()
    {
        auto grid = std::make_unique<CCellGrid>();
        AskMenu(&grid->m_page, grid->Cell(1, 1));
        QPointer<QMenu> menu = OpenMenu();
        QVERIFY(menu);
        menu->close();
        QCoreApplication::sendPostedEvents(menu, QEvent::DeferredDelete);
        QVERIFY(!menu);
        AskMenu(&grid->m_page, grid->Cell(1, 1));
        menu = OpenMenu();
        grid.reset();
        QVERIFY(!menu);
        QVERIFY(!OpenMenu());
    }
};

QUORLIN_TEST_CLASS(CContextMenuTest)
#include "ContextMenuTest.moc"
