#include "View/compare/DifferenceModel.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include <QStringList>

namespace {

constexpr double kLargest = std::numeric_limits<double>::infinity();

// What there is of a column. key: what it is sorted by.
struct SColumn
{
    const char *header;
    QString SCalDifferenceRow::*text;
    double (*key)(const SCalDifferenceKey &key);
    bool isNumber;
};

double SizeOfDifference(const SCalDifferenceKey &key)
{
    if (key.field < 0)
        return kLargest;
    return std::abs(key.difference.value_or(0));
}

double RouteKey(const SCalDifferenceKey &key)
{
    return key.route;
}

constexpr SColumn kColumns[] = {
    {.header = "Route", .text = &SCalDifferenceRow::route, .key = &RouteKey, .isNumber = false},
    {.header = "Band", .text = &SCalDifferenceRow::band, .key = &RouteKey, .isNumber = false},
    {.header = "Region", .text = &SCalDifferenceRow::region, .key = &RouteKey, .isNumber = false},
    {.header = "Field",
     .text = &SCalDifferenceRow::field,
     .key = [](const SCalDifferenceKey &key) -> double { return key.field; },
     .isNumber = false},
    {.header = "Index",
     .text = &SCalDifferenceRow::index,
     .key = [](const SCalDifferenceKey &key) -> double { return key.place; },
     .isNumber = false},
    {.header = "Left",
     .text = &SCalDifferenceRow::left,
     .key = [](const SCalDifferenceKey &key) { return key.left.value_or(-kLargest); },
     .isNumber = true},
    {.header = "Right",
     .text = &SCalDifferenceRow::right,
     .key = [](const SCalDifferenceKey &key) { return key.right.value_or(-kLargest); },
     .isNumber = true},
    {.header = "Difference",
     .text = &SCalDifferenceRow::difference,
     .key = &SizeOfDifference,
     .isNumber = true},
};
static_assert(std::size(kColumns) == CDifferenceModel::eColumnCount);

}  // namespace

void CDifferenceModel::SetDifferences(CalDifferences differences)
{
    beginResetModel();
    m_differences = std::move(differences);
    m_filter = {};
    Rearrange();
    endResetModel();
}

void CDifferenceModel::SetFilter(const SDifferenceFilter &filter)
{
    beginResetModel();
    m_filter = filter;
    Rearrange();
    endResetModel();
}

void CDifferenceModel::sort(int column, Qt::SortOrder order)
{
    beginResetModel();
    m_column = column;
    m_order = order;
    Rearrange();
    endResetModel();
}

bool CDifferenceModel::IsShown(const SCalDifferenceKey &key) const
{
    const bool isRoute = m_filter.route == SDifferenceFilter::kAny || m_filter.route == key.route;
    const bool isField = m_filter.field == SDifferenceFilter::kAny || m_filter.field == key.field;
    return isRoute && isField && SizeOfDifference(key) >= m_filter.least;
}

void CDifferenceModel::Rearrange()
{
    m_worded = -1;
    m_rows.clear();
    const int count = m_differences ? m_differences->Count() : 0;
    const bool isAll = m_filter.route == SDifferenceFilter::kAny &&
                       m_filter.field == SDifferenceFilter::kAny && m_filter.least <= 0;
    for (int i = 0; i < count; ++i) {
        if (isAll || IsShown(m_differences->Key(i)))
            m_rows.push_back(i);
    }
    if (m_column >= 0 && m_column < eColumnCount)
        Sort();
}

void CDifferenceModel::Sort()
{
    std::vector<std::pair<double, int>> keys;
    keys.reserve(m_rows.size());
    for (const int row : m_rows)
        keys.emplace_back(kColumns[m_column].key(m_differences->Key(row)), row);
    const bool isUp = m_order == Qt::AscendingOrder;
    std::stable_sort(keys.begin(), keys.end(), [isUp](const auto &one, const auto &other) {
        return isUp ? one.first < other.first : other.first < one.first;
    });
    std::transform(keys.begin(), keys.end(), m_rows.begin(),
                   [](const auto &key) { return key.second; });
}

SCalCellPlace CDifferenceModel::Place(int row) const
{
    return m_differences->Place(m_rows[static_cast<std::size_t>(row)]);
}

const SCalDifferenceRow &CDifferenceModel::Row(int row) const
{
    if (m_worded != row)
        m_words = m_differences->Row(m_rows[static_cast<std::size_t>(row)]);
    m_worded = row;
    return m_words;
}

int CDifferenceModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int CDifferenceModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(eColumnCount);
}

QVariant CDifferenceModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const SColumn &column = kColumns[index.column()];
    if (role == Qt::DisplayRole)
        return Row(index.row()).*column.text;
    if (role == Qt::TextAlignmentRole && column.isNumber)
        return static_cast<int>(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

QVariant CDifferenceModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= eColumnCount)
        return {};
    if (role == Qt::DisplayRole)
        return QString::fromLatin1(kColumns[section].header);
    if (role == Qt::TextAlignmentRole && kColumns[section].isNumber)
        return static_cast<int>(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}
