// New inputs of RecordFuzz and FlowFuzz: other values in the fields of the answers, by the dictionary of
// records, and now and then bytes beside them.
#include <algorithm>
#include <iterator>

#include "Trace/dictionary/FieldPath.h"
#include "Trace/dictionary/Functions.h"
#include "tests/fuzz/common/FuzzTarget.h"
#include "tests/fuzz/common/JsonMutator.h"
#include "tests/fuzz/common/LayoutMutator.h"
#include "tests/fuzz/wire/FuzzAnswers.h"
#include "tests/fuzz/wire/FuzzPages.h"
#include "tests/fuzz/wire/RecordInput.h"

namespace {

constexpr int kMaxChanges = 12;
constexpr int kMaxTimes = 400;
constexpr int kMaxBytes = 40;

constexpr uint32_t kNumbers[] = {0,   1,   2,   3,    4,     5,     16,    55,         64,
                                 78,  100, 101, 127,  128,   135,   255,   256,        1000,
                                 256, 41,  84,  1181, 32767, 32768, 65535, 0x7fffffff, 0xffffffff};
constexpr int32_t kResults[] = {0, 1, 4, 11, -1, 203};

QByteArray NewBytes(std::mt19937 &random)
{
    QByteArray bytes;
    if (FuzzBelow(random, 3) != 0) {
        const int width = 1 << FuzzBelow(random, 3);
        const uint32_t number = FuzzOne(kNumbers, random);
        for (int i = 0; i < width; ++i)
            bytes.append(static_cast<char>(number >> (8 * i)));
        return bytes;
    }
    for (int i = 1 + FuzzBelow(random, 16); i > 0; --i)
        bytes.append(static_cast<char>(random()));
    return bytes;
}

// Of those that pages of the kind read: capabilities mostly, which all do.
const SFunction &AnyAnswer(std::mt19937 &random)
{
    constexpr EFunction kRead[] = {
        EFunction::MultiModeCapability, EFunction::NrCapability,  EFunction::RouteConfig,
        EFunction::RouteConfig,         EFunction::BandRxInfo,    EFunction::RxRouteValues,
        EFunction::RouteDetail,         EFunction::GetCalBlkInfo, EFunction::GetCalData,
        EFunction::GetCalData,          EFunction::SetCalData};
    if (FuzzBelow(random, 4) != 0)
        return FunctionOf(FuzzOne(kRead, random));
    const std::vector<SFuzzAnswer> &table = FuzzAnswerTable();
    return *FindFunction(table[FuzzBelow(random, static_cast<int>(table.size()))].function);
}

SRecordChange NewChange(std::mt19937 &random)
{
    SRecordChange change;
    const std::vector<SFuzzAnswer> &table = FuzzAnswerTable();
    if (FuzzBelow(random, 10) == 0) {
        change.function = table[FuzzBelow(random, static_cast<int>(table.size()))].function;
        change.isResult = true;
        change.result = FuzzOne(kResults, random);
        return change;
    }
    const SFunction &function = AnyAnswer(random);
    change.function = QByteArray(function.name.data(), static_cast<int>(function.name.size()));
    if (function.answer == nullptr) {  // a status word alone
        change.bytes = NewBytes(random);
        return change;
    }
    if (FuzzBelow(random, 8) == 0) {
        change.offset =
            static_cast<uint32_t>(FuzzBelow(random, static_cast<int>(function.answer->size)));
        change.bytes = NewBytes(random);
    } else {
        const SChosenField chosen = ChooseField(*function.answer, random);
        change.offset = chosen.offset;
        change.bytes = ValueFor(*function.answer, *chosen.field, random).left(kMaxBytes);
    }
    if (FuzzBelow(random, 3) == 0)
        change.times = static_cast<uint32_t>(1 + FuzzBelow(random, kMaxTimes));
    return change;
}

// Few enough for a file, of all three kinds.
SRecordChange FewRoutes(std::mt19937 &random)
{
    SRecordChange change;
    change.function = "VOND_MMRf_GetRouteConfigV7_r";
    change.offset =
        FindField(*FunctionOf(EFunction::RouteConfig).answer, "routes.txRouteCount")->offset;
    for (int most : {4, 3, 1}) {
        change.bytes.append(static_cast<char>(1 + FuzzBelow(random, most)));
        change.bytes.append('\0');
    }
    return change;
}

void AlterBytes(QByteArray &bytes, std::mt19937 &random)
{
    const int at = FuzzBelow(random, bytes.size());
    switch (FuzzBelow(random, 3)) {
    case 0:
        bytes = (bytes + NewBytes(random)).left(kMaxBytes);
        break;
    case 1:
        bytes.remove(at, 1);
        break;
    default:
        if (!bytes.isEmpty())
            bytes[at] = static_cast<char>(random());
    }
}

void Alter(SRecordChange &change, std::mt19937 &random)
{
    if (change.isResult) {
        change.result = FuzzOne(kResults, random);
        return;
    }
    switch (FuzzBelow(random, 4)) {
    case 0:
        change.offset += static_cast<uint32_t>(FuzzBelow(random, 33) - 16);
        break;
    case 1:
        change.times = static_cast<uint32_t>(1 + FuzzBelow(random, kMaxTimes));
        break;
    default:
        AlterBytes(change.bytes, random);
    }
}

}  // namespace

QByteArray MutateFuzzInput(const QByteArray &text, std::mt19937 &random)
{
    SRecordInput input = ReadRecordInput(text);
    auto &changes = input.changes;
    const int at = FuzzBelow(random, static_cast<int>(changes.size()));
    switch (FuzzBelow(random, 10)) {
    case 0:
        input.page = FuzzOne(kFuzzPages, random);
        input.isFiled = FuzzBelow(random, 3) == 0;
        if (input.isFiled)
            input.changes.push_back(FewRoutes(random));
        break;
    case 1:
        if (FuzzBelow(random, 3) == 0)
            input.dut = FuzzOne(FuzzAnswers::kDuts, random);
        [[fallthrough]];
    case 2:
        if (!changes.empty())
            changes.erase(changes.begin() + at);
        break;
    case 3:
    case 4:
    case 5:
        if (!changes.empty()) {
            Alter(changes[at], random);
            break;
        }
        [[fallthrough]];
    default:
        changes.insert(changes.begin() + at, NewChange(random));
        if (changes.size() > kMaxChanges)
            changes.erase(changes.begin() + FuzzBelow(random, kMaxChanges));
    }
    return RecordText(input);
}
