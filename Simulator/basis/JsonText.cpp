#include "Simulator/basis/JsonText.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <stdexcept>

using nlohmann::json;

namespace {

constexpr std::streamoff kLargestFile = 8 * 1024 * 1024;
constexpr int kDeepest = 16;

}  // namespace

json ParseJsonText(const std::string &text)
{
    return json::parse(text, [](int depth, json::parse_event_t, json &) {
        if (depth > kDeepest)
            throw std::runtime_error("nests too deep");
        return true;
    });
}

std::string ReadTextFile(const std::string &path, const std::string &kind,
                         const std::string &missing)
{
    std::ifstream file(path, std::ios::binary | std::ios::ate);
    if (!file)
        throw std::runtime_error(path + ": " + missing);
    const std::streamoff size = file.tellg();
    if (size < 0 || size > kLargestFile)
        throw std::runtime_error(path + ": is not " + kind);
    file.seekg(0);
    std::ostringstream text;
    if (size > 0)
        text << file.rdbuf();
    if (!file || !text)
        throw std::runtime_error(path + ": cannot be read");
    return text.str();
}

std::string OneLine(std::string reason)
{
    std::replace_if(
        reason.begin(), reason.end(),
        [](char character) { return character == '\n' || character == '\r'; }, ' ');
    return reason;
}
