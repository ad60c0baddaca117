// The names of a table's cells: the captions of their row and column, "LNA Mode 0, column 3".
//
// An editor has it as its accessible name, and its limits with the unit as its description
// (SpokenText.h). A result that is a label is named by its value; its description begins with row and
// column. Cells without a widget need nothing: Qt's own table says row, column and headers of them.
// The names follow the headers. GUI thread; lives as long as its table.
//
//   auto *names = new CCellNames(table);
//   names->Name(row, column, editor);
//   names->SetUnits(Qt::Vertical, {"dB", "kHz"});   // of rows
#pragma once

#include <QHash>
#include <QStringList>

#include "View/access/SpokenText.h"

class QTableWidget;

class CCellNames : public QObject
{
    Q_OBJECT

public:
    explicit CCellNames(QTableWidget *table);

    // Null when the table has none.
    static CCellNames *Of(const QWidget *table);

    void Name(int row, int column, QWidget *cell);
    // By row (Qt::Vertical) or by column; of cells that are there and of those to come.
    void SetUnits(Qt::Orientation orientation, const QStringList &units);

private:
    QString NameOf(int row, int column);
    void NameAgain(Qt::Orientation orientation, int first, int last);

    QTableWidget *const m_table;
    CSpokenLimits m_limits;
    Qt::Orientation m_unitsOf = Qt::Vertical;
    QStringList m_units;
    QStringList m_columns;  // their names, as far as they are known
    QHash<int, QString> m_rows;
};
