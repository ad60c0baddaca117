// What the tests of guarded writes share: a folder for files and locks, a write of an item with the limits
// of its page, and files as an engineer has edited them.
//
//   TEST_F(CGuardTest, ...)
//   {
//       const auto write = Begun(ECalItem::Apt);
//       EXPECT_EQ(write->WantFile(EditedApt(), {}), "");
//   }
#pragma once

#include <memory>

#include <QTemporaryDir>

#include "Controller/core/CalItemTable.h"
#include "Controller/guard/GuardedWrite.h"
#include "tests/controller/core/CoreFixture.h"

class CGuardTest : public CCoreTest
{
protected:
    void SetUp() override;

    std::unique_ptr<CGuardedWrite> Write(ECalItem item, CGuardedWrite::Progress progress = {});
    // Behind a good Begin.
    std::unique_ptr<CGuardedWrite> Begun(ECalItem item);
    // What flash holds.
    SCalBlockImage Flash(ECalItem item);
    QString Path(const QString &name) const { return m_folder.filePath(name); }
    QString Put(const QString &name, const QByteArray &bytes) const;
    QByteArray Bytes(const QString &file) const;
    // Flash as an INI file, the first value of a key replaced in the first sections.
    QString Edited(ECalItem item, const QByteArray &key, const QByteArray &value, int sections);
    // The coupler loss of TX routes 1 BW0, 1 BW1 and 2 BW0 is 1.5 dB.
    QString EditedApt();
    QStringList FilesOf(const QString &folder) const;

    QTemporaryDir m_folder;
};

bool IsSame(const SCalBlockImage &left, const SCalBlockImage &right);
