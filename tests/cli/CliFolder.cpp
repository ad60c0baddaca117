#include "tests/cli/CliFolder.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include <sys/wait.h>

namespace {

std::string TextOf(const std::string &path)
{
    std::ostringstream text;
    text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

}  // namespace

CCliFolder::CCliFolder()
{
    std::string path = std::filesystem::temp_directory_path() / "quorlin-cli-XXXXXX";
    if (mkdtemp(path.data()) == nullptr)
        throw std::runtime_error("no folder " + path);
    m_path = path;
}

CCliFolder::~CCliFolder()
{
    std::filesystem::remove_all(m_path);
}

std::string CCliFolder::Write(const std::string &name, const std::string &text) const
{
    std::ofstream(Path(name), std::ios::binary) << text;
    return Path(name);
}

std::string CCliFolder::Write(const std::string &name, std::span<const uint8_t> bytes) const
{
    return Write(name, std::string(bytes.begin(), bytes.end()));
}

SCliRun CCliFolder::Run(const std::string &arguments) const
{
    return Shell("$QUORLIN " + arguments);
}

SCliRun CCliFolder::Shell(const std::string &command) const
{
    const std::string line = "cd '" + m_path +
                             "' && export BIN='" QUORLIN_BIN "' && export QUORLIN=$BIN/quorlin"
                             " && { " +
                             command + "\n} >.out 2>.err </dev/null";
    const int status = std::system(line.c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, TextOf(Path(".out")),
            TextOf(Path(".err"))};
}
