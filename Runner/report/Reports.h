// The reports of a run: results.jsonl, results.csv, junit.xml and report.html in one folder.
//
// The folder must be new or empty. Open() lays down all four, with every case as not run; a case that has
// ended is added to the first two at once, in one piece, and to the other two a second later at most with
// the next case, by replacing the file. So the files are whole at any time, whatever ends the program; only
// cases that did not run stand in the first two after Finish() alone.
//
// Texts are UTF-8. Errors come back as sentences; after one the run may go on without reports. One thread.
//
//   CReports reports;
//   if (const QString error = reports.Open(folder, info, cases); !error.isEmpty())
//       return Complain(error);
//   reports.Add(0, result);
//   reports.Finish();
#pragma once

#include <QElapsedTimer>
#include <QFile>
#include <QString>
#include <QStringList>
#include <QVector>

#include "Runner/report/CaseSummary.h"

class CReports
{
public:
    // cases: all cases of the run in their order, not run yet. Empty when it went well.
    QString Open(const QString &folder, const SRunInfo &info, const QVector<SCaseResult> &cases);
    // Case number index has ended; each at most once.
    QString Add(int index, const SCaseResult &result);
    // Adds what did not run, with the reason, and closes the files. Safe to call twice.
    QString Finish(const QString &whyNotRun = {});

    QString Folder() const { return m_folder; }
    const QVector<SCaseSummary> &Cases() const { return m_cases; }

private:
    QString Append(QFile &file, const QByteArray &bytes);
    QString WriteWhole(const QString &name, const QByteArray &bytes);
    QString WriteForPeople();

    QString m_folder;
    SRunInfo m_info;
    QStringList m_sweptKeys;
    QVector<SCaseSummary> m_cases;
    QVector<bool> m_isAdded;
    QFile m_lines;
    QFile m_table;
    QElapsedTimer m_sinceWritten;
    bool m_isOpen = false;
};

// Makes the folder if it is not there. Empty when it is there now, and empty; else why not.
QString PrepareFolder(const QString &folder);
