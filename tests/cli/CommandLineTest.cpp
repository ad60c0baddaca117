// Command lines, exit codes, colors and broken pipes of the program quorlin; and what "decode" says.

#include <gtest/gtest.h>

#include "Trace/dictionary/Functions.h"
#include "tests/cli/CliFolder.h"
#include "tests/cli/TraceText.h"

namespace {

TEST(CommandLineTest, HelpAndVersionAreGood)
{
    const CCliFolder folder;
    for (const std::string line : {"--help", "trace --help", "trace show --help", "trace diff -h",
                                   "trace summary --help", "decode --help", "--version"}) {
        const SCliRun run = folder.Run(line);
        EXPECT_EQ(run.exitCode, 0) << line;
        EXPECT_NE(run.out, "") << line;
        EXPECT_EQ(run.err, "") << line;
    }
    EXPECT_EQ(folder.Run("--version").out, "quorlin " QUORLIN_VERSION "\n");
}

TEST(CommandLineTest, WrongOneIsTroubleInOneLine)
{
    const CCliFolder folder;
    for (const std::string line :
         {"", "bogus", "trace", "trace bogus", "trace show", "trace show a b",
          "trace show --bogus a", "trace show a --call", "trace show a --call x",
          "trace show a --call -1", "trace summary", "trace diff a", "trace diff a b c",
          "trace diff a b --ignore", "decode", "decode VOND_NRf_TestStop_r",
          "decode VOND_NRf_TestStop_r ask 00", "decode VOND_NRf_TestStop_r request"}) {
        const SCliRun run = folder.Run(line);
        EXPECT_EQ(run.exitCode, 2) << line;
        EXPECT_EQ(run.out, "") << line;
        EXPECT_EQ(run.err.substr(0, 9), "quorlin: ") << line;
        EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 1) << line << ": " << run.err;
    }
}

TEST(CommandLineTest, WordThatIsNoCommandIsNamed)
{
    const CCliFolder folder;
    EXPECT_EQ(folder.Run("bogus").err, "quorlin: unexpected: bogus; quorlin --help tells more\n");
    EXPECT_EQ(folder.Run("trace bogus a").err,
              "quorlin: unexpected: bogus; quorlin --help tells more\n");
    EXPECT_EQ(folder.Run("trace diff a").err,
              "quorlin: B is required; quorlin --help tells more\n");
}

TEST(CommandLineTest, FileThatCannotBeReadIsNamedWithTheReason)
{
    const CCliFolder folder;
    for (const std::string command :
         {"trace show none", "trace summary none", "trace diff none none",
          "decode VOND_NRf_TestStop_r request @none"}) {
        const SCliRun run = folder.Run(command);
        EXPECT_EQ(run.err, "quorlin: none: No such file or directory\n") << command;
        EXPECT_EQ(run.exitCode, 2) << command;
    }
    EXPECT_EQ(folder.Run("trace show .").err, "quorlin: .: Is a directory\n");
    EXPECT_EQ(folder.Run("decode VOND_NRf_TestStop_r request @.").err,
              "quorlin: .: Is a directory\n");
    EXPECT_EQ(folder.Run("decode VOND_NRf_TestStop_r request @/dev/zero").err,
              "quorlin: /dev/zero: is longer than any record\n");
}

TEST(CommandLineTest, FullDiskIsTold)
{
    const SCliRun run =
        CCliFolder().Shell("$QUORLIN decode VOND_NRf_TestStop_r request 00 >/dev/full");
    EXPECT_EQ(run.err, "quorlin: standard output: No space left on device\n");
    EXPECT_EQ(run.exitCode, 2);
}

// With SIGPIPE as it is, and for a caller that has turned it off.
TEST(CommandLineTest, ReaderThatLeavesIsNoTrouble)
{
    const CCliFolder folder;
    std::string trace = TraceHeaderLine();
    for (int i = 0; i < 20000; ++i)
        trace += CallLines({.index = i, .function = "VOND_NRf_TestStop_r"});
    folder.Write("long.jsonl", trace);
    for (const std::string before : {"", "trap '' PIPE; "}) {
        const SCliRun run = folder.Shell(before + "$QUORLIN trace show long.jsonl | head -n 1");
        EXPECT_EQ(run.err, "");
        EXPECT_EQ(run.out.substr(0, 10), "long.jsonl");
    }
}

TEST(CommandLineTest, ColorsGoToATerminalAlone)
{
    const CCliFolder folder;
    folder.Write("t.jsonl", TraceHeaderLine() + NoteLine("RSSI: Start"));
    const std::string show = "$QUORLIN trace show t.jsonl";
    const auto onTerminal = [&](const std::string &setting) {
        return folder
                   .Shell("script -qec 'env " + setting +
                          " $BIN/quorlin trace show t.jsonl' "
                          "/dev/null")
                   .out.find("\x1b[") != std::string::npos;
    };
    EXPECT_TRUE(onTerminal("-u NO_COLOR TERM=xterm"));
    EXPECT_TRUE(onTerminal("NO_COLOR= TERM=xterm"));
    EXPECT_FALSE(onTerminal("NO_COLOR=1 TERM=xterm"));
    EXPECT_FALSE(onTerminal("-u NO_COLOR TERM=dumb"));
    EXPECT_EQ(folder.Shell(show).out.find("\x1b["), std::string::npos);
}

TEST(CommandLineTest, DecodePrintsEveryFieldOfARecord)
{
    const CCliFolder folder;
    const SCliRun run =
        folder.Run("decode VOND_NRf_GetDlFreqV7_r request '4E00 0000 60ae0a00 01 00 0000'");
    EXPECT_EQ(run.out, "VOND_NRf_GetDlFreqV7_r request, 12 bytes\n"
                       "  band         n78\n"
                       "  ulFrequency  700000 kHz\n"
                       "  forced       forced mode (1)\n"
                       "  txRoute      0\n");
    EXPECT_EQ(run.exitCode, 0);
}

TEST(CommandLineTest, DecodeTellsWhatIsMissingOrTooMuch)
{
    const CCliFolder folder;
    EXPECT_EQ(folder.Run("decode VOND_MMRf_GetPdValueV7_r request 010000").out,
              "VOND_MMRf_GetPdValueV7_r request, 3 bytes\n"
              "  1 byte missing\n");
    EXPECT_EQ(folder.Run("decode VOND_MMRf_GetPdValueV7_r answer 00f6abcd").out,
              "VOND_MMRf_GetPdValueV7_r answer, 4 bytes\n"
              "  value  -10 dBm\n"
              "  2 bytes behind its end: abcd\n");
    EXPECT_EQ(folder.Run("decode VOND_NRf_TestStop_r request ''").out,
              "VOND_NRf_TestStop_r request, 0 bytes\n"
              "  The function has no such record.\n");
}

TEST(CommandLineTest, DecodeOfAnAnswerTakesItsLayoutFromTheRequest)
{
    const CCliFolder folder;
    const std::string decode = "decode VOND_MMRf_RssiV7_r answer " + std::string(152, '0');
    const std::string one = "  rows.single.row[0].rssiMain";
    const std::string both = "  rows.simultaneous.row[0].path0Main";
    const std::string unknown = folder.Run(decode).out;
    EXPECT_NE(unknown.find("  if singlePath of the request is 1 (one path):\n  " + one),
              std::string::npos);
    EXPECT_NE(unknown.find("  if singlePath of the request is not 1 (one path):\n  " + both),
              std::string::npos);
    const std::string zeros = std::string(120, '0');
    const std::string known = folder.Run(decode + " --request " + zeros).out;
    EXPECT_EQ(known.find(one), std::string::npos);
    EXPECT_NE(known.find("\n" + both), std::string::npos);
    const std::string single = zeros.substr(0, 64) + "01" + zeros.substr(66);
    const std::string chosen = folder.Run(decode + " --request " + single).out;
    EXPECT_NE(chosen.find("\n" + one), std::string::npos);
    EXPECT_EQ(chosen.find(both), std::string::npos);
}

TEST(CommandLineTest, DecodeRefusesWhatIsNoRecord)
{
    const CCliFolder folder;
    const auto errorOf = [&](const std::string &line) {
        const SCliRun run = folder.Run("decode " + line);
        EXPECT_EQ(run.exitCode, 2) << line;
        return run.err;
    };
    EXPECT_EQ(errorOf("VOND_Reboot request 00"),
              "quorlin: VOND_Reboot is none of the pair's functions; quorlin decode --help lists "
              "them\n");
    EXPECT_EQ(errorOf("VOND_NRf_TestStop_r request 012"),
              "quorlin: the request has an odd number of digits\n");
    EXPECT_EQ(errorOf("VOND_NRf_TestStop_r answer 0x12"),
              "quorlin: the answer has a sign that is no hexadecimal digit, at 2\n");
    EXPECT_EQ(errorOf("VOND_MMRf_RssiV7_r answer 00 --request g0"),
              "quorlin: --request has a sign that is no hexadecimal digit, at 1\n");
    EXPECT_EQ(errorOf("VOND_MMRf_RssiV7_r request 00 --request 00"),
              "quorlin: --request goes with an answer alone\n");
}

TEST(CommandLineTest, HelpOfDecodeListsEveryFunction)
{
    const std::string help = CCliFolder().Run("decode --help").out;
    for (int id = 0; id < static_cast<int>(EFunction::Count); ++id) {
        const std::string name(FunctionOf(static_cast<EFunction>(id)).name);
        EXPECT_NE(help.find("\n  " + name + "\n"), std::string::npos) << name;
    }
}

}  // namespace
