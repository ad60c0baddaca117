// Works the bench host and the tool as an engineer does in a day, and watches what the process holds.
//
//   WorkdaySoak --hours 8 --seed 1     a line a quarter of an hour; ends with 1 when something grew
//   WorkdaySoak --rounds 2             so many brief rounds, a line each; 1 without arguments
//   WorkdaySoak --rounds 12 --grow threads     something grows on purpose: ends with 1
//
// Hours are of the process's clocks: tools/soak.sh --day makes them run faster, and QUORLIN_CLOCK_SPEED tells
// how much. Ends with 2 when host or tool do not do what they should.
#include "tests/soak/day/Workday.h"

#include <cstdio>

#include <QCommandLineParser>
#include <QDir>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include "tests/soak/SoakClock.h"

namespace {

// What the tool and the host remember is this run's own.
void UseHome(const QString &folder)
{
    for (const char *name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"}) {
        const QString home = folder + '/' + name;
        QDir().mkpath(home);
        QFile::setPermissions(home, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv(name, home.toUtf8());
    }
}

int Run(const QCommandLineParser &parser, const QString &folder)
{
    const QString kind = parser.value("grow");
    const SWorkdayOptions options = {.seed = parser.value("seed").toULongLong(),
                                     .folder = folder,
                                     .growth = FindGrowth(kind),
                                     .pace = parser.isSet("hours") ? SWorkdayPace() : kBriefPace,
                                     .isVerbose = parser.isSet("verbose")};
    if (!kind.isEmpty() && !options.growth) {
        std::fprintf(stderr, "WorkdaySoak: --grow takes one of %s.\n",
                     qPrintable(GrowthKinds().join(", ")));
        return 2;
    }
    CWorkday day(options);
    if (parser.isSet("hours"))
        day.Hours(parser.value("hours").toDouble());
    else
        day.Rounds(parser.value("rounds").toInt());
    return day.IsSteady() ? 0 : 1;
}

}  // namespace

int main(int argc, char **argv)
{
    const QTemporaryDir folder;
    UseHome(folder.path());
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    CSoakApplication application(argc, argv);
    QLoggingCategory::setFilterRules(
        QStringLiteral("quorlin.*.debug=false\nquorlin.*.warning=false\nquorlin.*.critical=false"));
    QCommandLineParser parser;
    parser.addOption({"hours", "Length of the day.", "hours"});
    parser.addOption({"rounds", "Length of a short run.", "rounds", "1"});
    parser.addOption({"seed", "Decides what is edited and compared.", "seed", "1"});
    parser.addOption({"grow", "What grows on purpose.", "kind"});
    parser.addOption({"verbose", "Tells each part of a round."});
    parser.addHelpOption();
    parser.process(application);
    try {
        return Run(parser, folder.path());
    } catch (const std::runtime_error &error) {
        std::fprintf(stderr, "WorkdaySoak: %s\n", error.what());
        return 2;
    }
}
