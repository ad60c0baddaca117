// Each page's document as a whole, on two DUTs, against the expected ones of this folder.
//
// The expected documents are derived from the DUT's and 3GPP's tables apart from the updater
// (expected/make_expected.py). A difference is told by its path.
#include "tests/controller/capability/UpdaterFixture.h"

namespace {

struct SCase
{
    const char *name;
    const char *profile;
    const char *folder;
};

const SCase kDuts[] = {
    {"handset", "handset", CAPABILITY_TESTS "/expected/"},
    {"odd", CAPABILITY_TESTS "/profiles/odd.json", CAPABILITY_TESTS "/expected/odd/"},
};

class ExpectedDocument : public CUpdaterTest,
                         public ::testing::WithParamInterface<std::tuple<SCase, EPageId>>
{
};

TEST_P(ExpectedDocument, IsWhatTheDriverMakesOfTheResource)
{
    const auto &[dut, id] = GetParam();
    Plug(dut.profile);
    const QJsonObject document = Patched(id);
    const QJsonObject expected = ReadObject(dut.folder + QString(FindPage(id).resource).mid(2));
    EXPECT_EQ(Differences(document, expected), "");
    EXPECT_EQ(m_isDone, !expected.contains("modelIntegrity"));
}

INSTANTIATE_TEST_SUITE_P(Pages, ExpectedDocument,
                         ::testing::Combine(::testing::ValuesIn(kDuts),
                                            ::testing::ValuesIn(kPatchedPages)),
                         [](const auto &info) {
                             return std::string(std::get<0>(info.param).name) + "_" +
                                    PageLabel(std::get<1>(info.param));
                         });

}  // namespace
