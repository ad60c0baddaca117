// What a case came to: one combination of one step of a plan. Values for the reports, nothing else.
#pragma once

#include <chrono>
#include <optional>

#include <QDateTime>
#include <QJsonObject>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QVector>

enum class EVerdict
{
    Pass,
    Fail,    // an expectation does not hold
    Error,   // the step could not be carried out
    NotRun,  // something before it ended the plan
};

// "pass", "fail", "error", "not run"
QString VerdictText(EVerdict verdict);

// A member of the response or data, or a column of the result table.
struct SCaseOutput
{
    QString name;  // response.group2.rssiMain
    QString caption;
    QString unit;
    bool isColumn =
        false;  // values are the rows of a result table; otherwise the cells of a member
    QStringList values;
};

struct SCaseBox
{
    QString title;
    QString text;
    QString informative;
};

// One case, before it runs and after.
struct SCaseResult
{
    QString plan;
    QString planFile;
    QString step;
    QString page;
    int combination = 1;  // from 1
    int combinations = 1;
    QVector<QPair<QString, QString>> sweep;  // the swept members and their values here
    QJsonObject inputs;                      // packaged, by the member's full name
    QVector<SCaseOutput> outputs;
    QVector<SCaseBox> boxes;
    QString status;    // the last status line
    QString exported;  // file in the output folder; empty: none
    EVerdict verdict = EVerdict::NotRun;
    QStringList reasons;  // why it is no pass
    QDateTime start;      // invalid: not run
    std::chrono::milliseconds duration{0};
};

// What all cases of a run have in common.
struct SRunInfo
{
    QString toolVersion;
    QString chip;
    uint32_t handle = 0;
    QDateTime start;
};

// "gains [band=n77, powerMode=HPM]"
QString CaseName(const SCaseResult &result);
