// The status table: every row to the letter.
#include "Model/StatusTable.h"

#include <gtest/gtest.h>

namespace {

struct SExpectedRow
{
    int code;
    int level;
    const char *text;
    const char *advice;
};

constexpr SExpectedRow kRows[] = {
    {0, 0, "Operation is successful.", ""},
    {1, 2, "General error.", "Please contact the tool owner to handle it."},
    {2, 0, "Operation does not execute yet.", ""},
    {3, 2, "Vond command execute failed.",
     "Please check the SW load stability or connection status."},
    {4, 0, "Terminated by user.", ""},
    {5, 2, "Please correct the input data for parameter.", ""},
    {50, 2, "File can not be operated", "Please check your file path"},
    {51, 1, "Data does not exist in this file.",
     "Please select the file that includes the data you want to operate."},
    {52, 1, "Data is not complete in this file.",
     "Please select the file that includes the data you want to operate."},
    {53, 2, "File operations has the problem.", "Please check the file that you select."},
    {100, 2, "Failed to get data from NVRAM DB.",
     "Getting the buffer size by its LID data has problem.\nPlease check your DB version."},
    {101, 2, "Failed to decompose data by NVRAM DB.", "Please check your DB version."},
    {102, 2, "Failed to compose data by NVRAM DB.", "Please check your DB version."},
    {103, 1, "Only partial data is updated.",
     "Please check the DB version or the file that you select."},
    {200, 1, "Rf chip ID is mismatch.",
     "The Rf chip ID in the file does not match that in the target.\nPlease recheck the file or SW "
     "load."},
    {201, 2, "Ivex init failed.", "Please recheck SW load stability or connection status."},
    {202, 2, "Ivex deinit failed.", "Please recheck SW load stability or connection status."},
    {203, 2, "L1 Status code != SUCCESS ",
     "Please recheck SW load stability and parameter setting of the command."},
    {204, 2, "Afc evaluation encounter problem.",
     "Please the input value of Frequence error and AFC DAC"},
    {205, 2, "RF capability has the problem.", "Please the L1 capability or SW load stability."},
    {206, 2, "Run calibration library flow failed.", ""},
};

class StatusRow : public ::testing::TestWithParam<SExpectedRow>
{
};

TEST_P(StatusRow, ReadsToTheLetter)
{
    const SExpectedRow &expected = GetParam();
    const SStatusRow row = LookupStatus(expected.code);
    EXPECT_EQ(row.code, expected.code);
    EXPECT_EQ(static_cast<int>(row.level), expected.level);
    EXPECT_EQ(row.text, QString(expected.text));
    EXPECT_EQ(row.advice, QString(expected.advice));
}

INSTANTIATE_TEST_SUITE_P(AllCodes, StatusRow, ::testing::ValuesIn(kRows),
                         [](const auto &info) { return "Code" + std::to_string(info.param.code); });

TEST(StatusTable, CodeZeroIsSuccess)
{
    EXPECT_EQ(LookupStatus(0).text, QString("Operation is successful."));
    EXPECT_EQ(LookupStatus(0).level, eStatusNote);
}

TEST(StatusTable, CodeSevenIsTheLastRowWithoutAdvice)
{
    EXPECT_EQ(LookupStatus(7).text, QString("Run calibration library flow failed."));
    EXPECT_TRUE(LookupStatus(7).advice.isEmpty());
}

TEST(StatusTable, EveryCodeThatIsInNoRowReadsLikeTheLast)
{
    int known = 0;
    for (int code = -300; code <= 300; ++code) {
        const SStatusRow row = LookupStatus(code);
        if (row.code == code) {
            ++known;
            continue;
        }
        EXPECT_EQ(row.code, 206) << code;
        EXPECT_EQ(row.text, LookupStatus(206).text) << code;
        EXPECT_EQ(row.level, eStatusError) << code;
    }
    EXPECT_EQ(known, 21);
}

TEST(StatusTable, LibraryFailureHasWordsAndAdvice)
{
    EXPECT_EQ(LookupStatus(eStatusVondFailed).text, QString("Vond command execute failed."));
    EXPECT_FALSE(LookupStatus(eStatusVondFailed).advice.isEmpty());
}

TEST(StatusTable, TargetFailureAdvisesToRecheckLoadAndParameters)
{
    EXPECT_EQ(LookupStatus(eStatusTargetFailed).advice,
              QString("Please recheck SW load stability and parameter setting of the command."));
}

}  // namespace
