// The records of the simulated DUT's flash as a table: kind, route, bandwidth, blocks, bytes, state.
//
//     CFlashModel model(dut);
//     view->setModel(&model);
//     model.Refresh();   // takes the flash as it is now; tells the view what has changed
#pragma once

#include <vector>

#include <QAbstractTableModel>

#include "Host/SimulatedDut.h"

class CFlashModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum EColumn
    {
        eKind,
        eRoute,
        eBandwidth,
        eBlocks,
        eBytes,
        eState,
        eColumnCount
    };

    // The DUT outlives the model.
    explicit CFlashModel(const CSimulatedDut &dut, QObject *parent = nullptr);

    void Refresh();
    // "53 records, 60.5 kB: factory data", or how many of them are changed or torn.
    QString Summary() const;
    // Routes of the receive records, in ascending order.
    QList<uint32_t> RxRoutes() const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    static QVariant Text(const SVondSimFlashRecord &record, int column);

    const CSimulatedDut &m_dut;
    std::vector<SVondSimFlashRecord> m_records;
};
