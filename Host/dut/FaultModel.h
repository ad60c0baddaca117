// All faults in force on the simulated DUT as a table, and behind them the steps of a scenario that are
// still to come: function, kind, parameters, condition, how often fired, source. The box in front of a
// fault switches it off and on.
//
//     CFaultModel model(dut);
//     view->setModel(&model);
//     model.Refresh();   // takes the faults as they are now; the selection of those that stay is kept
#pragma once

#include <vector>

#include <QAbstractTableModel>
#include <QJsonArray>
#include <QJsonObject>

#include "Host/SimulatedDut.h"

class CFaultModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum EColumn
    {
        eFunction,
        eKind,
        eParameters,
        eWhen,
        eFired,
        eSource,
        eColumnCount
    };

    struct SRow
    {
        SVondSimFault fault = {};  // of a step: nothing; its id is 0
        QJsonObject json = {};     // of the fault or of the step
        QJsonObject when = {};     // of the step that the fault comes from, or of the step

        bool IsFault() const { return fault.id != 0; }
    };

    // The DUT outlives the model.
    explicit CFaultModel(const CSimulatedDut &dut, QObject *parent = nullptr);

    void Refresh();
    const std::vector<SRow> &Rows() const { return m_rows; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<SRow> TakeRows() const;
    // The state as a scenario tells the conditions of faults, and the steps to come.
    QJsonArray TakeSteps() const;
    static QString Text(const SRow &row, int column);
    QString ParameterHint(const SRow &row) const;

    const CSimulatedDut &m_dut;
    std::vector<SRow> m_rows;
};
