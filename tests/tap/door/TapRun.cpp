#include "tests/tap/door/TapRun.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

std::vector<char *> Pointers(std::vector<std::string> &words)
{
    std::vector<char *> pointers;
    for (std::string &word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    return pointers;
}

void Redirect(const std::string &path, int to)
{
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
    dup2(file, to);
    close(file);
}

}  // namespace

std::string TextOfFile(const std::string &path)
{
    std::ostringstream text;
    text << std::ifstream(path).rdbuf();
    return text.str();
}

CTapRun::CTapRun()
{
    std::string name = ::testing::TempDir() + "tap-XXXXXX";
    m_folder = mkdtemp(name.data());
}

CTapRun::~CTapRun()
{
    std::error_code error;
    std::filesystem::remove_all(m_folder, error);
}

std::string CTapRun::TapPreload()
{
    return TAP_LIBRARY;
}

std::string CTapRun::FilePath(const std::string &name)
{
    return std::string(TAP_FOLDER "/") + name;
}

SRan CTapRun::Run(const std::string &program, const Words &arguments, const Words &environment,
                  const std::string &preload) const
{
    Words words = {FilePath(program)};
    words.insert(words.end(), arguments.begin(), arguments.end());
    Words variables = environment;
    const std::string first = TAP_FIRST_PRELOAD;
    variables.push_back("LD_PRELOAD=" + first + (first.empty() ? "" : ":") + preload);
    for (const char *const name :
         {"ASAN_OPTIONS", "LSAN_OPTIONS", "TSAN_OPTIONS", "LLVM_PROFILE_FILE", "PATH"}) {
        if (const char *const value = std::getenv(name))
            variables.push_back(std::string(name) + "=" + value);
    }
    SRan ran;
    const std::string out = m_folder + "/out", errors = m_folder + "/errors";
    ran.process = fork();
    if (ran.process == 0) {
        Redirect(out, STDOUT_FILENO);
        Redirect(errors, STDERR_FILENO);
        execve(words[0].c_str(), Pointers(words).data(), Pointers(variables).data());
        _exit(98);
    }
    int status = 0;
    waitpid(ran.process, &status, 0);
    ran.exitCode = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    ran.signal = WIFSIGNALED(status) ? WTERMSIG(status) : 0;
    ran.out = TextOfFile(out);
    ran.errors = TextOfFile(errors);
    return ran;
}

SRan CTapRun::Record(const std::string &program, const Words &arguments,
                     const Words &environment) const
{
    Words variables = {"VOND_TAP=record", "VOND_TAP_FILE=" + TracePath()};
    variables.insert(variables.end(), environment.begin(), environment.end());
    return Run(program, arguments, variables);
}

STrace CTapRun::Trace() const
{
    try {
        return ReadTrace(TracePath(), ECutLine::Refused);
    } catch (const CTraceError &error) {
        ADD_FAILURE() << error.what();
        return {};
    }
}
