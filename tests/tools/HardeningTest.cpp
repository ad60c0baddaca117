// scripts/hardening.sh: each thing that a program lacks is named.
#include <gtest/gtest.h>

#include "tests/tools/Script.h"

namespace {

const std::string kHard =
    "-O2 -D_FORTIFY_SOURCE=2 -fstack-protector-strong -fPIE -pie -Wl,-z,relro -Wl,-z,now "
    "-Wl,-z,noexecstack";

// What the script says of a program that is compiled so; the later of two options holds.
SScriptRun Look(const std::string &options)
{
    const CScriptFolder folder;
    folder.Write("program.c", "#include <stdio.h>\n"
                              "int main(int count, char **texts)\n"
                              "{\n"
                              "    char text[64];\n"
                              "    snprintf(text, sizeof text, \"%s\", texts[count - 1]);\n"
                              "    return printf(text, count) < 0;\n"
                              "}\n");
    return folder.Run("cc -w " + kHard + ' ' + options +
                      " program.c -o program && $ROOT/scripts/hardening.sh program");
}

bool SaysAlone(const SScriptRun &run, const std::string &what)
{
    return run.exitCode == 1 && run.output == "program " + what + '\n';
}

TEST(HardeningTest, hardProgramHolds)
{
    const SScriptRun run = Look("");
    EXPECT_EQ(run.exitCode, 0) << run.output;
    EXPECT_EQ(run.output, "program: hardened\n");
}

TEST(HardeningTest, whatIsLackingIsNamed)
{
    const struct
    {
        const char *options;
        const char *what;
    } rows[] = {
        {.options = "-fno-pie -no-pie", .what = "is no PIE"},
        {.options = "-Wl,-z,norelro", .what = "has no relro"},
        {.options = "-Wl,-z,lazy", .what = "binds functions late (no -z now)"},
        {.options = "-Wl,-z,execstack", .what = "has a stack that code runs on"},
        {.options = "-fno-stack-protector", .what = "has no stack protector"},
        {.options = "-U_FORTIFY_SOURCE", .what = "prints by functions that are not fortified"},
        {.options = "-Wl,-rpath,/home/somebody/build",
         .what = "finds libraries in a folder of the build"},
        {.options = "-Wl,-rpath,'$ORIGIN/../lib:/tmp'",
         .what = "finds libraries in a folder of the build"},
    };
    for (const auto &row : rows) {
        const SScriptRun run = Look(row.options);
        EXPECT_TRUE(SaysAlone(run, row.what))
            << row.options << ": " << run.exitCode << ' ' << run.output;
    }
}

TEST(HardeningTest, relativeFolderOfLibrariesIsGood)
{
    EXPECT_EQ(Look("-Wl,-rpath,'$ORIGIN/../lib'").exitCode, 0);
}

TEST(HardeningTest, fileThatIsNoProgramIsRefused)
{
    const CScriptFolder folder;
    folder.Write("text", "no program");
    EXPECT_EQ(folder.Run("$ROOT/scripts/hardening.sh text").exitCode, 2);
    EXPECT_EQ(folder.Run("$ROOT/scripts/hardening.sh").exitCode, 2);
}

}  // namespace
