// The calls as a table, a row each, oldest first: number, time, function, duration, result. A filter shows
// some of them. Texts are made for the rows in sight alone.
//
//     CDoorModel model;
//     model.Take(std::move(news));
//     model.SetFilter({.function = "Rssi", .isFailedOnly = true});
//     model.CallAt(row).number;
//
// Holds at most kMostCalls and drops the oldest. A call is known by its serial, which stays when others
// go; a model that is reset by the source starts with new ones. GUI thread.
#pragma once

#include <array>
#include <deque>
#include <unordered_map>

#include <QAbstractTableModel>

#include "Host/door/DoorCall.h"

struct SDoorFilter
{
    QString function = {};  // part of the name, of any case; empty: all
    bool isFailedOnly = false;
};

class CDoorModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum EColumn
    {
        eNumber,
        eTime,
        eFunction,
        eDuration,
        eResult,
        eColumnCount
    };
    static constexpr std::size_t kMostCalls = 500'000;

    using QAbstractTableModel::QAbstractTableModel;

    void Take(SDoorNews news);
    // Drops calls that ended and whose place is before that one: some of them, when they are many.
    void DropBefore(uint64_t place);
    void SetFilter(const SDoorFilter &filter);

    std::size_t CallCount() const { return m_calls.size(); }  // without a filter
    const SDoorCall &CallAt(int row) const;
    uint64_t SerialAt(int row) const { return m_shown[static_cast<std::size_t>(row)]; }
    // -1: gone, or not shown.
    int RowOf(uint64_t serial) const;
    std::vector<SDoorCall> ShownCalls() const;

    static QString Text(const SDoorCall &call, int column);
    static QString Caption(int column);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    void Clear();
    bool IsShown(const SDoorCall &call) const;
    // The call with this serial has ended.
    void End(uint64_t serial, SDoorCall call);
    void DropFirst(std::size_t count);

    std::deque<SDoorCall> m_calls;
    uint64_t m_firstSerial = 0;                     // of m_calls.front()
    std::deque<uint64_t> m_shown;                   // serials, upwards
    std::unordered_map<uint64_t, uint64_t> m_open;  // serials by the calls' numbers
    SDoorFilter m_filter;
    std::array<bool, static_cast<std::size_t>(EFunction::Count)> m_isHidden = {};
};
