// The rows of a comparison, sorted and filtered, for a table view.
//
// Filter and order are a list of numbers of differences, made anew with each change by their keys; a row
// is worded when it is shown. So a comparison with a million differences stays at hand, which a proxy
// model over words would not. Of equal rows the order of the images decides. GUI thread.
//
//   model.SetDifferences(compared.differences);
//   model.SetFilter({.route = 3, .least = 0.5});
//   model.sort(CDifferenceModel::eDifference, Qt::DescendingOrder);
//   model.Place(index.row());
#pragma once

#include <vector>

#include <QAbstractTableModel>

#include "Model/CalDifferences.h"

struct SDifferenceFilter
{
    static constexpr int kAny = -1;

    int route = kAny;  // positions in the comparison's lists
    int field = kAny;
    double least =
        0;  // size of the difference, each in its unit; a lacking record is always that large
};

class CDifferenceModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum EColumn
    {
        eRoute,
        eBand,
        eRegion,
        eField,
        eIndex,
        eLeft,
        eRight,
        eDifference,
        eColumnCount
    };

    using QAbstractTableModel::QAbstractTableModel;

    // Null: no rows.
    void SetDifferences(CalDifferences differences);
    void SetFilter(const SDifferenceFilter &filter);
    const ICalDifferences *Differences() const { return m_differences.get(); }
    // What the page shows there.
    SCalCellPlace Place(int row) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    // column: one of EColumn, or -1 for the order of the images.
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

private:
    void Rearrange();
    bool IsShown(const SCalDifferenceKey &key) const;
    void Sort();
    const SCalDifferenceRow &Row(int row) const;

    CalDifferences m_differences;
    SDifferenceFilter m_filter;
    int m_column = -1;
    Qt::SortOrder m_order = Qt::AscendingOrder;
    std::vector<int> m_rows;    // numbers of the differences that are shown
    mutable int m_worded = -1;  // a row is asked for once a column
    mutable SCalDifferenceRow m_words;
};
