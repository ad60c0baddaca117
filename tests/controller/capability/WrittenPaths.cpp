#include "tests/controller/capability/WrittenPaths.h"

namespace {

QString GroupPath(const QString &group)
{
    if (group.size() == 2)
        return "cmdIf.request.group" + group.mid(1) + ".memberProperty.";
    return group + ".memberProperty.";
}

}  // namespace

PathTable HardwareRows(const char *group, const char *feRoute, const char *port, const char *stx,
                       const char *antMask, const char *mimoPair)
{
    const QLatin1String valuePair(".trait.valuePair");
    const QLatin1String fallback(".trait.defaultValue");
    return {
        {group, feRoute + valuePair, "Update HW Setting FE Route# failed"},
        {group, feRoute + fallback, "Update HW Setting FE Route# default value failed"},
        {group, port + valuePair, "Update HW Setting port failed"},
        {group, port + fallback, "Update HW Setting port default value failed"},
        {group, stx + valuePair, "Update HW Setting stx failed"},
        {group, stx + fallback, "Update HW Setting stx default value failedd",
         "Update HW Setting stx default value default value failed"},
        {group, antMask + valuePair, "Update HW Setting antMask failed"},
        {group, antMask + fallback, "Update HW Setting antMask default value failed"},
        {group, mimoPair + valuePair, "Update HW Setting mimoPair failed"},
        {group, mimoPair + fallback, "Update HW Setting mimoPair default value failed"},
    };
}

QVector<SWrittenPath> WrittenPaths(EPageId id)
{
    QVector<SWrittenPath> paths;
    const PathTable table = TxPathTable(id) + RxPathTable(id);
    for (const SPathRow &row : table)
        paths.append({GroupPath(row.group) + row.rest, row.reported,
                      row.logged ? row.logged : row.reported});
    return paths;
}
