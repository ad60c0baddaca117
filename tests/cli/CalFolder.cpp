#include "tests/cli/CalFolder.h"

#include <filesystem>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

std::string CCalFolder::Variables(const std::string &profile) const
{
    return "export VOND_SIM_FLASH=" + Path("flash.bin") + " XDG_RUNTIME_DIR=" + Path("") +
           " XDG_DATA_HOME=" + Path("data") + " VOND_SIM_PROFILE=" + profile + " && ";
}

SCliRun CCalFolder::Cal(const std::string &arguments, const std::string &profile) const
{
    return Shell(Variables(profile) + "$QUORLIN cal " + arguments);
}

// script(1) gives the program a terminal of its own.
SCliRun CCalFolder::CalAtTerminal(const std::string &arguments, const std::string &input) const
{
    Write("typed", input);
    return Shell(Variables("handset") + "script -qec \"$QUORLIN cal " + arguments +
                 "\" /dev/null <typed");
}

std::string CCalFolder::Faulty(const std::string &fault) const
{
    Write("faulty.json", R"({"name": "faulty", "base": "handset", "faults": [)" + fault + "]}");
    return "faulty.json";
}

std::string CCalFolder::Flash() const
{
    return Bytes("flash.bin");
}

std::string CCalFolder::Bytes(const std::string &name) const
{
    std::ostringstream text;
    text << std::ifstream(Path(name), std::ios::binary).rdbuf();
    return text.str();
}

void CCalFolder::Edit(const std::string &item, const std::string &key, const std::string &value,
                      int times, const std::string &name) const
{
    const SCliRun read = Cal("read --item " + item + " --to read.ini");
    ASSERT_EQ(read.exitCode, 0) << read.err;
    std::string text = Bytes("read.ini");
    std::size_t at = 0;
    for (int i = 0; i < times; ++i) {
        at = text.find("\r\n" + key + " = ", at);
        ASSERT_NE(at, std::string::npos);
        at += key.size() + 5;
        text.replace(at, text.find_first_of(",\r", at) - at, value);
    }
    Write(name, text);
}

std::string CCalFolder::Backup() const
{
    std::string found;
    for (const auto &entry : std::filesystem::directory_iterator(Path("data/quorlin-rf/backups"))) {
        if (entry.path().extension() == ".json") {
            EXPECT_TRUE(found.empty());
            found = entry.path();
        }
    }
    return found;
}

bool Contains(const std::string &text, const std::string &words)
{
    return text.find(words) != std::string::npos;
}
