// quorlin cal read
#include <exception>

#include <QDir>
#include <QFileInfo>

#include "Cli/ExitCodes.h"
#include "Cli/cal/CalDut.h"
#include "Cli/cal/CalRuns.h"
#include "Cli/cal/CalTerminal.h"

int RunCalRead(const SCalRequest &request)
{
    const QString file = QString::fromStdString(request.file);
    const bool isJson = file.endsWith(QLatin1String(".json"), Qt::CaseInsensitive);
    if (!isJson && !file.endsWith(QLatin1String(".ini"), Qt::CaseInsensitive)) {
        Complain(QStringLiteral("--to %1: the name ends with .ini or .json").arg(file));
        return kExitTrouble;
    }
    if (const QString why = LookAtDut(request.handle); !why.isEmpty()) {
        Complain(why);
        return kExitTrouble;
    }
    const ECalItem item = *CalItemByKey(QString::fromStdString(request.item));
    CGuardedWrite flash(GuardedItem(item), ShowProgress);
    QString why = flash.BeginLook();
    if (why.isEmpty())
        why = isJson ? flash.SaveJson(file) : flash.SaveIni(file);
    if (!why.isEmpty()) {
        Complain(why);
        return kExitTrouble;
    }
    for (const QString &note : flash.Unread())
        Complain(note);
    int count = 0;
    for (const SCalBlockRecord &record : flash.Flash().records)
        count += record.blocks.empty() ? 0 : 1;
    Say(QStringLiteral("%1 records of flash are in %2.").arg(count).arg(file));
    return kExitGood;
}
