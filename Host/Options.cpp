#include "Host/Options.h"

#include <cstdio>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLibrary>

#include "Host/SimulatedDut.h"

namespace {

constexpr char kDescription[] =
    "Bench host: loads the Quorlin RF plug-in, queries it, and shows its window.\n"
    "\n"
    "Exit code: 0 good; 1 the demonstration failed or the tool can't run on the DUT;\n"
    "2 wrong command line, no such profile, scenario or trace;\n"
    "3 the plug-in can't be loaded;\n"
    "4 there is no display.";

const QCommandLineOption kHelp({"h", "help"}, "Show this help.");
const QCommandLineOption kPlugin("plugin",
                                 "The plug-in to load (default: "
                                 "../plugins/libQuorlinRf.so beside this program).",
                                 "FILE");
const QCommandLineOption kProfile("profile",
                                  "Profile of the simulated DUT: a name or a file "
                                  "(default: that of VOND_SIM_PROFILE).",
                                  "NAME");
const QCommandLineOption kScenario("scenario",
                                   "What happens to the simulated DUT: a scenario's name or a file "
                                   "(default: that of VOND_SIM_SCENARIO).",
                                   "NAME");
const QCommandLineOption kHandle("handle",
                                 "Target handle for the plug-in, decimal or 0x and "
                                 "hexadecimal (default: 1).",
                                 "N", "1");
const QCommandLineOption kLink("link",
                               "Library that opens the link to the DUT and gives the handle: "
                               "VondLink_Open, VondLink_Close.",
                               "FILE");
const QCommandLineOption kVerbose("verbose", "Log the tool's debug lines too.");
const QCommandLineOption kScreenshot("screenshot",
                                     "Save a picture of the tool window as PNG: when "
                                     "its pages are there, with --demo at the end.",
                                     "FILE");
const QCommandLineOption kRecord("record", "Write a trace of all calls to the target.", "FILE");
const QCommandLineOption kReplay("replay", "Play a trace back: it answers in place of the target.",
                                 "FILE");
const QCommandLineOption kDemo("demo", "Without a person: query, show, start and stop continuous "
                                       "RX, end.");

// The simulated DUT comes with the plug-in; nothing where the plug-in runs on the real pair.
QString NamesHelp(const QString &pluginFile)
{
    QLibrary plugin(pluginFile);
    if (!plugin.load())
        return {};
    const CSimulatedDut dut;
    if (!dut.IsThere())
        return {};
    QString help = "\nProfiles of the simulated DUT: " + SimulatedProfiles().join(", ") +
                   "; or a file.\nScenarios, or a file:\n";
    for (const QString &name : SimulatedScenarios()) {
        const QByteArray text(dut->BuiltinScenarioText(name.toUtf8().constData()));
        help += QString("  %1 %2\n")
                    .arg(name, -15)
                    .arg(QJsonDocument::fromJson(text).object().value("about").toString());
    }
    return help;
}

int Refuse(const QString &text)
{
    std::fprintf(stderr, "quorlin-host: %s\nTry quorlin-host --help.\n", qPrintable(text));
    return eHostExitOptions;
}

}  // namespace

QString DefaultPluginFile()
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../plugins/libQuorlinRf.so");
}

std::optional<uint32_t> ReadHandle(const QString &text)
{
    const bool isHex = text.startsWith("0x", Qt::CaseInsensitive);
    bool isNumber = false;
    const uint32_t handle = text.midRef(isHex ? 2 : 0).toUInt(&isNumber, isHex ? 16 : 10);
    return isNumber ? std::optional(handle) : std::nullopt;
}

std::optional<int> ReadHostOptions(int argc, char **argv, SHostOptions &options)
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(kDescription);
    parser.addOptions({kHelp, kPlugin, kProfile, kScenario, kHandle, kLink, kVerbose, kScreenshot,
                       kRecord, kReplay, kDemo});

    if (!parser.parse(QCoreApplication::arguments()))
        return Refuse(parser.errorText());
    if (parser.isSet(kHelp)) {
        const QString plugin = parser.value(kPlugin);
        const QString names = NamesHelp(plugin.isEmpty() ? DefaultPluginFile() : plugin);
        std::fputs(qPrintable(parser.helpText() + names), stdout);
        return eHostExitGood;
    }
    if (!parser.positionalArguments().isEmpty())
        return Refuse(
            QString("Unexpected argument '%1'.").arg(parser.positionalArguments().constFirst()));
    for (const QCommandLineOption &option :
         {kPlugin, kProfile, kScenario, kLink, kScreenshot, kRecord, kReplay}) {
        if (parser.isSet(option) && parser.value(option).isEmpty())
            return Refuse(
                QString("Option '%1' has an empty value.").arg(option.names().constFirst()));
    }
    if (parser.isSet(kRecord) && parser.isSet(kReplay))
        return Refuse("Options 'record' and 'replay' exclude each other.");
    const std::optional<uint32_t> handle = ReadHandle(parser.value(kHandle));
    if (!handle)
        return Refuse(QString("'%1' is no target handle.").arg(parser.value(kHandle)));

    options.pluginFile = parser.isSet(kPlugin) ? parser.value(kPlugin) : DefaultPluginFile();
    options.profile = parser.value(kProfile);
    options.scenario = parser.value(kScenario);
    options.handle = *handle;
    options.linkFile = parser.value(kLink);
    options.isVerbose = parser.isSet(kVerbose);
    options.isDemo = parser.isSet(kDemo);
    options.screenshotFile = parser.value(kScreenshot);
    options.recordFile = parser.value(kRecord);
    options.replayFile = parser.value(kReplay);
    return std::nullopt;
}
