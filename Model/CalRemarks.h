// What a calibration flow tells the user beside its result: one list, as it travels from the core
// to the page.
//
// A flow that succeeds may have left records out, and a file may hold values that are not what its
// author thinks; a flow that fails may have, too. An empty list says nothing. A value: copied
// freely.
//
//   SCalRemarks remarks{eRemarkLeftOut, 1, {{"T2 route 101", "4 blocks in flash, ..."}}};
#pragma once

#include <QString>
#include <QVector>

enum ECalRemark
{
    eRemarkLeftOut,     // a Read left records out
    eRemarkPassedOver,  // a Write or an Export passed over records with edits
    eRemarkOddValue,    // an Import found values that are no numbers, or that no editor shows
};

struct SCalRemark
{
    QString what;  // record, or section and key
    QString why;
};

struct SCalRemarks
{
    int kind = eRemarkLeftOut;  // ECalRemark
    int count = 0;  // what there is to say, also where the rows are the first ones alone
    QVector<SCalRemark> rows{};

    bool IsEmpty() const { return rows.isEmpty(); }
};
