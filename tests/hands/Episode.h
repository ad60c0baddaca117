// One sitting of the careless user: a fresh tool on a fresh DUT, and so many deeds.
//
//   CEpisode episode(seed, number, deeds);
//   if (!episode.Run({}, false))
//       std::puts(qPrintable(episode.Report()));   // what failed, and the last deeds
#pragma once

#include <memory>
#include <vector>

#include <QTemporaryDir>

#include "tests/hands/actions/Actions.h"
#include "tests/hands/rules/Rule.h"
#include "tests/hands/witness/DutCommands.h"

struct SCounts
{
    int deeds = 0;
    int commands = 0;  // compared with what the page showed
    int edits = 0;     // of calibration cells
    int writes = 0;    // of the flash
};

class CEpisode
{
public:
    CEpisode(uint64_t seed, int number, int deeds);
    ~CEpisode();

    // skipped: names of rules that are not looked at.
    bool Run(const QStringList &skipped, bool isVerbose);
    const QString &RuleName() const { return m_ruleName; }
    QString Report() const;
    SCounts Counts() const { return m_counts; }

private:
    QString Prepare();
    bool Do(bool isVerbose);
    QString NewCalls();

    const QString m_title;
    const int m_deeds;
    CChance m_chance;
    QTemporaryDir m_folder;
    std::unique_ptr<CDesk> m_desk;
    std::unique_ptr<CDutCommands> m_commands;
    std::vector<std::unique_ptr<IRule>> m_rules;
    QStringList m_skipped;
    QStringList m_done;       // words of the deeds
    uint32_t m_nextCall = 0;  // of the journal
    QString m_ruleName;
    QString m_failure;
    SCounts m_counts;
};
