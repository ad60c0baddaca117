// The files of a session: which there are, where, with what rights, and that there are no others.
#include <sys/stat.h>

#include "tests/common/TestClass.h"
#include "tests/device/CompareSession.h"
#include "tests/device/GuardSession.h"
#include "tests/device/PlotSession.h"
#include "tests/device/stranger/PrivateTree.h"

namespace {

constexpr int kOfOthers = 077;
constexpr int kForOthersToWrite = 022;

bool WriteGuarded(CCompareSession &session)
{
    session.Press("m_btnGuardedWrite");
    QDialog *question = nullptr;
    if (!WaitUntil([&] {
            question = session.Window()->findChild<QDialog *>("CGuardedWriteDialog");
            return question && question->isVisible();
        }))
        return false;
    CBoxWatcher boxes;
    QTest::mouseClick(question->findChild<QPushButton *>("m_write"), Qt::LeftButton);
    return WaitUntil([&] { return boxes.Seen().size() == 1 && session.IsIdle(); }) &&
           boxes.Seen()[0].title == "Guarded write done and verified";
}

bool SaveSettings(const CPluginSession &session, const QString &file)
{
    AnswerFileDialog(file);
    session.Page()->findChild<QAction *>("m_actionSaveSettings")->trigger();
    return session.WaitForStatus(QString("Settings saved to %1.").arg(file));
}

// What an engineer does in a session, with all that it leaves. The folder is the current one.
int SessionOfFiles(const QStringList &arguments)
{
    ::umask(static_cast<mode_t>(arguments.value(0).toUInt(nullptr, 8)));
    for (const char *name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME"})
        qunsetenv(name);
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(QDir::cleanPath(QDir::currentPath() + "/../run")));
    const QDir work = QDir::current();
    {
        CPluginSession session("handset", 1, "CNrSingleToneTxDockWidgetV7");
        if (!session.ShowAndWait() || !SaveSettings(session, work.filePath("tone.json")))
            return 1;
        session.Press("m_start");
        if (!session.WaitForStatus("Single Tone Tx start..."))
            return 2;
        session.Press("m_stop");
        if (!session.WaitForStatus("Single Tone Tx stop."))
            return 3;
        session.Window()->findChild<QAction *>("m_actionRestoreSettings")->setChecked(true);
    }
    const SGuardEdit &edit = kGuardEdits[0];
    CCompareSession session(edit.page);
    if (!session.ShowAndWait() || !session.Run(kRead) || !session.Run(kWrite) ||
        !session.Run(kExport, work.filePath("losses.ini")))
        return 4;
    session.Type(edit.group, edit.member, edit.row, edit.column, kText);
    if (!WriteGuarded(session))
        return 5;
    if (!CPlotHands(session).Open() || !session.OpenCompare() ||
        !session.Compare(eDutSide, ePageSide))
        return 6;
    session->ResetPlugin();
    return 0;
}
QUORLIN_TEST_PROCESS(SessionOfFiles)

bool IsKnown(const QString &path)
{
    static const QRegularExpression known(
        "^(bin(/program)?|run|tmp|work|home|calls|home/\\.(config|local|local/share)"
        // of the tool: docs/security.md
        "|home/\\.config/quorlin-rf(/settings\\.ini)?"
        "|home/\\.local/share/quorlin-rf(/backups(/"
        "rx-path-loss-\\w+-handle1-[0-9-]+\\.(ini|json))?)?"
        "|run/quorlin-1\\.lock"
        "|configs(/User_Latest_Settings\\.txt)?"
        // what the user said
        "|work/(losses\\.ini|tone\\.json)"
        // of the simulated DUT, and of Qt's file dialog
        "|work/dut\\.flash|home/\\.config/QtProject\\.conf)$");
    return known.match(path).hasMatch();
}

}  // namespace

class SessionFilesTest : public QObject
{
    Q_OBJECT

private slots:
    void sessionWritesWhatTheDocumentSaysAndNothingElse_data() { AddMasks(); }
    void sessionWritesWhatTheDocumentSaysAndNothingElse()
    {
        if (!CPrivateTree::CanTrace())
            QSKIP("This system forbids tracing.");
        QFETCH(QString, mask);
        CPrivateTree tree;
        QVERIFY(tree.IsReady());
        const int code = tree.Run({"SessionOfFiles", mask});
        QVERIFY2(code == 0, tree.Output() + QByteArray::number(code));
        QVERIFY2(tree.WritesElsewhere().isEmpty(), qPrintable(tree.WritesElsewhere().join('\n')));

        const QMap<QString, int> entries = tree.Entries();
        QStringList unknown;
        QStringList open;
        for (auto entry = entries.begin(); entry != entries.end(); ++entry) {
            const QString told = entry.key() + ' ' + QString::number(entry.value(), 8);
            if (!IsKnown(entry.key()))
                unknown.append(told);
            if (entry.value() & (IsPrivate(entry.key()) ? kOfOthers : OpenWith(mask)))
                open.append(told);
        }
        QVERIFY2(unknown.isEmpty(), qPrintable(unknown.join('\n')));
        QVERIFY2(open.isEmpty(), qPrintable(open.join('\n')));
        for (const char *file :
             {"home/.config/quorlin-rf/settings.ini", "run/quorlin-1.lock",
              "configs/User_Latest_Settings.txt", "work/losses.ini", "work/tone.json"})
            QVERIFY2(entries.contains(file), file);
        QCOMPARE(entries.keys().filter("/backups/").size(), 2);
    }

    void aWriteElsewhereIsSeen()
    {
        if (!CPrivateTree::CanTrace())
            QSKIP("This system forbids tracing.");
        const QTemporaryDir elsewhere;
        CPrivateTree tree;
        QVERIFY(tree.IsReady());
        QCOMPARE(tree.Run({"WriteElsewhere", elsewhere.filePath("file")}), 0);
        const QStringList writes = tree.WritesElsewhere();
        QVERIFY2(writes.size() == 2, qPrintable(writes.join('\n')));
        QVERIFY(writes[0].startsWith("openat(") && writes[0].contains(elsewhere.path()));
        QVERIFY(writes[1].startsWith("mkdir") && writes[1].contains("no/such"));
    }

private:
    static void AddMasks()
    {
        QTest::addColumn<QString>("mask");
        QTest::newRow("a usual host") << "022";
        QTest::newRow("a careless host") << "000";
    }
    // A host that lets others write into all its files lets them write into exports.
    static int OpenWith(const QString &mask) { return mask == "000" ? 0 : kForOthersToWrite; }
    // What is in such a folder is the user's alone, whatever its own rights.
    static bool IsPrivate(const QString &path)
    {
        return path.endsWith("/quorlin-rf") || path.endsWith("/backups") || path.endsWith(".lock");
    }
};

namespace {

int WriteElsewhere(const QStringList &arguments)
{
    QFile file(arguments.value(0));
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write("x") == 1;
    QDir().mkdir("/no/such");
    return isWritten ? 0 : 1;
}
QUORLIN_TEST_PROCESS(WriteElsewhere)

}  // namespace

QUORLIN_TEST_CLASS(SessionFilesTest)
#include "SessionFilesTest.moc"
