#include "Controller/core/CalItemTable.h"

namespace {

// A row's position is its id.
constexpr const char *kCalItems[] = {"RX PathLoss", "APT Profile"};

}  // namespace

QString CalItemName(ECalItem item)
{
    return QString::fromLatin1(kCalItems[static_cast<int>(item)]);
}

QStringList CalItemNames()
{
    QStringList names;
    for (const char *name : kCalItems)
        names.append(QString::fromLatin1(name));
    return names;
}

QMap<QString, int> BuildCalItemMap()
{
    QMap<QString, int> map;
    const QStringList names = CalItemNames();
    for (int id = 0; id < names.size(); ++id)
        map.insert(names[id], id);
    return map;
}
