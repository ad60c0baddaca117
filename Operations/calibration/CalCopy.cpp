#include "Operations/calibration/CalCopy.h"

#include <cstring>
#include <utility>

#include "Operations/calibration/CalImage.h"
#include "Trace/dictionary/FieldPath.h"

namespace {

constexpr char kBand[] = "band";
constexpr char kRoute[] = "route";

void CopyField(ECalRoute kind, const char *field, const std::vector<uint8_t> &from,
               std::vector<uint8_t> &to)
{
    const SFoundField found = *FindField(CalRecordLayout(kind), field);
    std::memcpy(to.data() + found.offset, from.data() + found.offset, found.size);
}

void WriteField(ECalRoute kind, const char *field, uint16_t value, std::vector<uint8_t> &to)
{
    std::memcpy(to.data() + FindField(CalRecordLayout(kind), field)->offset, &value, sizeof value);
}

}  // namespace

SCalState CopiedRecord(const SCalState &from, SCalState to, uint16_t band)
{
    std::vector<uint8_t> bytes = from.bytes;
    if (to.isValid) {
        for (const char *field : {kBand, kRoute})
            CopyField(to.name.kind, field, to.bytes, bytes);
    } else {
        WriteField(to.name.kind, kBand, band, bytes);
        WriteField(to.name.kind, kRoute, to.name.route, bytes);
    }
    to.bytes = std::move(bytes);
    to.isEdited = !to.isValid;
    return to;
}
