// Every kind of slip is reported, once, in its words.
#include <gtest/gtest.h>

#include <QDir>
#include <QSet>

#include "tests/modelcheck/BrokenPages.h"
#include "tests/modelcheck/PageFiles.h"

namespace {

// The file of the pair that holds the slip.
QString SlipFile(const SBrokenPage &page)
{
    const QString form = page.form;
    return form.startsWith("bad_") ? form : QString(page.document);
}

QString KindOf(const QString &line)
{
    return line.mid(line.lastIndexOf('[') + 1).chopped(1);
}

// Those of the page's lines that the document alone gives.
QStringList LinesWithoutForm(const SBrokenPage &page)
{
    QStringList lines;
    for (const QString &line : QString(page.lines).split('\n')) {
        const SKind *kind = FindKind(KindOf(line));
        EXPECT_TRUE(kind) << qPrintable(line);
        if (kind && !kind->needsForm && !line.startsWith(page.form))
            lines.append(line);
    }
    return lines;
}

std::string TestName(const testing::TestParamInfo<SBrokenPage> &info)
{
    return SlipFile(info.param).replace('.', '_').toStdString();
}

class BrokenPage : public testing::TestWithParam<SBrokenPage>
{
};

TEST_P(BrokenPage, IsReportedInItsWordsAndNoOthers)
{
    const SBrokenPage &page = GetParam();
    EXPECT_EQ(LinesOf(page.document, page.form).join('\n').toStdString(), page.lines);
}

TEST_P(BrokenPage, HasItsDocumentReportedInTheSameWordsWithoutAForm)
{
    const SBrokenPage &page = GetParam();
    EXPECT_EQ(LinesOf(page.document), LinesWithoutForm(page));
}

INSTANTIATE_TEST_SUITE_P(Slips, BrokenPage,
                         testing::ValuesIn(BrokenPages().begin(), BrokenPages().end()), TestName);

TEST(BrokenPages, HaveAnExampleOfEveryKind)
{
    QSet<QString> seen{"stale-allow"};  // belongs to the allow list, not to a page
    for (const SBrokenPage &page : BrokenPages()) {
        for (const QString &line : QString(page.lines).split('\n'))
            seen.insert(KindOf(line));
    }
    for (int i = 0; i < int(EKind::Count); ++i) {
        const char *name = KindRow(EKind(i)).name;
        EXPECT_TRUE(seen.contains(name)) << name;
    }
}

TEST(BrokenPages, AreAllTested)
{
    QSet<QString> tested;
    for (const SBrokenPage &page : BrokenPages())
        tested.insert(SlipFile(page));
    const QStringList files = QDir(DataFile("")).entryList({"bad_*"}, QDir::Files);
    EXPECT_FALSE(files.isEmpty());
    for (const QString &file : files)
        EXPECT_TRUE(tested.contains(file)) << qPrintable(file);
}

// The files that the slips were made in are good themselves.
TEST(GoodPages, AreReportedInNoLine)
{
    for (const char *name : {"good", "good_data", "small", "table"}) {
        const QString page(name);
        EXPECT_EQ(LinesOf(page + ".json", page + ".ui"), QStringList()) << name;
    }
}

}  // namespace
