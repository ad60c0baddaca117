#include "View/explain/ChangeModel.h"

#include <iterator>

#include <QDateTime>

#include "View/engine/AutoBindingDataModelDockWidget.h"

namespace {

constexpr const char *kHeaders[] = {"Time", "Member", "From", "To", "Because"};
static_assert(std::size(kHeaders) == CChangeModel::eColumnCount);

}  // namespace

CChangeModel::CChangeModel(CAutoBindingDataModelDockWidget &page) : m_page(page), m_words(page)
{
    Sync();
}

// New changes come at the top, those that are gone leave at the end.
void CChangeModel::Sync()
{
    const CChangeRing &ring = m_page.Changes().Changes();
    if (ring.Begin() >= m_end || ring.End() < m_end) {
        beginResetModel();
        m_begin = ring.Begin();
        m_end = ring.End();
        endResetModel();
        return;
    }
    if (ring.Begin() > m_begin) {
        const int rows = rowCount();
        beginRemoveRows({}, rows - static_cast<int>(ring.Begin() - m_begin), rows - 1);
        m_begin = ring.Begin();
        endRemoveRows();
    }
    if (ring.End() > m_end) {
        beginInsertRows({}, 0, static_cast<int>(ring.End() - m_end) - 1);
        m_end = ring.End();
        endInsertRows();
    } else if (m_end > m_begin) {
        // An edit goes on.
        emit dataChanged(index(0, eTo), index(rowCount() - 1, eTo), {Qt::DisplayRole});
    }
}

int CChangeModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_end - m_begin);
}

int CChangeModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : eColumnCount;
}

QString CChangeModel::Text(const SChange &change, int column) const
{
    switch (column) {
    case eTime:
        return QDateTime::fromMSecsSinceEpoch(change.time).toString(QStringLiteral("HH:mm:ss.zzz"));
    case eMember:
        return m_words.Name(m_page.Changes().PathOf(change.member), change.column);
    case eFrom:
        return change.from;
    case eTo:
        return m_words.To(change);
    default:
        return m_words.Because(change);
    }
}

QVariant CChangeModel::data(const QModelIndex &index, int role) const
{
    const SChange *change =
        index.isValid() ? std::as_const(m_page.Changes().Changes()).Find(m_end - 1 - index.row())
                        : nullptr;
    if (!change)
        return {};
    switch (role) {
    case kPathRole:
        return m_page.Changes().PathOf(change->member);
    case Qt::ToolTipRole:
        return index.column() == eTime
                   ? QDateTime::fromMSecsSinceEpoch(change->time).toString(Qt::ISODateWithMs)
                   : Text(*change, index.column());
    case Qt::DisplayRole:
        return Text(*change, index.column());
    default:
        return {};
    }
}

QVariant CChangeModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const bool isCaption = orientation == Qt::Horizontal && role == Qt::DisplayRole;
    return isCaption && section >= 0 && section < eColumnCount ? QLatin1String(kHeaders[section])
                                                               : QVariant();
}
