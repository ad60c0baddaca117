// Runs the program quorlin-host to its end and keeps what it said.
//
//     const SHostRun run = RunHost({"--help"});
//     QCOMPARE(run.exitCode, 0);
#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

#include "HostTestFiles.h"

struct SHostRun
{
    int exitCode = -1;  // -1 as well when it crashed or did not end
    QString out;
    QString err;
};

// environment: "NAME=value" lines on top of the test's own environment; "NAME" alone takes it out.
inline SHostRun RunHost(const QStringList &arguments, const QStringList &environment = {})
{
    constexpr int kLongestRunMs = 100000;  // beyond the demonstration's own deadline
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    for (const QString &line : environment) {
        const QString name = line.section('=', 0, 0);
        if (line.contains('='))
            variables.insert(name, line.section('=', 1));
        else
            variables.remove(name);
    }
    QProcess process;
    process.setProcessEnvironment(variables);
    process.start(BuiltFile("bin/quorlin-host"), arguments);
    SHostRun run;
    if (process.waitForFinished(kLongestRunMs) && process.exitStatus() == QProcess::NormalExit)
        run.exitCode = process.exitCode();
    run.out = QString::fromUtf8(process.readAllStandardOutput());
    run.err = QString::fromUtf8(process.readAllStandardError());
    return run;
}
