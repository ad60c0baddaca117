// The mark of a table: a rectangle of cells that the next table command is for.
//
// The mark is the selection of the table (QItemSelectionModel), so screen readers hear of it; the
// editors of marked cells look marked (CellLook.h). The table itself selects nothing more: Qt would
// select each cell that gets the focus. A click on a header marks its row or column. The mark goes from the cell where it began to its corner, which moves. Hidden rows and columns are passed
// over: they are no part of it. A disabled cell may be marked. On a page one table has a mark: that
// of another table goes. To mark cells makes late editors. GUI thread; lives as long as its table.
//
//   CTableMark *mark = CTableMark::Of(table);
//   mark->SetCurrent(table->model()->index(2, 3));
//   mark->Extend(1, 0);   // two cells
//   mark->Rows();         // {2, 3}
#pragma once

#include <vector>

#include <QItemSelection>
#include <QObject>
#include <QTableWidget>

class QHeaderView;

class CTableMark : public QObject
{
    Q_OBJECT

public:
    explicit CTableMark(QTableWidget *table);

    // Null when the table has none.
    static CTableMark *Of(const QWidget *table);

    bool IsEmpty() const;
    bool Has(const QModelIndex &at) const;
    // The cell where the next mark begins; what is marked stays.
    void SetCurrent(const QModelIndex &at);
    // Moves the corner by so many rows and columns that are seen; stays at the table's edge.
    void Extend(int rows, int columns);
    void ExtendTo(QModelIndex corner);
    // Marks the cell alone that is so far from the corner; the first one of the table without a corner.
    void Go(int rows, int columns);
    void MarkAll();
    // From the first section on to the last one, all of each.
    void MarkRows(int first, int last);
    void MarkColumns(int first, int last);
    void Clear();

    // Of the mark, or of the current cell without one, in order; empty when there is neither.
    std::vector<int> Rows() const;
    std::vector<int> Columns() const;
    // The cell where the mark begins.
    QModelIndex Current() const { return m_current; }

signals:
    void Changed();

private:
    void Set(QModelIndex current, QModelIndex corner);
    void ListenTo(const QHeaderView *header, void (CTableMark::*mark)(int, int));
    void Show(const QItemSelection &added, const QItemSelection &gone);
    void ClearOthers() const;
    void ShowInColumnHeader(bool isShown);

    QTableWidget *const m_table;
    QItemSelectionModel *m_none = nullptr;
    QPersistentModelIndex m_current;
    QPersistentModelIndex m_corner;
    int m_firstSection = -1;  // where a mark by a header begins
};
