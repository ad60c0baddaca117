// Records cut into blocks and joined again: every field at its place of the wire, nothing lost.
#include <algorithm>
#include <memory>
#include <random>

#include "Operations/calibration/AptKind.h"
#include "Operations/calibration/PathLossKinds.h"
#include "tests/operations/TargetFixture.h"

namespace {

template <typename T>
T Random(unsigned seed)
{
    std::mt19937 random(seed);
    T record;
    auto *bytes = reinterpret_cast<unsigned char *>(&record);
    std::generate_n(bytes, sizeof record, [&] { return static_cast<unsigned char>(random()); });
    return record;
}

// A field's bytes in a record and in a block. each: bytes of block k in a table of 64 subbands, 0
// for what all blocks repeat.
struct SField
{
    int record;
    int block;
    int size;
    int each;
};

std::vector<SField> AptFields()
{
    std::vector<SField> fields = {{0, 0, 2, 0},  {4, 2, 1, 0},    {5, 3, 1, 0},     {6, 4, 1, 0},
                                  {8, 6, 80, 0}, {188, 86, 6, 0}, {200, 92, 64, 64}};
    for (int pa = 0; pa < 3; ++pa) {
        const int part = 156 + 98 * pa;
        fields.push_back({184 + pa, part, 1, 0});
        fields.push_back({456 + 128 * pa, part + 2, 32, 32});
        fields.push_back({88 + 16 * pa, part + 34, 16, 0});
        fields.push_back({840 + 128 * pa, part + 50, 32, 32});
        fields.push_back({136 + 16 * pa, part + 82, 16, 0});
    }
    return fields;
}

std::vector<SField> PathLossFields(int subbandSize, int recordOffsets, int blockOffsets)
{
    const int loss = 16 * subbandSize;
    return {
        {0, 0, 2, 0}, {8, 4, 64, 64}, {264, 68, loss, loss}, {recordOffsets, blockOffsets, 16, 0}};
}

template <typename TKind>
void CheckCut(const std::vector<SField> &fields)
{
    const auto record = std::make_unique<typename TKind::Record>(Random<typename TKind::Record>(1));
    const QByteArray from = BytesOf(*record);
    for (int k = 0; k < 4; ++k) {
        auto block = std::make_unique<typename TKind::Block>();
        TKind::Cut(*record, k, *block);
        QByteArray expected(sizeof *block, '\0');
        for (const SField &field : fields)
            expected.replace(field.block, field.size,
                             from.mid(field.record + k * field.each, field.size));
        ASSERT_EQ(BytesOf(*block), expected) << "block " << k;
    }
}

template <typename TKind>
void CheckJoin(const std::vector<SField> &fields)
{
    const auto block = std::make_unique<typename TKind::Block>(Random<typename TKind::Block>(2));
    const QByteArray from = BytesOf(*block);
    for (int k = 0; k < 4; ++k) {
        const auto record =
            std::make_unique<typename TKind::Record>(Random<typename TKind::Record>(3));
        QByteArray expected = BytesOf(*record);
        for (const SField &field : fields)
            expected.replace(field.record + k * field.each, field.size,
                             from.mid(field.block, field.size));
        TKind::Join(*block, k, *record);
        ASSERT_EQ(BytesOf(*record), expected) << "block " << k;
    }
}

}  // namespace

TEST(CalBlocks, AptBlockIsCutAtItsOffsets)
{
    CheckCut<SAptKind>(AptFields());
}

TEST(CalBlocks, AptBlockIsJoinedBackAndNothingElseTouched)
{
    CheckJoin<SAptKind>(AptFields());
}

TEST(CalBlocks, Type1BlockIsCutAndJoinedAtItsOffsets)
{
    CheckCut<SType1Kind>(PathLossFields(64, 4360, 1092));
    CheckJoin<SType1Kind>(PathLossFields(64, 4360, 1092));
}

TEST(CalBlocks, Type2BlockIsCutAndJoinedAtItsOffsets)
{
    CheckCut<SType2Kind>(PathLossFields(1136, 72968, 18244));
    CheckJoin<SType2Kind>(PathLossFields(1136, 72968, 18244));
}
