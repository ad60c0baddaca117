// HandsCampaign [--seed S] [--first N] [--episodes N] [--minutes M] [--deeds N] [--skip RULE]
//               [--verbose]
// HandsCampaign --seeds A..B [--deeds N] [--minutes M] [--twice] [--skip RULE] [--verbose]
//
// A careless user at the tool: random keys, mnemonics, clicks, wheel turns, faults of the DUT,
// hides and resets, on all pages. After each deed the rules of rules/ are looked at. A failing
// episode is reported with what plays it again; the run goes on with the next one. Exit code 1 if
// any failed.
//
// With --seeds the user is an engineer at a DUT with many faults at once; a seed is a whole run of 200
// deeds (seeds/README.md). A run goes on where it was cut off by the seeds that are left.
//
// Without --minutes, QUORLIN_HANDS_MINUTES says how long; without that a minute, less what building
// up takes. With --seeds there is no such end.
#include <cstdio>
#include <map>

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include "tests/hands/Episode.h"
#include "tests/hands/seeds/SeedRun.h"

namespace {

// The tool's log of faults that the campaign has asked for.
void Drop(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtFatalMsg)
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

double Minutes(const QCommandLineParser &parser)
{
    const QString minutes = parser.isSet("minutes")
                                ? parser.value("minutes")
                                : qEnvironmentVariable("QUORLIN_HANDS_MINUTES", "0.9");
    return minutes.toDouble();
}

// A user of his own: nothing of what the tool remembers comes from here or stays.
class CFreshHome
{
public:
    CFreshHome() { qputenv("XDG_CONFIG_HOME", m_folder.path().toUtf8()); }

private:
    QTemporaryDir m_folder;
};

SSitting CarelessUser(const QCommandLineParser &parser, int number)
{
    const uint64_t seed = parser.value("seed").toULongLong();
    return {QString("--seed %1 --first %2 --episodes 1").arg(seed).arg(number),
            seed * 1000003 + static_cast<uint64_t>(number), parser.value("deeds").toInt(),
            EUser::Careless};
}

int RunEpisodes(const QCommandLineParser &parser)
{
    const int first = parser.value("first").toInt();
    const int last = first + parser.value("episodes").toInt();
    const qint64 most = qint64(Minutes(parser) * 60000);
    std::map<QString, int> failures;  // by rule
    SCounts all;
    int run = 0;
    QElapsedTimer timer;
    timer.start();
    for (int number = first; number < last && timer.elapsed() < most; ++number, ++run) {
        CEpisode episode(CarelessUser(parser, number));
        if (!episode.Run(parser.values("skip"), parser.isSet("verbose"))) {
            ++failures[episode.RuleName()];
            std::printf("%s", qPrintable(episode.Report()));
            std::fflush(stdout);
        }
        all += episode.Counts();
    }
    std::printf("%d episodes, %d deeds, %d commands compared, %d edits, %d writes of the flash\n",
                run, all.deeds, all.commands, all.edits, all.writes);
    for (const auto &[rule, count] : failures)
        std::printf("%s: %d episodes\n", qPrintable(rule), count);
    return failures.empty() ? 0 : 1;
}

int RunSeeds(const QCommandLineParser &parser)
{
    SSeedOptions options;
    if (!ParseSeeds(parser.value("seeds"), options)) {
        std::fprintf(stderr, "--seeds takes a number, or two as in 1..2000.\n");
        return 2;
    }
    if (parser.isSet("deeds"))
        options.steps = parser.value("deeds").toInt();
    options.minutes = parser.value("minutes").toDouble();
    options.skipped = parser.values("skip");
    options.isVerbose = parser.isSet("verbose");
    options.isTwice = parser.isSet("twice");
    return RunSeeds(options) ? 0 : 1;
}

}  // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    const CFreshHome home;
    QCommandLineParser parser;
    parser.addOption({"seed", "Of all chance.", "s", "1"});
    parser.addOption({"first", "Number of the first episode.", "n", "0"});
    parser.addOption({"episodes", "At most.", "n", "1000000"});
    parser.addOption({"minutes", "At most.", "m"});
    parser.addOption({"deeds", "Of an episode.", "n", "150"});
    parser.addOption({"seeds", "Many faults at once, a seed a run.", "a..b"});
    parser.addOption({"twice", "Each seed runs again, the same way."});
    parser.addOption({"skip", "A rule that is not looked at.", "name"});
    parser.addOption({"verbose", "Tells each deed, and what the tool logs."});
    parser.process(application);
    if (!parser.isSet("verbose"))
        qInstallMessageHandler(Drop);

    return parser.isSet("seeds") ? RunSeeds(parser) : RunEpisodes(parser);
}
