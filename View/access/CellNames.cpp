#include "View/access/CellNames.h"

#include <QComboBox>
#include <QLabel>
#include <QTableWidget>

#include "View/access/ListAccess.h"

namespace {

constexpr int kMostRowNames = 256;  // a table grows for days, and its newest rows are named

// A caption that is a number says nothing by itself.
QString SectionName(const QTableWidget *table, int section, Qt::Orientation orientation)
{
    const QString caption =
        table->model()->headerData(section, orientation).toString().simplified();
    bool isNumber = false;
    caption.toDouble(&isNumber);
    if (!caption.isEmpty() && !isNumber)
        return caption;
    return QLatin1String(orientation == Qt::Vertical ? "row " : "column ") +
           (caption.isEmpty() ? QString::number(section + 1) : caption);
}

}  // namespace

CCellNames::CCellNames(QTableWidget *table) : QObject(table), m_table(table)
{
    connect(table->model(), &QAbstractItemModel::headerDataChanged, this, &CCellNames::NameAgain);
    connect(table->model(), &QAbstractItemModel::modelReset, this, [this] {
        m_columns.clear();
        m_rows.clear();
    });
}

CCellNames *CCellNames::Of(const QWidget *table)
{
    return table->findChild<CCellNames *>(QString(), Qt::FindDirectChildrenOnly);
}

void CCellNames::Name(int row, int column, QWidget *cell)
{
    const QString name = NameOf(row, column);
    const QString unit = m_units.value(m_unitsOf == Qt::Vertical ? row : column);
    if (qobject_cast<QLabel *>(cell)) {
        SetSpokenPlace(cell, unit.isEmpty() ? name : name + QLatin1String(", ") + unit);
        return;
    }
    if (auto *list = qobject_cast<QComboBox *>(cell))
        NameByCaption(list);
    cell->setAccessibleName(name);
    SetSpokenUnit(cell, unit);
    m_limits.Follow(cell);
}

// Cells are named row by row or column by column.
QString CCellNames::NameOf(int row, int column)
{
    while (m_columns.size() < m_table->columnCount())
        m_columns.append(SectionName(m_table, m_columns.size(), Qt::Horizontal));
    if (m_rows.size() > kMostRowNames)
        m_rows.clear();
    QString &rowName = m_rows[row];
    if (rowName.isNull())
        rowName = SectionName(m_table, row, Qt::Vertical);
    return rowName + QLatin1String(", ") + m_columns.value(column);
}

void CCellNames::SetUnits(Qt::Orientation orientation, const QStringList &units)
{
    if (m_unitsOf == orientation && m_units == units)
        return;
    m_unitsOf = orientation;
    m_units = units;
    NameAgain(Qt::Horizontal, 0, m_table->columnCount() - 1);
}

void CCellNames::NameAgain(Qt::Orientation orientation, int first, int last)
{
    const bool isRows = orientation == Qt::Vertical;
    m_columns.clear();
    m_rows.clear();
    for (int r = isRows ? first : 0; r <= (isRows ? last : m_table->rowCount() - 1); ++r) {
        for (int c = isRows ? 0 : first; c <= (isRows ? m_table->columnCount() - 1 : last); ++c) {
            if (QWidget *cell = m_table->cellWidget(r, c))
                Name(r, c, cell);
        }
    }
}
