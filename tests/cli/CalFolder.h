// "quorlin cal" on a DUT whose flash is a file, in a folder of its own for files, locks and backups.
//
//   const CCalFolder folder;
//   const SCliRun run = folder.Cal("read --item apt --to a.ini");
//   EXPECT_EQ(folder.Flash(), flash);
#pragma once

#include <string>

#include "tests/cli/CliFolder.h"

class CCalFolder : public CCliFolder
{
public:
    // The arguments behind "cal". profile: of this run; a name, or a file of this folder.
    SCliRun Cal(const std::string &arguments, const std::string &profile = "handset") const;
    // At a terminal; input is what the user types.
    SCliRun CalAtTerminal(const std::string &arguments, const std::string &input) const;
    // A profile of the handset with a fault, as JSON; the name of its file.
    std::string Faulty(const std::string &fault) const;
    // The bytes of the flash file, which a download writes for the first time.
    std::string Flash() const;
    std::string Bytes(const std::string &name) const;
    // Flash as an INI file with the first values of a key replaced.
    void Edit(const std::string &item, const std::string &key, const std::string &value, int times,
              const std::string &name) const;
    // The only JSON file in the folder of backups; its path.
    std::string Backup() const;

private:
    std::string Variables(const std::string &profile) const;
};

bool Contains(const std::string &text, const std::string &words);
