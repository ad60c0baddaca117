#include "Host/door/FieldModel.h"

#include <utility>

CFieldModel::Fields CFieldModel::Show(Fields fields)
{
    beginResetModel();
    std::swap(m_fields, fields);
    endResetModel();
    return fields;
}

QString CFieldModel::Text(const SDoorField &field, int column)
{
    return QString::fromStdString(column == 0 ? field.name : column == 1 ? field.one : field.other);
}

int CFieldModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_fields->rows.size());
}

int CFieldModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_fields->captions.size();
}

QVariant CFieldModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return {};
    return Text(m_fields->rows[static_cast<std::size_t>(index.row())], index.column());
}

QVariant CFieldModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole)
        return m_fields->captions.value(section);
    if (orientation == Qt::Horizontal && role == Qt::TextAlignmentRole)
        return int(Qt::AlignLeft | Qt::AlignVCenter);
    return {};
}
