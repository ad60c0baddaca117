// The plot of a session's page: opened by its action, worked by its buttons and by the mouse, read from
// the table of its figures.
//
//   CPlotHands plot(session);
//   QVERIFY(plot.Open());
//   QCOMPARE(plot.Figure("RSRP0", "Points"), QString("3"));
#pragma once

#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QtTest>

#include "tests/common/PluginSession.h"
#include "tests/common/WaitUntil.h"

class CPlotHands
{
public:
    explicit CPlotHands(CPluginSession &session) : m_session(session) {}

    QAction *Action() const { return m_session.Page()->findChild<QAction *>("m_actionPlot"); }
    QWidget *Window() const
    {
        return m_session.Page()->findChild<QWidget *>("CPlotWindow", Qt::FindDirectChildrenOnly);
    }
    QWidget *Canvas() const { return Window()->findChild<QWidget *>("QwtPlotCanvas"); }

    bool Open() const
    {
        Action()->trigger();
        return Window() && WaitUntil([this] { return Window()->isVisible(); });
    }
    void Press(const QString &button) const
    {
        QTest::mouseClick(Window()->findChild<QPushButton *>(button), Qt::LeftButton);
    }
    // A column's text in the row of a curve; "no curve" while the table has no such row.
    QString Figure(const QString &curve, const QString &column) const
    {
        const auto *table = Window()->findChild<QTableWidget *>("m_figures");
        for (int r = 0; r < table->rowCount(); ++r) {
            for (int c = 0; table->item(r, 0)->text() == curve && c < table->columnCount(); ++c) {
                if (table->horizontalHeaderItem(c)->text() == column)
                    return table->item(r, c)->text();
            }
        }
        return "no curve";
    }
    bool Shows(const QString &curve, const QString &column, const QString &text) const
    {
        const bool isSo = WaitUntil([&] { return Figure(curve, column) == text; }, 5000);
        if (!isSo)
            qWarning() << curve << column << Figure(curve, column) << "and not" << text;
        return isSo;
    }
    QStringList Curves() const
    {
        QStringList names;
        const auto *table = Window()->findChild<QTableWidget *>("m_figures");
        for (int r = 0; r < table->rowCount(); ++r)
            names.append(table->item(r, 0)->text());
        return names;
    }
    QString Remark() const { return Window()->findChild<QLabel *>("m_remark")->text(); }
    // The entry of a curve in the legend.
    QWidget *LegendEntry(int at) const
    {
        QList<QWidget *> entries;
        for (QWidget *widget : Window()->findChildren<QWidget *>()) {
            if (widget->inherits("QwtLegendLabel") && widget->isVisible())
                entries.append(widget);
        }
        return entries.value(at);
    }

private:
    CPluginSession &m_session;
};
