// The fault campaign: each request of the tool, with each call to the DUT that it makes gone wrong.
//
//   FaultCampaign [--real-delays] [--noises=N] [PART...]
//   FaultCampaign reach
//
// Parts: launch, documents, rx, tx, cal, scenarios; without one, all of them. `reach` makes good runs alone
// and checks that together they reach the whole of the DUT's interface. --real-delays lets a late
// answer come after a second of the clock instead of when the test opens a gate; --noises tries
// each answer with N kinds of noise instead of one. Prints a table of the cases that ran and held;
// 0 if all did. Needs QT_QPA_PLATFORM=offscreen or a display, and its own folder bin beside
// plugins.
#include <cstdio>

#include <QApplication>
#include <QElapsedTimer>

#include "tests/campaign/LaunchCampaign.h"
#include "tests/campaign/ScenarioCampaign.h"

namespace {

constexpr char kScenarios[] = "scenarios";
constexpr const char *kParts[] = {"launch", "documents", "rx", "tx", "cal", kScenarios};
constexpr char kReach[] = "reach";
constexpr char kNoises[] = "--noises=";

// Of the interface, what no request of the nine pages calls: the side of the LTE chip, and the
// words of a result, which only a failure asks for.
constexpr EFunction kUnreached[] = {EFunction::LteCapability, EFunction::LteChipName,
                                    EFunction::GetErrorString};

void RunPart(const QString &part, CTally &tally, const SCampaignOptions &options)
{
    if (part == "launch")
        RunLaunchCampaign(tally, options);
    if (part == "documents")
        RunDocumentCampaign(tally, options);
    if (part == kScenarios)
        RunScenarioCampaign(tally, options);
    CCampaign campaign(tally, options);
    for (int i = 0; i < kPageCount; ++i) {
        if (part == kPages[i].group)
            campaign.RunPage(kPages[i]);
    }
}

void CheckReach(CTally &tally)
{
    for (int id = 0; id < static_cast<int>(EFunction::Count); ++id) {
        const SFunction &function = FunctionOf(static_cast<EFunction>(id));
        const bool isReached = tally.ReachedFunctions().contains(function.name.data());
        bool isListed = false;
        for (const EFunction unreached : kUnreached)
            isListed = isListed || unreached == function.id;
        if (isReached == isListed)
            tally.Complain(QString("%1 is %2")
                               .arg(function.name.data(), isReached ? "reached" : "not reached"));
    }
}

}  // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    SCampaignOptions options;
    QStringList parts;
    for (const QString &argument : application.arguments().mid(1)) {
        if (argument == "--real-delays") {
            options.delay = EDelay::Clock;
        } else if (argument.startsWith(kNoises)) {
            options.noises = argument.mid(static_cast<int>(qstrlen(kNoises))).toInt();
        } else if (argument == kReach) {
            options.hasFaults = false;
        } else if (std::find(std::begin(kParts), std::end(kParts), argument) != std::end(kParts)) {
            parts.append(argument);
        } else {
            std::fprintf(stderr,
                         "usage: %s [--real-delays] [--noises=N] [reach] "
                         "[launch|documents|rx|tx|cal|scenarios]...\n",
                         argv[0]);
            return 2;
        }
    }
    const bool isWhole = parts.isEmpty();
    for (const char *part : kParts) {
        if (isWhole)
            parts.append(part);
    }
    QElapsedTimer clock;
    clock.start();
    CTally tally;
    for (const QString &part : parts)
        RunPart(part, tally, options);
    if (isWhole)
        CheckReach(tally);
    if (options.hasFaults)
        tally.Print();
    else
        tally.PrintReach();
    std::printf("%.1f s\n", static_cast<double>(clock.elapsed()) / 1000);
    return tally.AllHeld() ? 0 : 1;
}
