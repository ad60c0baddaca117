// Holds what a page shows against what a step expects.
//
//   for (const QString &reason : FailedExpectations(*step, seen, *page))
//       ...   // "RSRP0: the mean is -97.2, below -95"
#pragma once

#include <QStringList>

#include "Runner/bench/BenchPage.h"
#include "Runner/plan/Plan.h"
#include "Runner/plan/PlanErrors.h"

// Why it does not hold, a sentence each; none when all hold.
QStringList FailedExpectations(const SPlanStep &step, const QString &status,
                               const CBenchPage &page);

// Boxes that nobody expects, and expected ones that did not open.
QStringList FailedBoxes(const SPlanStep &step, const QVector<SBenchBox> &boxes);

// Does the step expect the box: by its title, its text or its informative text?
bool IsExpectedBox(const SPlanStep &step, const SBenchBox &box);

// The names of the expectations that the page does not have, as errors of the plan.
void CheckExpectations(const std::string &file, const SPlanStep &step, const CBenchPage &page,
                       CPlanErrors &errors);

// The limits of an expectation alone: why readings do not hold, or nothing. minus: subtracted from each
// reading; one for all, or one each.
QString JudgeReadings(const SPlanExpect &expect, const QStringList &readings,
                      const QStringList &minus);
