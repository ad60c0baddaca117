#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>

#include "Cli/Commands.h"
#include "Cli/trace/HexText.h"
#include "Cli/trace/RecordOutput.h"
#include "Trace/words/ShownRecord.h"

namespace {

constexpr std::size_t kLongestRecordFile = 16 * 1024 * 1024;

struct SDecodeOptions
{
    std::string function;
    std::string part;
    std::string bytes;
    std::optional<std::string> request;
    bool isJson = false;
};

std::vector<uint8_t> BytesOfFile(const std::string &path)
{
    std::error_code ignored;
    if (std::filesystem::is_directory(path, ignored))
        throw std::runtime_error(path + ": " + std::strerror(EISDIR));
    errno = 0;
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw std::runtime_error(path + ": " +
                                 (errno != 0 ? std::strerror(errno) : "cannot be opened"));
    std::vector<uint8_t> bytes;
    char block[65536];
    while (file.read(block, sizeof(block)) || file.gcount() > 0) {
        bytes.insert(bytes.end(), block, block + file.gcount());
        if (bytes.size() > kLongestRecordFile)
            throw std::runtime_error(path + ": is longer than any record");
    }
    if (file.bad())
        throw std::runtime_error(path + ": cannot be read");
    return bytes;
}

// HEX or @FILE; the name is for the words of a failure.
std::vector<uint8_t> BytesGiven(const std::string &name, const std::string &text)
{
    if (text.starts_with('@'))
        return BytesOfFile(text.substr(1));
    try {
        return BytesOfHex(text);
    } catch (const std::runtime_error &error) {
        throw std::runtime_error(name + " " + error.what());
    }
}

int DecodeRecord(const SDecodeOptions &options)
{
    const SFunction *const function = FindFunction(options.function);
    if (function == nullptr)
        throw std::runtime_error(
            options.function +
            " is none of the pair's functions; quorlin decode --help lists them");
    const bool isAnswer = options.part == "answer";
    if (options.request && !isAnswer)
        throw std::runtime_error("--request goes with an answer alone");
    const std::vector<uint8_t> bytes = BytesGiven("the " + options.part, options.bytes);
    const std::vector<uint8_t> request =
        options.request ? BytesGiven("--request", *options.request) : std::vector<uint8_t>();
    const SShownRecord record =
        isAnswer ? ShownAnswer(*function, bytes, request) : ShownRequest(*function, bytes);
    COutput output;
    if (options.isJson) {
        nlohmann::ordered_json json = {{"function", function->name}, {"record", options.part}};
        json.update(RecordJson(record, EWhichFields::All));
        output.Line(json.dump(2));
    } else {
        output.Line(output.Palette().Function(function->name) + " " + options.part + ", " +
                    ByteCount(record.size));
        const SLayout *const layout = isAnswer ? function->answer : function->request;
        if (layout == nullptr)
            output.Line("  The function has no such record.");
        PrintRecord(output, record, EWhichFields::All, "  ");
    }
    output.End();
    return kExitGood;
}

std::string FunctionList()
{
    std::string list = "Functions:";
    for (int id = 0; id < static_cast<int>(EFunction::Count); ++id)
        list.append("\n  ").append(FunctionOf(static_cast<EFunction>(id)).name);
    return list;
}

}  // namespace

void AddDecodeCommand(CLI::App &app, int &exitCode)
{
    CLI::App *const decode =
        app.add_subcommand("decode", "Reads the bytes of a request or an answer, field by field");
    const auto options = std::make_shared<SDecodeOptions>();
    decode->add_option("FUNCTION", options->function, "C name of the function")->required();
    decode->add_option("RECORD", options->part, "request or answer")
        ->required()
        ->check(CLI::IsMember({"request", "answer"}));
    decode->add_option("BYTES", options->bytes, "Hexadecimal digits, or @FILE with raw bytes")
        ->required();
    decode->add_option(
        "--request", options->request,
        "The request of the answer, likewise; where the answer's layout hangs on it");
    decode->add_flag("--json", options->isJson, "As data");
    decode->footer(FunctionList());
    decode->callback(
        [options, &exitCode] { RunCommand(exitCode, [&] { return DecodeRecord(*options); }); });
}
