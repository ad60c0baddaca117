// LifetimeCampaign [--rounds N] [--minutes M] [--seed S] [--first N]
//
// Resets, hides, unloads and ends the tool at random moments of its requests, and prints how often
// that held ("run / held"), every 100 rounds and at the end. Exit code 1 if it did not always. A
// round is told again by its seed with --first and --rounds 1. --minutes ends it before its rounds
// are done.
#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include "tests/lifetime/Campaign.h"

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addOption({"rounds", "How many.", "n", "24"});
    parser.addOption({"minutes", "At most.", "m", "100000"});
    parser.addOption({"seed", "Of all chance.", "s", "1"});
    parser.addOption({"first", "Number of the first round.", "n", "0"});
    parser.addOption({"end", "Ends this process in the given round.", "n"});
    parser.process(application);

    const QTemporaryDir folder;
    CCampaign campaign(parser.value("seed").toULongLong(), folder.path());
    if (parser.isSet("end")) {
        campaign.RunToTheEnd(parser.value("end").toInt());
        return 0;
    }
    const int first = parser.value("first").toInt();
    const int last = first + parser.value("rounds").toInt();
    const qint64 most = parser.value("minutes").toInt() * qint64(60000);
    QElapsedTimer timer;
    timer.start();
    for (int round = first; round < last && timer.elapsed() < most; ++round) {
        campaign.Run(round);
        if ((round + 1 - first) % 100 == 0)
            campaign.Print();
    }
    return campaign.Print() ? 0 : 1;
}
