// What the reports for people keep of a case: its readings in numbers, not one by one.
//
// An hour of readings is some hundred thousand texts; they go into results.jsonl and results.csv as soon as
// the case has ended, and only this stays in memory.
#pragma once

#include <QVector>

#include "Runner/report/CaseResult.h"

struct SReadings
{
    QString name;
    QString caption;
    QString unit;
    int count = 0;    // of all readings
    int numbers = 0;  // of those that are numbers
    double min = 0;
    double mean = 0;
    double max = 0;
    QString last;
};

struct SCaseSummary
{
    SCaseResult result;  // without the values of its outputs
    QVector<SReadings> readings;
};

SCaseSummary Summarize(const SCaseResult &result);
