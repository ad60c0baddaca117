// Every page's document and form keep to the format, but for what allowed.txt excuses.
//
// A new page adds a row to kPages; until its form exists, a row without one.
#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>

#include "tests/modelcheck/PageFiles.h"
#include "tools/modelcheck/AllowList.h"

namespace {

struct SPageFiles
{
    const char *document;
    const char *form;  // null while there is none: the document is checked alone
};

constexpr SPageFiles kPages[] = {
    {"Model/resources/NrAptProfileV7.json", nullptr},
    {"Model/resources/NrContRxV7.json", "View/Rx/NrContRxDockWidgetV7.ui"},
    {"Model/resources/NrPuschTxForceModeV7.json", "View/Tx/NrPuschTxForcedDockWidgetV7.ui"},
    {"Model/resources/NrPuschTxNormalModeV7.json", "View/Tx/NrPuschTxNormalDockWidgetV7.ui"},
    {"Model/resources/NrRsrpForceModeV7.json", "View/Rx/NrRsrpForceDockWidgetV7.ui"},
    {"Model/resources/NrRsrpNormalModeV7.json", "View/Rx/NrRsrpNormalDockWidgetV7.ui"},
    {"Model/resources/NrRssiV7.json", "View/Rx/NrRssiDockWidgetV7.ui"},
    {"Model/resources/NrRxPathLossV7.json", nullptr},
    {"Model/resources/NrSingleToneTxV7.json", "View/Tx/NrSingleToneTxDockWidgetV7.ui"},
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

SCheckedFiles FileNames()
{
    SCheckedFiles names;
    for (const SPageFiles &page : kPages) {
        const QString document = QFileInfo(page.document).fileName();
        names.all << document;
        if (page.form)
            names.all << QFileInfo(page.form).fileName();
        else
            names.withoutForms << document;
    }
    return names;
}

TFindings Check(const SPageFiles &page)
{
    const STextFile document = ReadText(SourceFile(page.document));
    return page.form ? CheckPage(document, ReadText(SourceFile(page.form)))
                     : CheckDocument(document);
}

TEST(PageResources, KeepToTheFormatButForWhatIsAllowed)
{
    TFindings findings;
    for (const SPageFiles &page : kPages) {
        const TFindings found = Check(page);
        findings.insert(findings.end(), found.begin(), found.end());
    }
    ApplyAllowList(Allowed(), "allowed.txt", FileNames(), findings);
    EXPECT_TRUE(findings.empty()) << qPrintable(Lines(findings).join('\n'));
}

TEST(PageResources, AreAllInTheTable)
{
    QStringList known = FileNames().all;
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
        EXPECT_TRUE(FileNames().all.contains(line.file)) << "line " << line.line;
}

}  // namespace
