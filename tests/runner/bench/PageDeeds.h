// What a page is set to and what is pressed on it, for tests of the bytes that reach the DUT then.
//
//   const QVector<SDeed> done = SetAll(session.Page(PageDeeds()[0].page));
//   session.Page(PageDeeds()[0].page)->Press(PageDeeds()[0].buttons[0], kLong);
//   QVERIFY(!Requests().isEmpty());
#pragma once

#include <QStringList>
#include <QVector>

#include "Runner/bench/BenchPage.h"

struct SDeed
{
    SBenchMember member;
    int column = -1;
    QString value;
};

struct SPageDeeds
{
    const char *page;
    QStringList buttons;
};

// A row a page.
const QVector<SPageDeeds> &PageDeeds();

// Columns "profile" and "page" (the row's number): each page on "handset" and on the odd DUT.
void AddPageDeeds();

// Sets what can be set to something else, in order, and tells it.
QVector<SDeed> SetAll(CBenchPage *page);

// Function and bytes of each request since the journal was cleared. Requests alone: reports of a
// running test come by the clock.
QVector<QByteArray> Requests();
