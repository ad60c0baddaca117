// What a calibration flow tells the user beside its result: one list, as it travels from the core
// to the page.
//
// A flow, good or bad, may have left records out, or found values in a file that are not as they
// look, or sections that name another route than the one that they are loaded into. An empty list:
// nothing to tell. A value: copied freely.
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
    int count = 0;              // of all remarks; rows may hold the first of them alone
    QVector<SCalRemark> rows{};
    QVector<SCalRemark> otherRoutes{};  // sections of a file that name another route than theirs

    bool IsEmpty() const { return rows.isEmpty() && otherRoutes.isEmpty(); }
};
