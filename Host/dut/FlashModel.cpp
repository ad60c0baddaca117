#include "Host/dut/FlashModel.h"

#include <algorithm>
#include <cstring>
#include <set>

namespace {

constexpr const char *kHeaders[CFlashModel::eColumnCount] = {"Kind",   "Route", "Bandwidth",
                                                             "Blocks", "Bytes", "State"};

QString KindWords(const SVondSimFlashRecord &record)
{
    if (std::strcmp(record.item, "apt") == 0)
        return "APT";
    return std::strcmp(record.item, "type2") == 0 ? "Path loss, type 2" : "Path loss, type 1";
}

QString StateWords(const SVondSimFlashRecord &record)
{
    if (record.isTorn)
        return "torn";
    return record.isChanged ? "changed" : "factory data";
}

bool IsSameRecord(const SVondSimFlashRecord &one, const SVondSimFlashRecord &other)
{
    return std::strcmp(one.item, other.item) == 0 && one.route == other.route &&
           one.bandwidth == other.bandwidth;
}

}  // namespace

CFlashModel::CFlashModel(const CSimulatedDut &dut, QObject *parent)
    : QAbstractTableModel(parent), m_dut(dut)
{
}

void CFlashModel::Refresh()
{
    std::vector<SVondSimFlashRecord> records;
    SVondSimFlashRecord record = {};
    for (uint32_t i = 0; m_dut->GetFlashRecord(i, &record) == 0; ++i)
        records.push_back(record);
    if (std::equal(records.begin(), records.end(), m_records.begin(), m_records.end(),
                   IsSameRecord)) {
        m_records = std::move(records);
        if (!m_records.empty())
            emit dataChanged(index(0, eBlocks), index(rowCount() - 1, eState));
        return;
    }
    beginResetModel();
    m_records = std::move(records);
    endResetModel();
}

QString CFlashModel::Summary() const
{
    uint32_t bytes = 0;
    int changed = 0;
    int torn = 0;
    for (const SVondSimFlashRecord &record : m_records) {
        bytes += record.byteCount;
        changed += record.isChanged ? 1 : 0;
        torn += record.isTorn ? 1 : 0;
    }
    const QString state = changed == 0 && torn == 0 ? QString("factory data")
                          : torn == 0               ? QString("%1 changed").arg(changed)
                                      : QString("%1 changed, %2 torn").arg(changed).arg(torn);
    return QString("%1 records, %2 kB: %3")
        .arg(m_records.size())
        .arg(QString::number(bytes / 1000.0, 'f', 1), state);
}

QList<uint32_t> CFlashModel::RxRoutes() const
{
    std::set<uint32_t> routes;
    for (const SVondSimFlashRecord &record : m_records) {
        if (std::strcmp(record.item, "apt") != 0)
            routes.insert(record.route);
    }
    return QList<uint32_t>(routes.begin(), routes.end());
}

int CFlashModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_records.size());
}

int CFlashModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : eColumnCount;
}

QVariant CFlashModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const int column = index.column();
    if (role == Qt::DisplayRole)
        return Text(m_records[static_cast<std::size_t>(index.row())], column);
    if (role == Qt::TextAlignmentRole && column != eKind && column != eState)
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    return {};
}

QVariant CFlashModel::Text(const SVondSimFlashRecord &record, int column)
{
    switch (column) {
    case eKind:
        return KindWords(record);
    case eRoute:
        return record.route;
    case eBandwidth:
        return record.bandwidth != 0 ? QString("%1 MHz").arg(record.bandwidth / 1000.0) : QString();
    case eBlocks:
        return record.blockCount;
    case eBytes:
        return record.byteCount;
    default:
        return StateWords(record);
    }
}

QVariant CFlashModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole)
        return kHeaders[section];
    return QAbstractTableModel::headerData(section, orientation, role);
}
