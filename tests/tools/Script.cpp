#include "tests/tools/Script.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include <sys/wait.h>

namespace {

std::string TextOf(const std::string &path)
{
    std::ifstream file(path);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

}  // namespace

CScriptFolder::CScriptFolder()
{
    std::string path = std::filesystem::temp_directory_path() / "quorlin-script-XXXXXX";
    if (!mkdtemp(path.data()))
        throw std::runtime_error("no folder " + path);
    m_path = path;
}

CScriptFolder::~CScriptFolder()
{
    std::filesystem::remove_all(m_path);
}

void CScriptFolder::Write(const std::string &name, const std::string &text) const
{
    std::ofstream(m_path + '/' + name) << text;
}

SScriptRun CScriptFolder::Run(const std::string &command) const
{
    const std::string line = "cd '" + m_path + "' && ROOT='" SOURCE_ROOT "' && { " + command +
                             "; } >'" + m_path + "/.output' 2>'" + m_path + "/.errors'";
    const int status = std::system(line.c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1,
            TextOf(m_path + "/.output") + TextOf(m_path + "/.errors")};
}
