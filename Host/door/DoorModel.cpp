#include "Host/door/DoorModel.h"

#include <algorithm>
#include <utility>

#include <QApplication>
#include <QColor>
#include <QPalette>

#include "Host/door/DoorWords.h"

namespace {

constexpr std::size_t kDroppedAtOnce = 2000;  // so that rows don't move at each look

QColor FailureColor()
{
    const bool isDark = qApp->palette().color(QPalette::Base).lightness() < 128;
    return isDark ? QColor(255, 138, 128) : QColor(176, 0, 32);
}

}  // namespace

const SDoorCall &CDoorModel::CallAt(int row) const
{
    return m_calls[static_cast<std::size_t>(SerialAt(row) - m_firstSerial)];
}

int CDoorModel::RowOf(uint64_t serial) const
{
    const auto found = std::lower_bound(m_shown.begin(), m_shown.end(), serial);
    return found != m_shown.end() && *found == serial ? static_cast<int>(found - m_shown.begin())
                                                      : -1;
}

std::vector<SDoorCall> CDoorModel::ShownCalls() const
{
    std::vector<SDoorCall> calls;
    calls.reserve(m_shown.size());
    for (const uint64_t serial : m_shown)
        calls.push_back(m_calls[static_cast<std::size_t>(serial - m_firstSerial)]);
    return calls;
}

bool CDoorModel::IsShown(const SDoorCall &call) const
{
    return !m_isHidden[static_cast<std::size_t>(call.function->id)] &&
           (!m_filter.isFailedOnly || call.HasFailed());
}

void CDoorModel::Clear()
{
    beginResetModel();
    m_firstSerial += m_calls.size();
    m_calls.clear();
    m_shown.clear();
    m_open.clear();
    endResetModel();
}

void CDoorModel::Take(SDoorNews news)
{
    if (news.isReset)
        Clear();
    std::vector<uint64_t> shown;
    for (SDoorCall &call : news.calls) {
        const auto open = m_open.find(call.number);
        // One that began and ended since the last look is not in the table yet.
        if (open != m_open.end() && (shown.empty() || open->second < shown.front())) {
            const uint64_t serial = open->second;
            m_open.erase(open);
            End(serial, std::move(call));
            continue;
        }
        if (open != m_open.end()) {
            m_calls[static_cast<std::size_t>(open->second - m_firstSerial)] = std::move(call);
            m_open.erase(open);
            continue;
        }
        const uint64_t serial = m_firstSerial + m_calls.size();
        if (!call.isEnded)
            m_open.emplace(call.number, serial);
        shown.push_back(serial);
        m_calls.push_back(std::move(call));
    }
    shown.erase(
        std::remove_if(shown.begin(), shown.end(),
                       [&](uint64_t serial) { return !IsShown(m_calls[serial - m_firstSerial]); }),
        shown.end());
    if (!shown.empty()) {
        const int first = rowCount();
        beginInsertRows({}, first, first + static_cast<int>(shown.size()) - 1);
        m_shown.insert(m_shown.end(), shown.begin(), shown.end());
        endInsertRows();
    }
    if (m_calls.size() > kMostCalls)
        DropFirst(m_calls.size() - kMostCalls + kDroppedAtOnce);
}

void CDoorModel::End(uint64_t serial, SDoorCall call)
{
    if (serial < m_firstSerial)
        return;
    SDoorCall &place = m_calls[static_cast<std::size_t>(serial - m_firstSerial)];
    place = std::move(call);
    const int row = RowOf(serial);
    if (row >= 0) {
        emit dataChanged(index(row, 0), index(row, eColumnCount - 1));
        return;
    }
    if (!IsShown(place))
        return;
    const auto at = std::lower_bound(m_shown.begin(), m_shown.end(), serial);
    const int before = static_cast<int>(at - m_shown.begin());
    beginInsertRows({}, before, before);
    m_shown.insert(at, serial);
    endInsertRows();
}

void CDoorModel::DropBefore(uint64_t place)
{
    const auto isGone = [&](const SDoorCall &call) { return call.isEnded && call.place < place; };
    const auto first = std::find_if_not(m_calls.begin(), m_calls.end(), isGone);
    const auto count = static_cast<std::size_t>(first - m_calls.begin());
    if (count >= kDroppedAtOnce)
        DropFirst(count);
}

void CDoorModel::DropFirst(std::size_t count)
{
    const uint64_t serial = m_firstSerial + count;
    const auto rows = std::lower_bound(m_shown.begin(), m_shown.end(), serial) - m_shown.begin();
    if (rows > 0)
        beginRemoveRows({}, 0, static_cast<int>(rows) - 1);
    for (std::size_t i = 0; i < count; ++i) {
        if (!m_calls[i].isEnded)
            m_open.erase(m_calls[i].number);
    }
    m_calls.erase(m_calls.begin(), m_calls.begin() + static_cast<std::ptrdiff_t>(count));
    m_shown.erase(m_shown.begin(), m_shown.begin() + rows);
    m_firstSerial = serial;
    if (rows > 0)
        endRemoveRows();
}

void CDoorModel::SetFilter(const SDoorFilter &filter)
{
    beginResetModel();
    m_filter = filter;
    for (std::size_t i = 0; i < m_isHidden.size(); ++i) {
        const std::string_view name = FunctionOf(static_cast<EFunction>(i)).name;
        m_isHidden[i] = !QLatin1String(name.data(), static_cast<int>(name.size()))
                             .contains(filter.function, Qt::CaseInsensitive);
    }
    m_shown.clear();
    uint64_t serial = m_firstSerial;
    for (const SDoorCall &call : m_calls) {
        if (IsShown(call))
            m_shown.push_back(serial);
        ++serial;
    }
    endResetModel();
}

QString CDoorModel::Text(const SDoorCall &call, int column)
{
    switch (column) {
    case eNumber:
        return QString::number(call.number);
    case eTime:
        return DoorTime(call);
    case eFunction:
        return DoorFunction(call);
    case eDuration:
        return DoorDuration(call);
    case eResult:
        return DoorResult(call);
    default:
        return {};
    }
}

QString CDoorModel::Caption(int column)
{
    static const char *const kCaptions[] = {"Call", "Time", "Function", "Duration", "Result"};
    return column >= 0 && column < eColumnCount ? QString(kCaptions[column]) : QString();
}

int CDoorModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_shown.size());
}

int CDoorModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : eColumnCount;
}

QVariant CDoorModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const SDoorCall &call = CallAt(index.row());
    const int column = index.column();
    if (role == Qt::DisplayRole || (role == Qt::ToolTipRole && column == eResult))
        return Text(call, column);
    if (role == Qt::ForegroundRole && call.HasFailed())
        return FailureColor();
    if (role == Qt::TextAlignmentRole && (column == eNumber || column == eDuration))
        return int(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

QVariant CDoorModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole)
        return Caption(section);
    if (orientation == Qt::Horizontal && role == Qt::TextAlignmentRole)
        return int(Qt::AlignLeft | Qt::AlignVCenter);
    return {};
}
