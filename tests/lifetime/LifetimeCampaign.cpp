// LifetimeCampaign [--rounds N] [--seed S] [--first N]
//
// Resets, hides, unloads and ends the tool at random moments of its requests, and prints how often
// that held ("run / held"). Exit code 1 if it did not always. A round is told again by its seed
// with --first and --rounds 1.
#include <QApplication>
#include <QCommandLineParser>
#include <QTemporaryDir>

#include "tests/lifetime/Campaign.h"

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addOption({"rounds", "How many.", "n", "40"});
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
    for (int round = first; round < first + parser.value("rounds").toInt(); ++round)
        campaign.Run(round);
    return campaign.Print() ? 0 : 1;
}
