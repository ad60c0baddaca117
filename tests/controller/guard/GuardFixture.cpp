#include "tests/controller/guard/GuardFixture.h"

#include <QDir>
#include <QFile>

#include "Controller/calibration/CalPageLimits.h"
#include "Controller/core/PageTable.h"
#include "Model/ModelText.h"

void CGuardTest::SetUp()
{
    CCoreTest::SetUp();
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(m_folder.path()));
}

std::unique_ptr<CGuardedWrite> CGuardTest::Write(ECalItem item, CGuardedWrite::Progress progress)
{
    const SCalItemRow &row = FindCalItem(item);
    const std::string page = m_core.GetDataModel(PageName(row.page));
    return std::make_unique<CGuardedWrite>(
        SGuardedItem{QString::fromLatin1(row.key), row.make(),
                     std::make_shared<CCalPageLimits>(ModelFromText(page))},
        std::move(progress));
}

std::unique_ptr<CGuardedWrite> CGuardTest::Begun(ECalItem item)
{
    std::unique_ptr<CGuardedWrite> write = Write(item);
    EXPECT_EQ(write->Begin(), QString());
    return write;
}

SCalBlockImage CGuardTest::Flash(ECalItem item)
{
    const auto write = Write(item);
    EXPECT_EQ(write->BeginLook(), QString());
    return write->Flash();
}

QString CGuardTest::Put(const QString &name, const QByteArray &bytes) const
{
    QFile file(Path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    return Path(name);
}

QByteArray CGuardTest::Bytes(const QString &file) const
{
    QFile source(file);
    return source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray();
}

QString CGuardTest::Edited(ECalItem item, const QByteArray &key, const QByteArray &value,
                           int sections)
{
    const auto look = Write(item);
    EXPECT_EQ(look->BeginLook(), QString());
    const QString file = Path("edited.ini");
    QFile::remove(file);
    EXPECT_EQ(look->SaveIni(file), QString());
    QByteArray text = Bytes(file);
    int at = 0;
    for (int i = 0; i < sections; ++i) {
        at = text.indexOf("\r\n" + key + " = ", at);
        EXPECT_GE(at, 0);
        at += key.size() + 5;
        int end = at;
        while (text[end] != ',' && text[end] != '\r')
            ++end;
        text.replace(at, end - at, value);
    }
    return Put("edited.ini", text);
}

QString CGuardTest::EditedApt()
{
    return Edited(ECalItem::Apt, "Tx compensation power detector coupler loss 0", "1.5", 3);
}

QStringList CGuardTest::FilesOf(const QString &folder) const
{
    return QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

bool IsSame(const SCalBlockImage &left, const SCalBlockImage &right)
{
    if (left.records.size() != right.records.size())
        return false;
    for (const SCalBlockRecord &record : left.records) {
        const SCalBlockRecord *other = right.Find(record.kind, record.place);
        if (!other || other->blocks != record.blocks)
            return false;
    }
    return true;
}
