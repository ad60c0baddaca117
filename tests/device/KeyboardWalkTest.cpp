// Every control of every page is reached by the keyboard alone, and every table is left again.
#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QScrollArea>
#include <QTableWidget>
#include <QtTest>

#include "tests/common/PluginSession.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"

namespace {

constexpr const char *kPages[] = {
    "CNrContRxDockWidgetV7",        "CNrRssiDockWidgetV7",          "CNrRxPathlossDockWidgetV7",
    "CNrRsrpForceDockWidgetV7",     "CNrRsrpNormalDockWidgetV7",    "CNrSingleToneTxDockWidgetV7",
    "CNrPuschTxForcedDockWidgetV7", "CNrPuschTxNormalDockWidgetV7", "CNrAptProfileDockWidgetV7",
};

QTableWidget *TableOf(const QWidget *widget)
{
    for (QWidget *parent = widget->parentWidget(); parent; parent = parent->parentWidget()) {
        if (auto *table = qobject_cast<QTableWidget *>(parent))
            return table;
    }
    return nullptr;
}

bool IsInSight(const QWidget *widget)
{
    for (QWidget *parent = widget->parentWidget(); parent; parent = parent->parentWidget()) {
        const QRect place(widget->mapTo(parent, QPoint()), widget->size());
        if (parent->isWindow())
            return true;
        if (!qobject_cast<QAbstractScrollArea *>(parent->parentWidget()))
            continue;
        // A spin box may lose a pixel of its frame; what is wider than the view fills it.
        QRect room = parent->rect().adjusted(-2, -2, 2, 2);
        if (place.width() > room.width())
            room = QRect(place.x(), room.y(), place.width(), room.height());
        if (!room.contains(place))
            return false;
    }
    return true;
}

QString NameOf(const QWidget *widget)
{
    const QTableWidget *table = TableOf(widget);
    return table ? table->objectName() : widget->objectName();
}

// What the user can work with now, tables as one.
QSet<QString> Controls(const QWidget *page)
{
    QSet<QString> names;
    for (const QWidget *widget : page->findChildren<QWidget *>()) {
        const bool isControl = qobject_cast<const QAbstractButton *>(widget) ||
                               qobject_cast<const QComboBox *>(widget) ||
                               qobject_cast<const QAbstractSpinBox *>(widget);
        if (isControl && widget->isVisible() && widget->isEnabled() &&
            widget->focusPolicy() != Qt::NoFocus)
            names.insert(NameOf(widget));
    }
    return names;
}

// Presses a key until the focus is back where it began; the names on the way, in order.
QStringList Walk(QWidget *start, Qt::Key key)
{
    QStringList names;
    constexpr int kMost = 200;
    for (int i = 0; i < kMost; ++i) {
        QWidget *focus = QApplication::focusWidget();
        if (!focus || (!names.isEmpty() && NameOf(focus) == NameOf(start)))
            break;
        names.append(NameOf(focus));
        if (!IsInSight(focus))
            names.append(NameOf(focus) + " out of sight");
        QTest::keyClick(focus, key, key == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
    }
    return names;
}

QWidget *CellOf(const QTableWidget *table, int row, int column)
{
    return table->cellWidget(row, column);
}

QPair<int, int> FocusedCell(const QTableWidget *table)
{
    for (int r = 0; r < table->rowCount(); ++r) {
        for (int c = 0; c < table->columnCount(); ++c) {
            if (QWidget *cell = table->cellWidget(r, c); cell && cell->hasFocus())
                return {r, c};
        }
    }
    return {-1, -1};
}

void Press(Qt::Key key)
{
    QTest::keyClick(QApplication::focusWidget(), key);
}

}  // namespace

class CKeyboardWalkTest : public QObject
{
    Q_OBJECT

private slots:
    void tabReachesEveryControlAndComesRound_data()
    {
        QTest::addColumn<QString>("page");
        for (const char *page : kPages)
            QTest::newRow(page) << QString(page);
    }

    void tabReachesEveryControlAndComesRound()
    {
        QFETCH(QString, page);
        CPluginSession session("handset", 1, page);
        QVERIFY(session.ShowAndWait());
        QApplication::setActiveWindow(session.Window());
        const QString firstName = page.contains("Pathloss") || page.contains("Apt")
                                      ? "calDataIf_config_group1_memberProperty_band"
                                      : "cmdIf_request_group1_memberProperty_band";
        QWidget *first = session.Find(firstName);
        first->setFocus(Qt::TabFocusReason);
        const QStringList onward = Walk(first, Qt::Key_Tab);
        first->setFocus(Qt::TabFocusReason);
        const QStringList back = Walk(first, Qt::Key_Backtab);
        const QSet<QString> reached(onward.begin(), onward.end());
        const QSet<QString> missed = Controls(session.Page()) - reached;
        QVERIFY2(missed.isEmpty(),
                 qPrintable(missed.values().join(' ') + " missed by " + onward.join(' ')));
        QVERIFY2(onward.filter("out of sight").isEmpty(),
                 qPrintable(onward.filter("out of sight").join(' ')));
        QCOMPARE(onward.size(), reached.size());  // each once: it came round
        QStringList expected = onward;
        std::reverse(expected.begin() + 1, expected.end());
        QCOMPARE(back, expected);
    }

    void frequenciesOfRssiComeBeforeStart()
    {
        CPluginSession session("handset", 1, "CNrRssiDockWidgetV7");
        QVERIFY(session.ShowAndWait());
        QApplication::setActiveWindow(session.Window());
        auto *table = session.Find<QTableWidget>("cmdIf_request_group2_memberProperty_dlFrequency");
        session.Find("m_start")->setFocus();
        QTest::keyClick(session.Find("m_start"), Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(FocusedCell(table), qMakePair(0, 0));
        Press(Qt::Key_Tab);
        QVERIFY(session.Find("m_start")->hasFocus());
    }

    void keysMoveBetweenTheCellsOfATable()
    {
        CPluginSession session("handset", 1, "CNrRxPathlossDockWidgetV7");
        QVERIFY(session.ShowAndWait());
        QApplication::setActiveWindow(session.Window());
        auto *table = session.Find<QTableWidget>("calDataIf_data_group2_memberProperty_lna0");
        CellOf(table, 0, 0)->setFocus();
        const struct
        {
            Qt::Key key;
            int row;
            int column;
        } steps[] = {
            {Qt::Key_Down, 1, 0},   {Qt::Key_Right, 1, 1}, {Qt::Key_Right, 1, 2},
            {Qt::Key_Up, 0, 2},     {Qt::Key_Up, 0, 2},    {Qt::Key_Left, 0, 1},
            {Qt::Key_Return, 1, 1}, {Qt::Key_Enter, 2, 1}, {Qt::Key_Left, 2, 0},
            {Qt::Key_Left, 2, 0},
        };
        for (const auto &step : steps) {
            Press(step.key);
            QCOMPARE(FocusedCell(table), qMakePair(step.row, step.column));
            QVERIFY(IsInSight(CellOf(table, step.row, step.column)));
        }
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_PageUp);
        auto *cell = qobject_cast<QAbstractSpinBox *>(CellOf(table, 2, 0));
        QCOMPARE(cell->text(), QString("0.03125"));
        Press(Qt::Key_PageDown);
        Press(Qt::Key_PageDown);
        QCOMPARE(cell->text(), QString("-0.03125"));
    }

    void arrowsMoveInsideTheTextFirst()
    {
        CPluginSession session("handset", 1, "CNrRxPathlossDockWidgetV7");
        QVERIFY(session.ShowAndWait());
        QApplication::setActiveWindow(session.Window());
        auto *table = session.Find<QTableWidget>("calDataIf_data_group2_memberProperty_lna0");
        CellOf(table, 0, 1)->setFocus();
        Press(Qt::Key_Home);
        Press(Qt::Key_Right);
        QCOMPARE(FocusedCell(table), qMakePair(0, 1));
        Press(Qt::Key_Home);
        Press(Qt::Key_Left);
        QCOMPARE(FocusedCell(table), qMakePair(0, 0));
        Press(Qt::Key_End);
        Press(Qt::Key_Right);
        QCOMPARE(FocusedCell(table), qMakePair(0, 1));
    }

    void cellWithTheFocusIsScrolledIntoView()
    {
        CPluginSession session("handset", 1, "CNrRxPathlossDockWidgetV7");
        QVERIFY(session.ShowAndWait());
        QApplication::setActiveWindow(session.Window());
        auto *table = session.Find<QTableWidget>("calDataIf_data_group2_memberProperty_lna0");
        CellOf(table, 7, 0)->setFocus(Qt::TabFocusReason);
        for (int c = 1; c < table->columnCount(); ++c) {
            Press(Qt::Key_Right);
            QCOMPARE(FocusedCell(table), qMakePair(7, c));
            QVERIFY2(IsInSight(CellOf(table, 7, c)), qPrintable(QString::number(c)));
        }
        for (int c = table->columnCount() - 2; c >= 0; --c) {
            Press(Qt::Key_Left);
            QVERIFY2(IsInSight(CellOf(table, 7, c)), qPrintable(QString::number(c)));
        }
    }

    void enterEndsTheEditAndGoesOn()
    {
        CPluginSession session("handset", 1, "CNrRxPathlossDockWidgetV7");
        QVERIFY(session.ShowAndWait());
        QApplication::setActiveWindow(session.Window());
        auto *table = session.Find<QTableWidget>("calDataIf_data_group2_memberProperty_lna0");
        CellOf(table, 7, 0)->setFocus();
        QTest::keyClicks(QApplication::focusWidget(), "1.4");
        auto *cell = qobject_cast<QAbstractSpinBox *>(CellOf(table, 7, 0));
        cell->selectAll();
        QTest::keyClicks(cell, "1.4");
        Press(Qt::Key_Return);
        QCOMPARE(cell->text(), QString("1.40625"));
        QCOMPARE(FocusedCell(table), qMakePair(0, 1));  // the next column
    }
};

QUORLIN_TEST_CLASS(CKeyboardWalkTest)
#include "KeyboardWalkTest.moc"
