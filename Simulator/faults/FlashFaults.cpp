#include "Simulator/faults/FlashFaults.h"

#include <string_view>

#include "Trace/dictionary/CalBlockLayouts.h"
#include "Trace/dictionary/FieldPath.h"
#include "Vond/VondCalRecords.h"

namespace {

constexpr uint32_t kMostBlocks = 1000000;
constexpr uint32_t kWidestRegion = 1000000;  // kHz

struct SRecordRow
{
    std::string_view name;
    EFlashRecord record;
    const SLayout *block;
    uint32_t blocks;  // of one record, at most
};

constexpr SRecordRow kFlashRecords[] = {
    {.name = "type1",
     .record = EFlashRecord::Type1,
     .block = &kLayoutOf<SMMType1PathlossBlockV7>,
     .blocks = kVondCalMaxBlocks},
    {.name = "type2",
     .record = EFlashRecord::Type2,
     .block = &kLayoutOf<SMMType2PathlossBlockV7>,
     .blocks = kVondCalType2Blocks},
    {.name = "apt",
     .record = EFlashRecord::Apt,
     .block = &kLayoutOf<SAptBlock>,
     .blocks = kVondCalMaxBlocks},
};

const SRecordRow &ReadRecord(CJsonReader &reader)
{
    const std::string name = reader.Text("record", 63);
    for (const SRecordRow &row : kFlashRecords) {
        if (name == row.name)
            return row;
    }
    CJsonReader::Fail(reader.Place("record"), "\"" + name + "\" is none of type1, type2, apt");
}

}  // namespace

SPowerCut ReadPowerCut(CJsonReader &reader)
{
    return {.blocksBefore = reader.Integer<uint32_t>("block", 1, kMostBlocks) - 1,
            .isTorn = reader.Boolean("torn", false)};
}

SStuckField ReadStuckField(CJsonReader &reader)
{
    const SRecordRow &row = ReadRecord(reader);
    SStuckField stuck;
    stuck.record = row.record;
    stuck.route = reader.Integer<uint16_t>("route", 0, UINT16_MAX);
    if (row.record == EFlashRecord::Apt)
        stuck.bandwidth = reader.Integer<uint32_t>("bandwidth", 1, kWidestRegion);
    stuck.block = reader.Integer<uint32_t>("block", 1, row.blocks) - 1;
    const std::string field = reader.Text("field", 127);
    const auto found = FindField(*row.block, field);
    if (!found)
        CJsonReader::Fail(reader.Place("field"), "\"" + field + "\" is no field of a block");
    stuck.offset = found->offset;
    stuck.size = found->size;
    return stuck;
}
