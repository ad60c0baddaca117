// The editors of a table that are made when somebody looks at it.
//
// Hundreds of editors cost more than all the rest of a page, and most tables stand on pages and tabs
// that nobody opens. Such a table has no editors at first: its cellWidget is null. They are made
// at the table's first paint, just before it, or by EnsureEditors, which is for whoever needs a cell
// as a widget: keys, a reset, a change that gives a row new limits, a test.
//
// A class that has the table's values derives from it and says how its editors are made. GUI thread;
// lives as long as its table.
//
//   EnsureEditors(table);
//   table->cellWidget(0, 0)->setFocus();
//   WhenEditorsAreMade(table, this, [this] { WatchCells(); });
#pragma once

#include <functional>

#include <QObject>
#include <QTableWidget>

class CLateEditors : public QObject
{
    Q_OBJECT

public:
    explicit CLateEditors(QTableWidget *table);

    // Null when the table has all its editors from the start, or is no table.
    static CLateEditors *Of(const QWidget *table);

    // From now on the table's first paint makes them.
    void MakeAtPaint();
    bool AreMade() const { return m_areMade; }
    // Makes them, if they are not made.
    Q_INVOKABLE void Ensure();

    bool eventFilter(QObject *object, QEvent *event) override;

signals:
    void Made();

protected:
    virtual void Make() = 0;
    QTableWidget *Table() const { return m_table; }

private:
    void MakeAll(bool isInPaint);

    QTableWidget *const m_table;
    bool m_areMade = false;
};

// Makes the editors of a table that has none yet.
void EnsureEditors(const QWidget *table);
// Calls as soon as the table has its editors: at once, or when they are made, if context is there
// then.
void WhenEditorsAreMade(const QWidget *table, const QObject *context,
                        const std::function<void()> &call);
