#include "Runner/run/RecordedRun.h"

#include <QFile>

#include "Host/Options.h"
#include "Host/Tap.h"

QString RestartRecorded(const QString &traceFile)
{
    QFile file("/proc/self/cmdline");
    if (!file.open(QIODevice::ReadOnly))
        return QString("Can't read the program's own arguments: %1.").arg(file.errorString());
    QList<QByteArray> arguments = file.readAll().split('\0');
    arguments.removeLast();  // behind the last zero
    std::vector<char *> pointers;
    for (QByteArray &argument : arguments)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    SHostOptions options;
    options.recordFile = traceFile;
    return RunUnderTap(options, pointers.data());
}
