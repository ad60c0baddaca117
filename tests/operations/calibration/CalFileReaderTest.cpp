// Calibration files in the hands of other tools: Python's configparser reads what the items write.
#include <cstdio>
#include <cstdlib>

#include <QJsonDocument>
#include <QJsonObject>

#include "tests/operations/calibration/CalFixture.h"

namespace {

constexpr char kReader[] = R"(
import configparser, json, sys
ini = configparser.ConfigParser(strict=False)
ini.optionxform = str
ini.read(sys.argv[1], encoding="utf-8-sig")
json.dump({name: dict(ini[name]) for name in ini.sections()}, sys.stdout)
)";

class CalFileReaderTest : public CCalTest
{
protected:
    QJsonObject ReadWithPython(const QString &name)
    {
        m_folder.Put(kReader, "reader.py");
        const std::string command =
            "python3 '" + m_folder.Path("reader.py") + "' '" + m_folder.Path(name) + "'";
        QByteArray output;
        FILE *const pipe = popen(command.c_str(), "r");
        char buffer[65536];
        while (const size_t size = fread(buffer, 1, sizeof buffer, pipe))
            output.append(buffer, static_cast<int>(size));
        EXPECT_EQ(pclose(pipe), 0);
        return QJsonDocument::fromJson(output).object();
    }

    void CheckReader(ICalItemByL1Operation &item)
    {
        ASSERT_EQ(item.UploadFromFlash(), 0u);
        ASSERT_EQ(SaveFile(item), kDone);
        const QByteArray bytes = m_folder.Bytes();
        const QJsonObject read = ReadWithPython("cal.ini");
        const QStringList sections = Sections(bytes);
        ASSERT_EQ(read.size(), sections.size());
        for (const QString &section : sections) {
            QJsonObject expected;
            for (const QString &line : SectionLines(bytes, section))
                expected[line.section(" = ", 0, 0)] = line.section(" = ", 1);
            ASSERT_GT(expected.size(), 10);
            ASSERT_EQ(read[section].toObject(), expected) << section.toStdString();
        }
    }
};

}  // namespace

TEST_F(CalFileReaderTest, PythonReadsEveryValue)
{
    if (std::system("python3 -c 'import configparser' 2>/dev/null") != 0)
        GTEST_SKIP() << "no Python here";
    CMultiRatAptProfileV7 apt(ERadioKind::Nr);
    CheckReader(apt);
    QFile::remove(QString::fromStdString(m_folder.Path()));
    CMultiRatPathLossV7 pathLoss(ERadioKind::Nr);
    CheckReader(pathLoss);
}
