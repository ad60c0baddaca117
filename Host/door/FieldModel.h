// The fields of a call, or those in which two calls differ, as a table. GUI thread.
//
//     CFieldModel model;
//     model.Show(std::make_shared<const SDoorFields>(FieldsOfCall(call, EWhichFields::Set)));
#pragma once

#include <memory>

#include <QAbstractTableModel>

#include "Host/door/DoorFields.h"

class CFieldModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using Fields = std::shared_ptr<const SDoorFields>;

    using QAbstractTableModel::QAbstractTableModel;

    // Returns what was shown before, so that a long table can be freed elsewhere.
    Fields Show(Fields fields);
    const Fields &Shown() const { return m_fields; }
    static QString Text(const SDoorField &field, int column);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    Fields m_fields = std::make_shared<const SDoorFields>();
};
