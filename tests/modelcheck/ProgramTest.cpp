// The program's exit codes and what it prints, as a function and as the program that is built.
#include "tools/modelcheck/Program.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "tests/modelcheck/PageFiles.h"

namespace {

struct SRun
{
    int code = -1;
    QString out;
    QString err;
};

SRun Check(const QStringList &args)
{
    SRun run;
    QTextStream out(&run.out);
    QTextStream err(&run.err);
    run.code = RunModelCheck(args, out, err);
    return run;
}

QStringList Pair(const QString &document, const QString &form)
{
    return {DataFile(document), DataFile(form)};
}

QString FileWith(const QTemporaryDir &folder, const QByteArray &text)
{
    const QString name = folder.filePath("allowed.txt");
    QFile file(name);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
    return name;
}

TEST(ModelCheckProgram, IsSilentOverGoodPages)
{
    const SRun run = Check(Pair("good.json", "good.ui") + Pair("good_data.json", "good_data.ui"));
    EXPECT_EQ(run.code, 0);
    EXPECT_EQ(run.out, QString());
    EXPECT_EQ(run.err, QString());
}

TEST(ModelCheckProgram, PrintsALineAFindingUnderTheGivenFileName)
{
    const SRun run = Check(Pair("small.json", "bad_member_without_widget.ui") +
                           Pair("good.json", "good.ui") + Pair("bad_root.json", "small.ui"));
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.out, DataFile("small.json") +
                           ": cmdIf.request.group1.memberProperty.gain: no widget is named after "
                           "this member [member-without-widget]\n" +
                           DataFile("bad_root.json") +
                           ": (document): the root is no object [root]\n");
    EXPECT_EQ(run.err, QString());
}

TEST(ModelCheckProgram, ChecksADocumentWithoutAFormAlone)
{
    EXPECT_EQ(Check({DataFile("good.json")}).code, 0);
    const SRun run = Check(QStringList({DataFile("good.json"), DataFile("bad_key_member.json")}) +
                           Pair("small.json", "bad_member_without_widget.ui"));
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.out, DataFile("bad_key_member.json") +
                           ": cmdIf.request.group1.memberProperty.band.colour: unknown key "
                           "\"colour\" [unknown-key]\n" +
                           DataFile("small.json") +
                           ": cmdIf.request.group1.memberProperty.gain: no widget is named after "
                           "this member [member-without-widget]\n");
}

TEST(ModelCheckProgram, LetsAllowedLinesAboutWidgetsRestOverADocumentAlone)
{
    const QTemporaryDir folder;
    const QString list = FileWith(folder, "good.json cmdIf table-missing for the test\n");
    EXPECT_EQ(Check({DataFile("good.json"), "--allow", list}).code, 0);
    EXPECT_EQ(Check(Pair("good.json", "good.ui") + QStringList({"--allow", list})).code, 1);
}

TEST(ModelCheckProgram, AllowsWhatTheListExcuses)
{
    const QTemporaryDir folder;
    const QString list = FileWith(folder, "bad_root.json (document) root for the test\n");
    EXPECT_EQ(Check(QStringList({"--allow", list}) + Pair("bad_root.json", "small.ui")).code, 0);
}

TEST(ModelCheckProgram, ReportsAStaleLineOfTheList)
{
    const QTemporaryDir folder;
    const QString list = FileWith(folder, "good.json cmdIf cycle for the test\n");
    const SRun run = Check(Pair("good.json", "good.ui") + QStringList({"--allow", list}));
    EXPECT_EQ(run.code, 1);
    EXPECT_EQ(run.out, list + ": cmdIf: allowed breach does not occur (line 1: good.json, cycle) "
                              "[stale-allow]\n");
}

TEST(ModelCheckProgram, RefusesABrokenList)
{
    const QTemporaryDir folder;
    const QString list = FileWith(folder, "good.json cmdIf\n");
    const SRun run = Check(Pair("good.json", "good.ui") + QStringList({"--allow", list}));
    EXPECT_EQ(run.code, 2);
    EXPECT_EQ(run.err, "modelcheck: " + list + ": line 1: a line is: file-name path kind reason\n");
}

TEST(ModelCheckProgram, NamesAFileThatItCannotReadAndChecksNothing)
{
    const SRun run = Check(Pair("bad_root.json", "small.ui") + Pair("nowhere.json", "small.ui"));
    EXPECT_EQ(run.code, 2);
    EXPECT_EQ(run.out, QString());
    EXPECT_EQ(run.err, "modelcheck: cannot read " + DataFile("nowhere.json") +
                           ": No such file or directory\n");
}

struct SBadCall
{
    QStringList args;
    const char *complaint;
};

TEST(ModelCheckProgram, ComplainsOfACallWithoutSense)
{
    const SBadCall kCalls[] = {
        {{}, "no page is given"},
        {{"a.ui", "a.json"}, "\"a.ui\" stands where a document belongs"},
        {{"a.json", "a.ui", "b.ui"}, "\"b.ui\" stands where a document belongs"},
        {{"--alow", "x", "a.json", "a.ui"}, "unknown option \"--alow\""},
        {{"a.json", "a.ui", "--allow"}, "--allow stands once and takes a file"},
        {{"--allow", "x", "--allow", "y"}, "--allow stands once and takes a file"},
    };
    for (const SBadCall &call : kCalls) {
        const SRun run = Check(call.args);
        EXPECT_EQ(run.code, 2) << call.complaint;
        EXPECT_EQ(run.err, QString("modelcheck: %1\nUsage: modelcheck PAGE.json [PAGE.ui] "
                                   "[PAGE.json [PAGE.ui] ...] [--allow FILE]\n")
                               .arg(call.complaint));
        EXPECT_EQ(run.out, QString());
    }
}

TEST(ModelCheckProgram, HelpListsEveryKind)
{
    const SRun run = Check({"--help"});
    EXPECT_EQ(run.code, 0);
    EXPECT_TRUE(run.out.startsWith("Usage: modelcheck "));
    for (int i = 0; i < int(EKind::Count); ++i) {
        const QString row = QString("\n  %1 ").arg(KindRow(EKind(i)).name);
        EXPECT_TRUE(run.out.contains(row)) << qPrintable(row);
    }
}

// As it is built, beside this test.
SRun CheckBuilt(const QStringList &args)
{
    QProcess process;
    process.start(QCoreApplication::applicationDirPath() + "/modelcheck", args);
    EXPECT_TRUE(process.waitForFinished()) << qPrintable(process.errorString());
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

TEST(ModelCheckProgram, GivesItsExitCodeAndLinesToTheShell)
{
    int argc = 1;
    char name[] = "ModelCheckTest";
    char *argv[] = {name, nullptr};
    const QCoreApplication app(argc, argv);

    EXPECT_EQ(CheckBuilt(Pair("good.json", "good.ui")).code, 0);
    EXPECT_EQ(CheckBuilt({}).code, 2);
    const SRun bad = CheckBuilt(Pair("bad_root.json", "small.ui"));
    EXPECT_EQ(bad.code, 1);
    EXPECT_EQ(bad.out, DataFile("bad_root.json") + ": (document): the root is no object [root]\n");
}

}  // namespace
