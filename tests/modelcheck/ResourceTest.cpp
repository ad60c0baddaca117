// Every page's document and form keep to the format, but for what allowed.txt excuses.
//
// A new page adds a row to kPages.
#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>

#include "tests/modelcheck/PageFiles.h"
#include "tools/modelcheck/AllowList.h"

namespace {

struct SPageFiles
{
    const char *document;
    const char *form;
};

constexpr SPageFiles kPages[] = {
    {"Model/resources/NrContRxV7.json", "View/Rx/NrContRxDockWidgetV7.ui"},
    {"tests/recipes/NrExampleV7.json", "tests/recipes/NrExampleDockWidgetV7.ui"},
};

constexpr char kResourceFolder[] = "Model/resources";
constexpr const char *kOtherResources[] = {"Nr3gpp.json"};  // in a format of its own
constexpr char kAllowed[] = "tools/modelcheck/allowed.txt";

SAllowList Allowed()
{
    const SAllowList list = ReadAllowList(QString::fromUtf8(ReadText(SourceFile(kAllowed)).text));
    EXPECT_EQ(list.error, QString()) << qPrintable(list.error);
    return list;
}

QStringList FileNames()
{
    QStringList names;
    for (const SPageFiles &page : kPages)
        names << QFileInfo(page.document).fileName() << QFileInfo(page.form).fileName();
    return names;
}

TEST(PageResources, KeepToTheFormatButForWhatIsAllowed)
{
    TFindings findings;
    for (const SPageFiles &page : kPages) {
        const TFindings found =
            CheckPage(ReadText(SourceFile(page.document)), ReadText(SourceFile(page.form)));
        findings.insert(findings.end(), found.begin(), found.end());
    }
    ApplyAllowList(Allowed(), "allowed.txt", FileNames(), findings);
    EXPECT_TRUE(findings.empty()) << qPrintable(Lines(findings).join('\n'));
}

TEST(PageResources, AreAllInTheTable)
{
    QStringList known = FileNames();
    for (const char *other : kOtherResources)
        known << other;
    const QStringList resources =
        QDir(SourceFile(kResourceFolder)).entryList({"*.json"}, QDir::Files);
    EXPECT_FALSE(resources.isEmpty());
    for (const QString &resource : resources)
        EXPECT_TRUE(known.contains(resource)) << qPrintable(resource);
}

TEST(PageResources, AllowListNamesNoOtherFiles)
{
    for (const SAllowLine &line : Allowed().lines)
        EXPECT_TRUE(FileNames().contains(line.file)) << "line " << line.line;
}

}  // namespace
