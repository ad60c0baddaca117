#include "View/editors/TableMark.h"

#include <algorithm>
#include <numeric>

#include <QDockWidget>
#include <QGuiApplication>
#include <QHeaderView>

#include "View/editors/CellLook.h"
#include "View/editors/LateEditors.h"
#include "View/editors/ScrollIntoView.h"

namespace {

// A longer table has its editors in its newest rows alone.
constexpr int kMostRowsOfEditors = 1024;
// A header that shows which columns are selected looks at each of their cells, whenever it is painted.
// The row headers of a longer table show the mark alone.
constexpr int kMostRowsOfBoldColumns = 10000;

// The next section that is seen, some steps on; the last one when there are fewer.
int Stepped(const QHeaderView *header, int section, int steps)
{
    if (!header->sectionsHidden())
        return static_cast<int>(
            std::clamp<qint64>(static_cast<qint64>(section) + steps, 0, header->count() - 1));
    const int by = steps < 0 ? -1 : 1;
    for (int next = section + by; steps != 0 && next >= 0 && next < header->count(); next += by) {
        if (header->isSectionHidden(next))
            continue;
        section = next;
        steps -= by;
    }
    return section;
}

std::vector<int> Seen(const QHeaderView *header, int first, int last)
{
    std::vector<int> sections;
    if (!header->sectionsHidden()) {
        sections.resize(static_cast<size_t>(std::max(0, last - first + 1)));
        std::iota(sections.begin(), sections.end(), first);
        return sections;
    }
    for (int i = first; i <= last; ++i) {
        if (!header->isSectionHidden(i))
            sections.push_back(i);
    }
    return sections;
}

void Look(const QTableWidget *table, const QItemSelection &cells, bool isMarked)
{
    for (const QItemSelectionRange &range : cells) {
        const int first = std::max(range.top(), table->rowCount() - kMostRowsOfEditors);
        for (int r = first; r <= range.bottom(); ++r) {
            for (int c = range.left(); c <= range.right(); ++c) {
                if (QWidget *cell = table->cellWidget(r, c))
                    SetCellLook(cell, ECellLook::Marked, isMarked);
            }
        }
    }
}

}  // namespace

CTableMark::CTableMark(QTableWidget *table) : QObject(table), m_table(table)
{
    table->setSelectionMode(QAbstractItemView::NoSelection);
    connect(table->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &CTableMark::Show);
    ListenTo(table->verticalHeader(), &CTableMark::MarkRows);
    ListenTo(table->horizontalHeader(), &CTableMark::MarkColumns);
}

// A click, with Shift up to there, and the mouse that goes on with its button down.
void CTableMark::ListenTo(const QHeaderView *header, void (CTableMark::*mark)(int, int))
{
    connect(header, &QHeaderView::sectionPressed, this, [this, mark](int section) {
        const bool isOn = QGuiApplication::keyboardModifiers() & Qt::ShiftModifier;
        if (!isOn || m_firstSection < 0 || IsEmpty())
            m_firstSection = section;
        (this->*mark)(m_firstSection, section);
    });
    connect(header, &QHeaderView::sectionEntered, this,
            [this, mark](int section) { (this->*mark)(m_firstSection, section); });
}

CTableMark *CTableMark::Of(const QWidget *table)
{
    return table->findChild<CTableMark *>(QString(), Qt::FindDirectChildrenOnly);
}

bool CTableMark::IsEmpty() const
{
    return !m_table->selectionModel()->hasSelection();
}

bool CTableMark::Has(const QModelIndex &at) const
{
    return m_table->selectionModel()->isSelected(at);
}

void CTableMark::SetCurrent(const QModelIndex &at)
{
    if (IsEmpty())
        m_current = m_corner = at;
}

void CTableMark::Extend(int rows, int columns)
{
    if (!m_corner.isValid())
        return;
    ExtendTo(
        m_table->model()->index(Stepped(m_table->verticalHeader(), m_corner.row(), rows),
                                Stepped(m_table->horizontalHeader(), m_corner.column(), columns)));
}

void CTableMark::ExtendTo(QModelIndex corner)
{
    if (!corner.isValid())
        return;
    Set(m_current.isValid() ? QModelIndex(m_current) : corner, corner);
    if (QWidget *cell = m_table->cellWidget(corner.row(), corner.column()))
        ScrollIntoView(cell, m_table);
    else
        m_table->scrollTo(corner);
}

void CTableMark::Go(int rows, int columns)
{
    const bool isFirst = !m_corner.isValid();
    const int row = isFirst ? 0 : Stepped(m_table->verticalHeader(), m_corner.row(), rows);
    const int column =
        isFirst ? 0 : Stepped(m_table->horizontalHeader(), m_corner.column(), columns);
    m_current = m_table->model()->index(row, column);
    ExtendTo(m_current);
}

// By value: the index of a persistent one goes when that gets another.
void CTableMark::Set(QModelIndex current, QModelIndex corner)
{
    if (!current.isValid() || !corner.isValid())
        return;
    EnsureEditors(m_table);
    m_current = current;
    m_corner = corner;
    ShowInColumnHeader(m_table->rowCount() <= kMostRowsOfBoldColumns);
    const auto [top, bottom] = std::minmax({current.row(), corner.row()});
    const auto [left, right] = std::minmax({current.column(), corner.column()});
    const QAbstractItemModel *model = m_table->model();
    m_table->selectionModel()->select(
        QItemSelection(model->index(top, left), model->index(bottom, right)),
        QItemSelectionModel::ClearAndSelect);
}

// A header without the table's selection shows that of a model which has none.
void CTableMark::ShowInColumnHeader(bool isShown)
{
    if (!isShown && !m_none)
        m_none = new QItemSelectionModel(m_table->model(), this);
    QHeaderView *header = m_table->horizontalHeader();
    QItemSelectionModel *wanted = isShown ? m_table->selectionModel() : m_none;
    if (header->selectionModel() != wanted)
        header->setSelectionModel(wanted);
}

void CTableMark::MarkAll()
{
    MarkRows(0, m_table->rowCount() - 1);
}

void CTableMark::MarkRows(int first, int last)
{
    const QAbstractItemModel *model = m_table->model();
    Set(model->index(first, 0), model->index(last, m_table->columnCount() - 1));
}

void CTableMark::MarkColumns(int first, int last)
{
    const QAbstractItemModel *model = m_table->model();
    Set(model->index(0, first), model->index(m_table->rowCount() - 1, last));
}

void CTableMark::Clear()
{
    m_table->clearSelection();
}

std::vector<int> CTableMark::Rows() const
{
    const QItemSelection cells = m_table->selectionModel()->selection();
    if (!cells.isEmpty())
        return Seen(m_table->verticalHeader(), cells.first().top(), cells.first().bottom());
    if (m_current.isValid())
        return {m_current.row()};
    return {};
}

std::vector<int> CTableMark::Columns() const
{
    const QItemSelection cells = m_table->selectionModel()->selection();
    if (!cells.isEmpty())
        return Seen(m_table->horizontalHeader(), cells.first().left(), cells.first().right());
    if (m_current.isValid())
        return {m_current.column()};
    return {};
}

void CTableMark::Show(const QItemSelection &added, const QItemSelection &gone)
{
    if (!IsEmpty())
        ClearOthers();
    Look(m_table, gone, false);
    Look(m_table, added, true);
    emit Changed();
}

void CTableMark::ClearOthers() const
{
    const QWidget *page = m_table;
    while (page && !qobject_cast<const QDockWidget *>(page))
        page = page->parentWidget();
    if (!page)
        return;
    for (const QTableWidget *table : page->findChildren<QTableWidget *>()) {
        CTableMark *other = Of(table);
        if (other && other != this && !other->IsEmpty())
            other->Clear();
    }
}
