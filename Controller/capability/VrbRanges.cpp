#include "Controller/capability/VrbRanges.h"

#include "Controller/capability/EntryTable.h"

namespace {

// RB counts of the three SCS (3GPP TS 38.101-1 table 5.3.2-1).
constexpr int kRbCounts[] = {135, 107, 31,  18,  273, 217, 162, 78, 65, 51, 38,
                             24,  11,  270, 216, 160, 133, 106, 79, 52, 25};

}  // namespace

SVrbRanges VrbRanges()
{
    CEntryTable<2> table;
    for (const int rb : kRbCounts) {
        table.Put(QStringLiteral("%1 RB").arg(rb),
                  {QJsonObject{{"min", 0}, {"max", rb - 1}, {"value", 0}},
                   QJsonObject{{"min", 1}, {"max", rb}, {"value", 1}}});
    }
    return {table.ToObject(0), table.ToObject(1)};
}
