#include "Cli/cal/CalSides.h"

#include <QFileInfo>

#include "Cli/cal/CalDut.h"
#include "Cli/cal/CalTerminal.h"
#include "Controller/core/NrCore.h"
#include "Controller/guard/CalBackup.h"
#include "Controller/guard/CalFileData.h"
#include "Support/CalIniFile.h"

namespace {

enum class ESide
{
    Dut,
    Backup,
    Ini
};

struct SSide
{
    QString name;
    ESide kind = ESide::Dut;
    SCalBackup backup = {};  // of a backup
    SCalBlockImage image = {};
};

QString Look(const std::string &name, SSide &side)
{
    side.name = QString::fromStdString(name);
    if (side.name == QLatin1String("dut"))
        return {};
    if (!QFileInfo(side.name).isFile())
        return QStringLiteral("%1 cannot be read: there is no such file.").arg(side.name);
    side.kind = IsCalBackup(side.name) ? ESide::Backup : ESide::Ini;
    return side.kind == ESide::Backup ? ReadCalBackup(side.name, side.backup) : QString();
}

// What an INI file is of, when it is of one item alone.
QString ItemOfIni(const QString &file)
{
    QStringList items;
    CCalIniFile ini(file.toStdWString().c_str());
    GetCore().GetCalItemInFile(items, &ini);
    const std::optional<ECalItem> item =
        items.size() == 1 ? CalItemByName(items.first()) : std::nullopt;
    return item ? QString::fromLatin1(FindCalItem(*item).key) : QString();
}

// The item that both sides are of.
QString FindItem(const SSide &left, const SSide &right, QString &item)
{
    for (const SSide *side : {&left, &right}) {
        const QString own = side->kind == ESide::Backup ? side->backup.item : QString();
        if (own.isEmpty())
            continue;
        if (!item.isEmpty() && own != item)
            return QStringLiteral("%1 is a backup of \"%2\", not of \"%3\".")
                .arg(side->name, own, item);
        item = own;
    }
    for (const SSide *side : {&left, &right}) {
        if (item.isEmpty() && side->kind == ESide::Ini)
            item = ItemOfIni(side->name);
    }
    if (!CalItemByKey(item))
        return QStringLiteral("--item tells what to compare: apt, or rx-path-loss.");
    return {};
}

// INI sides come last, over the other one.
QString ReadSide(SSide &side, const SSide &other, const QString &item, QStringList &notes)
{
    if (side.kind == ESide::Dut) {
        CGuardedWrite flash(GuardedItem(*CalItemByKey(item)), ShowProgress);
        if (const QString why = flash.BeginLook(); !why.isEmpty())
            return why;
        side.image = flash.Flash();
        notes += flash.Unread();
        return {};
    }
    const std::unique_ptr<ICalItemByL1Operation> scratch = FindCalItem(*CalItemByKey(item)).make();
    const bool isOverOther = side.kind == ESide::Ini && other.kind != ESide::Ini;
    SCalFileData data;
    const QString why =
        ReadCalFile(side.name, item, *scratch, isOverOther ? other.image : SCalBlockImage(), data);
    side.image = std::move(data.image);
    return why;
}

}  // namespace

QString ReadSides(const SCalRequest &request, SCalSides &sides)
{
    SSide left;
    SSide right;
    if (const QString why = Look(request.file, left); !why.isEmpty())
        return why;
    if (const QString why = Look(request.right, right); !why.isEmpty())
        return why;
    const bool needsDut = left.kind != ESide::Backup || right.kind != ESide::Backup;
    if (needsDut) {
        if (const QString why = LookAtDut(request.handle); !why.isEmpty())
            return why;
    }
    sides.item = QString::fromStdString(request.item);
    if (const QString why = FindItem(left, right, sides.item); !why.isEmpty())
        return why;
    if (!needsDut) {
        sides.left = left.backup.image;
        sides.right = right.backup.image;
        return {};
    }
    const bool isLeftLast = left.kind == ESide::Ini;
    SSide &first = isLeftLast ? right : left;
    SSide &second = isLeftLast ? left : right;
    if (const QString why = ReadSide(first, second, sides.item, sides.notes); !why.isEmpty())
        return why;
    if (const QString why = ReadSide(second, first, sides.item, sides.notes); !why.isEmpty())
        return why;
    sides.left = std::move(left.image);
    sides.right = std::move(right.image);
    return {};
}
