// HandsCampaign [--seed S] [--first N] [--episodes N] [--minutes M] [--deeds N] [--skip RULE]
//               [--verbose]
//
// A careless user at the tool: random keys, mnemonics, clicks, wheel turns, faults of the DUT,
// hides and resets, on all pages. After each deed the rules of rules/ are looked at. A failing
// episode is reported with what plays it again; the run goes on with the next one. Exit code 1 if
// any failed.
//
// Without --minutes, QUORLIN_HANDS_MINUTES says how long; without that a minute, less what building
// up takes.
#include <cstdio>
#include <map>

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>

#include "tests/hands/Episode.h"

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

}  // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addOption({"seed", "Of all chance.", "s", "1"});
    parser.addOption({"first", "Number of the first episode.", "n", "0"});
    parser.addOption({"episodes", "At most.", "n", "1000000"});
    parser.addOption({"minutes", "At most.", "m"});
    parser.addOption({"deeds", "Of an episode.", "n", "150"});
    parser.addOption({"skip", "A rule that is not looked at.", "name"});
    parser.addOption({"verbose", "Tells each deed, and what the tool logs."});
    parser.process(application);
    if (!parser.isSet("verbose"))
        qInstallMessageHandler(Drop);

    const int first = parser.value("first").toInt();
    const int last = first + parser.value("episodes").toInt();
    const qint64 most = qint64(Minutes(parser) * 60000);
    std::map<QString, int> failures;  // by rule
    SCounts all;
    int run = 0;
    QElapsedTimer timer;
    timer.start();
    for (int number = first; number < last && timer.elapsed() < most; ++number, ++run) {
        CEpisode episode(parser.value("seed").toULongLong(), number, parser.value("deeds").toInt());
        if (!episode.Run(parser.values("skip"), parser.isSet("verbose"))) {
            ++failures[episode.RuleName()];
            std::printf("%s", qPrintable(episode.Report()));
            std::fflush(stdout);
        }
        const SCounts counts = episode.Counts();
        all.deeds += counts.deeds;
        all.commands += counts.commands;
        all.edits += counts.edits;
        all.writes += counts.writes;
    }
    std::printf("%d episodes, %d deeds, %d commands compared, %d edits, %d writes of the flash\n",
                run, all.deeds, all.commands, all.edits, all.writes);
    for (const auto &[rule, count] : failures)
        std::printf("%s: %d episodes\n", qPrintable(rule), count);
    return failures.empty() ? 0 : 1;
}
