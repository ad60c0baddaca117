// What bash offers behind a part of a command line.

#include <gtest/gtest.h>

#include "tests/cli/CliFolder.h"

namespace {

// The words behind "quorlin", the last one under way; answers each choice on a line.
std::string Choices(const std::string &words)
{
    const CCliFolder folder;
    folder.Write("record.bin", std::string("x"));
    const SCliRun run =
        folder.Shell("exec bash -c '. " QUORLIN_COMPLETION "; COMP_WORDS=($QUORLIN " + words +
                     "); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _quorlin; "
                     "printf \"%s\\n\" \"${COMPREPLY[@]}\"'");
    EXPECT_EQ(run.err, "");
    return run.out;
}

bool Offers(const std::string &words, const std::string &choice)
{
    return ("\n" + Choices(words)).find("\n" + choice + "\n") != std::string::npos;
}

TEST(CompletionTest, CommandsAndTheirCommandsAreOffered)
{
    EXPECT_EQ(Choices("tr"), "trace\n");
    EXPECT_EQ(Choices("trace \"\""), "show\nsummary\ndiff\n");
}

TEST(CompletionTest, OptionsOfACommandAreOffered)
{
    EXPECT_EQ(Choices("trace show a.jsonl --f"), "--function\n--failed\n");
    EXPECT_EQ(Choices("trace diff --t"), "--timing\n");
    EXPECT_TRUE(Offers("--", "--version"));
}

TEST(CompletionTest, FunctionsPartsAndReadingsAreOffered)
{
    EXPECT_TRUE(Offers("decode VOND_MMRf", "VOND_MMRf_RssiV7_r"));
    EXPECT_TRUE(Offers("trace show a.jsonl --function VOND_NRf", "VOND_NRf_TestStop_r"));
    EXPECT_EQ(Choices("decode VOND_MMRf_RssiV7_r a"), "answer\n");
    EXPECT_EQ(Choices("trace diff a b --ignore r"), "readings\n");
    EXPECT_EQ(Choices("decode VOND_MMRf_RssiV7_r answer @rec"), "@record.bin\n");
}

TEST(CompletionTest, CalibrationCommandsAndItemsAreOffered)
{
    EXPECT_EQ(Choices("cal \"\""), "read\ndiff\nwrite\nverify\nrestore\n");
    EXPECT_EQ(Choices("cal read --item r"), "rx-path-loss\n");
    EXPECT_TRUE(Offers("cal write --", "--allow-other-route"));
}

TEST(CompletionTest, FilesAreLeftToBash)
{
    EXPECT_EQ(Choices("trace summary \"\""), "\n");
}

}  // namespace
