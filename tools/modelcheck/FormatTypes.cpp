#include "tools/modelcheck/FormatTypes.h"

namespace {

constexpr unsigned kScalar = GroupBit(1);
constexpr unsigned kRowTable = GroupBit(2);
constexpr unsigned kColumnTable = GroupBit(3);

constexpr SKey kRangeKeys[] = {
    {"min", EForm::Whole, kAllGroups, kAllGroups},
    {"max", EForm::Whole, kAllGroups, kAllGroups},
    {"displayBase", EForm::Whole, kScalar | kColumnTable},
    {"rangeCheck", EForm::Text, kScalar | kColumnTable},
    {"value", EForm::Text, kScalar | kColumnTable},
};

constexpr SKey kPointRangeKeys[] = {
    {"min", EForm::Number, kAllGroups, kAllGroups},
    {"max", EForm::Number, kAllGroups, kAllGroups},
    {"decimals", EForm::Whole, kAllGroups},
    {"rangeCheck", EForm::Text, kScalar | kColumnTable},
    {"value", EForm::Text, kScalar | kColumnTable},
};

constexpr SKey kUnsignedRangeKeys[] = {
    {"min", EForm::UnsignedText, kAllGroups, kAllGroups},
    {"max", EForm::UnsignedText, kAllGroups, kAllGroups},
    {"displayBase", EForm::Whole, kAllGroups},
};

constexpr SKeyTable kNoKeys{nullptr, 0};

// clang-format off
constexpr SFormatType kTypes[] = {
    // name            class               groups                                value             pairEntry         entryKeys                    needs  pubV   pubS   row
    {"list",          "QComboBox",        kScalar | kColumnTable,             EForm::TextList,  EForm::TextList,  kNoKeys,                      true,  true,  true,  false},
    {"label",         "QLabel",           kScalar | kRowTable | kColumnTable, EForm::Text,      EForm::Text,      kNoKeys,                      false, false, false, false},
    {"range",         "QSpinBox",         kScalar | kRowTable | kColumnTable, EForm::Entry,     EForm::Entry,     KeyTable(kRangeKeys),         true,  false, true,  true},
    {"pointRange",    "QDoubleSpinBox",   kScalar | kRowTable | kColumnTable, EForm::Entry,     EForm::Entry,     KeyTable(kPointRangeKeys),    true,  false, false, true},
    {"boolean",       "QCheckBox",        kScalar,                            EForm::TrueFalse, EForm::Boolean,   kNoKeys,                      false, true,  true,  false},
    {"unsignedRange", "CUnsignedSpinBox", kColumnTable,                       EForm::Entry,     EForm::Entry,     KeyTable(kUnsignedRangeKeys), true,  false, false, false},
};
// clang-format on

}  // namespace

const SFormatType *FindFormatType(const QString &name)
{
    for (const SFormatType &row : kTypes) {
        if (name == QLatin1String(row.name))
            return &row;
    }
    return nullptr;
}

SFormatTypes AllFormatTypes()
{
    return {kTypes, std::size(kTypes)};
}
