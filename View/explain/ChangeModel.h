// The changes of a page's members as a table, newest first.
//
// It reads the page's ring (View/engine/ChangeRing.h) and words what is asked for. Sync brings it up to
// date; between two of them it shows what there was. kPathRole is the member's path, in each column.
// GUI thread; lives no longer than its page.
//
//   CChangeModel model(*page);
//   model.Sync();
#pragma once

#include <QAbstractTableModel>

#include "View/explain/ChangeWords.h"

class CChangeModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum EColumn
    {
        eTime,
        eMember,
        eFrom,
        eTo,
        eBecause,
        eColumnCount,
    };
    static constexpr int kPathRole = Qt::UserRole;

    explicit CChangeModel(CAutoBindingDataModelDockWidget &page);

    void Sync();
    CChangeWords &Words() { return m_words; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString Text(const SChange &change, int column) const;

    CAutoBindingDataModelDockWidget &m_page;
    mutable CChangeWords m_words;
    qint64 m_begin = 0;  // of the ring, at the last Sync
    qint64 m_end = 0;
};
