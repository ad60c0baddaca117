// Steps that change whole records, on both calibration pages: what a Read or Import replaced, Revert
// record, Revert all and Copy record, each undone and redone, with the DUT's flash as the witness.
#include <cstddef>
#include <cstring>

#include "tests/common/TestClass.h"
#include "tests/device/UndoSteps.h"

namespace {

constexpr int kPaGain = 7;  // groups of the APT page
constexpr char kHighGain[] = "paHighPaGain";

// An edit of a table on each page, in two records.
struct SPlaces
{
    const char *page;
    int group;
    const char *member;
};

constexpr SPlaces kPages[] = {
    {.page = kPathLossPage, .group = 2, .member = "lna0"},
    {.page = kAptPage, .group = kPaGain, .member = kHighGain},
};

void AddPageRows()
{
    QTest::addColumn<int>("row");
    QTest::newRow("path loss") << 0;
    QTest::newRow("APT") << 1;
}

void EditTwoRecords(CUndoSession &session, const SPlaces &places)
{
    session.Edit(places.group, places.member, 0, 1, "7.5");
    session.Select("band", "n78");
    if (session.Find<QComboBox>(session.ConfigName("routeType")))
        session.Select("routeType", "Type1");
    session.Edit(places.group, places.member, 1, 2, "-4.5");
}

}  // namespace

class RecordUndoTest : public QObject
{
    Q_OBJECT

private slots:
    void readIsUndoneWithTheEditsOfAllRoutes_data() { AddPageRows(); }
    void readIsUndoneWithTheEditsOfAllRoutes();
    void importIsUndoneWithTheEditsOfAllRoutes_data() { AddPageRows(); }
    void importIsUndoneWithTheEditsOfAllRoutes();
    void editsBeforeAReadAreUndoneBehindIt();
    void failedReadIsUndone();
    void nextFlowEndsTheUndoOfTheOneBefore();
    void revertRecordLeavesTheOthers_data() { AddPageRows(); }
    void revertRecordLeavesTheOthers();
    void revertAllIsOneCommand_data() { AddPageRows(); }
    void revertAllIsOneCommand();
    void revertIsOffWhenNothingIsChanged();
    void copiedRecordHasAllButBandAndRoute();
    void copyIsUndoneAndRedone();
    void cancelledCopyDoesNothing();
    void copyListsRecordsOfTheBandAndKindAlone();
    void pageMayGoBehindTheCopyDialog();
};

void RecordUndoTest::readIsUndoneWithTheEditsOfAllRoutes()
{
    QFETCH(int, row);
    CUndoSession session(kPages[row].page);
    QVERIFY(session.IsRead());
    EditTwoRecords(session, kPages[row]);
    const QString second = session.CellText(kPages[row].group, kPages[row].member, 1, 2);
    QVERIFY(session.Run(kRead));  // asks nothing
    QVERIFY(session.CellText(kPages[row].group, kPages[row].member, 1, 2) != second);
    QCOMPARE(session.ChangeCount(), QString());
    QCOMPARE(session.UndoText(), QString("Undo Read"));
    session.PressUndo();
    QCOMPARE(session.CellText(kPages[row].group, kPages[row].member, 1, 2), second);
    QCOMPARE(session.ChangeCount(), QString("2 changed cells"));
    session.PressRedo();
    QCOMPARE(session.ChangeCount(), QString());
    session.PressUndo();
    const QStringList edits = session.Written();
    QVERIFY2(edits.size() == 2, qPrintable(edits.join('\n')));
}

void RecordUndoTest::importIsUndoneWithTheEditsOfAllRoutes()
{
    QFETCH(int, row);
    CUndoSession session(kPages[row].page);
    QVERIFY(session.IsRead());
    QVERIFY(session.Run(kExport, session.File("cal.ini")));
    EditTwoRecords(session, kPages[row]);
    QVERIFY(session.Run(kImport, session.File("cal.ini")));
    QCOMPARE(session.ChangeCount(), QString());
    QCOMPARE(session.UndoText(), QString("Undo Import"));
    session.PressUndo();
    QCOMPARE(session.ChangeCount(), QString("2 changed cells"));
    const QStringList edits = session.Written();
    QVERIFY2(edits.size() == 2, qPrintable(edits.join('\n')));
}

void RecordUndoTest::editsBeforeAReadAreUndoneBehindIt()
{
    CUndoSession session(kAptPage);
    QVERIFY(session.ShowAndWait());
    QApplication::setActiveWindow(session.Window());
    const QString before = session.CellText(kPaGain, kHighGain, 0, 1);
    session.Edit(kPaGain, kHighGain, 0, 1, "7.5");
    QVERIFY(session.Run(kRead));
    session.PressUndo();
    QCOMPARE(session.CellText(kPaGain, kHighGain, 0, 1), QString("7.50000"));
    session.PressUndo();
    QCOMPARE(session.CellText(kPaGain, kHighGain, 0, 1), before);
    QVERIFY(!session.CanUndo());
    const int calls = JournalOf(kWriteCall).size();
    CBoxWatcher boxes;
    session.Press(kWrite.button);
    QVERIFY(WaitUntil([&] { return !boxes.Seen().isEmpty() && session.IsIdle(); }));
    QCOMPARE(JournalOf(kWriteCall).size(), calls);  // nothing is valid, as before the Read
}

void RecordUndoTest::failedReadIsUndone()
{
    CUndoSession session(kPathLossPage, R"({"name": "many rounds", "base": "handset",
        "calibration": {"rxType1Subbands": {"default": 60}, "rxType2Subbands": {"default": 40}}})");
    QVERIFY(session.IsRead());
    const QString before = session.CellText(2, "lna0", 0, 1);
    session.Edit(2, "lna0", 0, 1, "7.5");
    session.Select("routeType", "Type2");
    session.Edit(5, "main", 0, 1, "3.5");
    session.Select("band", "n78");
    // The first round brings type 1 routes; the last type 2 routes do not come in.
    VondSim_AddFault(QString(R"({"function": "%1", "kind": "fail", "result": 4, "nth": 2})")
                         .arg(kReadCall)
                         .toUtf8());
    CBoxWatcher boxes;
    session.Press(kRead.button);
    QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1 && session.IsIdle(); }));
    VondSim_ClearFaults();
    const QString left = session.ChangeCount();
    QVERIFY2(left == "1 changed cell" || left.isEmpty(), qPrintable(left));
    QCOMPARE(session.UndoText(), QString("Undo Read"));
    session.PressUndo();
    QCOMPARE(session.ChangeCount(), QString("2 changed cells"));
    session.Select("band", "n1");
    session.Select("routeType", "Type1");
    QCOMPARE(session.CellText(2, "lna0", 0, 1), QString("7.50000"));
    const QStringList edits = session.Written();
    QVERIFY2(edits.size() == 2, qPrintable(edits.join('\n')));
    QVERIFY(before != "7.50000");
}

void RecordUndoTest::nextFlowEndsTheUndoOfTheOneBefore()
{
    CUndoSession session(kAptPage);
    QVERIFY(session.IsRead());
    session.Edit(kPaGain, kHighGain, 0, 1, "7.5");
    QVERIFY(session.Run(kRead));
    session.Edit(kPaGain, kHighGain, 0, 2, "8.5");
    QVERIFY(session.Run(kRead));
    session.PressUndo();
    QCOMPARE(session.CellText(kPaGain, kHighGain, 0, 2), QString("8.50000"));
    QVERIFY(!session.CanUndo());
}

void RecordUndoTest::revertRecordLeavesTheOthers()
{
    QFETCH(int, row);
    CUndoSession session(kPages[row].page);
    QVERIFY(session.IsRead());
    EditTwoRecords(session, kPages[row]);
    QCOMPARE(session.ChangeCount(), QString("2 changed cells"));
    session.Action("m_actionRevertRecord")->trigger();
    QCOMPARE(session.ChangeCount(), QString("1 changed cell"));
    QCOMPARE(session.UndoText(), QString("Undo Revert record"));
    QVERIFY(!session.Action("m_actionRevertRecord")->isEnabled());
    session.PressUndo();
    QCOMPARE(session.ChangeCount(), QString("2 changed cells"));
    QCOMPARE(session.CellText(kPages[row].group, kPages[row].member, 1, 2), QString("-4.50000"));
    session.PressRedo();
    QCOMPARE(session.ChangeCount(), QString("1 changed cell"));
    const QStringList edits = session.Written();
    QVERIFY2(edits.size() == 1, qPrintable(edits.join('\n')));
}

void RecordUndoTest::revertAllIsOneCommand()
{
    QFETCH(int, row);
    CUndoSession session(kPages[row].page);
    QVERIFY(session.IsRead());
    EditTwoRecords(session, kPages[row]);
    QCOMPARE(session.ChangeCount(), QString("2 changed cells"));
    QTest::keyClick(session.Selector("band"), Qt::Key_R,
                    Qt::ControlModifier | Qt::AltModifier | Qt::ShiftModifier);
    QCOMPARE(session.ChangeCount(), QString());
    QCOMPARE(session.Written(), QStringList());
    session.PressUndo();
    QCOMPARE(session.ChangeCount(), QString("2 changed cells"));
    QCOMPARE(session.Written().size(), 2);
    session.PressRedo();
    QCOMPARE(session.Written(), QStringList());
}

void RecordUndoTest::revertIsOffWhenNothingIsChanged()
{
    CUndoSession session(kAptPage);
    QVERIFY(session.ShowAndWait());
    for (const char *name : {"m_actionRevertRecord", "m_actionRevertAll"})
        QVERIFY2(!session.Action(name)->isEnabled(), name);
    session.Edit(kPaGain, kHighGain, 0, 1, "7.5");  // of a record that never came in
    QCOMPARE(session.ChangeCount(), QString());
    for (const char *name : {"m_actionRevertRecord", "m_actionRevertAll"})
        QVERIFY2(!session.Action(name)->isEnabled(), name);
}

void RecordUndoTest::copiedRecordHasAllButBandAndRoute()
{
    CUndoSession session(kAptPage);
    QVERIFY(session.IsRead());
    session.Select("band", "n78");
    session.Edit(kPaGain, kHighGain, 0, 1, "7.5");
    const uint32_t from = session.Selector("txRoute")->currentText().toUInt();
    QStringList texts;
    AnswerCopy({0}, QDialogButtonBox::Ok, &texts);
    session.Action("m_actionCopyRecord")->trigger();
    QVERIFY(!texts.isEmpty());
    const uint32_t to = texts.first().section(' ', 1, 1).remove(',').toUInt();
    const int region = texts.first().section("BW", 1, 1).toInt();
    QVERIFY(session.Run(kWrite));
    QVector<QVector<QByteArray>> blocks[2];  // by region
    for (const CFlashFile::SRecord &record : CFlashFile(session.Path()).records) {
        if (record.place.kind == eFlashApt && record.place.route == from)
            blocks[0].append(record.blocks);
        if (record.place.kind == eFlashApt && record.place.route == to)
            blocks[1].append(record.blocks);
    }
    const QVector<QByteArray> source = blocks[0].value(0);
    const QVector<QByteArray> target = blocks[1].value(region);
    QVERIFY(!source.isEmpty());
    QCOMPARE(target.size(), source.size());
    constexpr int kBehindBand = sizeof(SAptBlock::band);
    for (int i = 0; i < source.size(); ++i)
        QCOMPARE(target[i].mid(kBehindBand), source[i].mid(kBehindBand));
}

void RecordUndoTest::copyIsUndoneAndRedone()
{
    CUndoSession session(kAptPage);
    QVERIFY(session.IsRead());
    session.Select("band", "n78");
    session.Edit(kPaGain, kHighGain, 0, 1, "7.5");
    AnswerCopy({0}, QDialogButtonBox::Ok);
    session.Action("m_actionCopyRecord")->trigger();
    QCOMPARE(session.UndoText(), QString("Undo Copy record"));
    const int copied = session.Written().size();
    QVERIFY(copied > 1);
    session.PressUndo();
    QCOMPARE(session.Written().size(), 1);
    session.PressRedo();
    QCOMPARE(session.Written().size(), copied);
    session.PressUndo();
    session.PressUndo();
    QCOMPARE(session.Written(), QStringList());
}

void RecordUndoTest::cancelledCopyDoesNothing()
{
    CUndoSession session(kAptPage);
    QVERIFY(session.IsRead());
    session.Select("band", "n78");
    AnswerCopy({0}, QDialogButtonBox::Cancel);
    session.Action("m_actionCopyRecord")->trigger();
    QCOMPARE(session.UndoText(), QString("Undo Read"));
    QCOMPARE(session.Written(), QStringList());
}

void RecordUndoTest::copyListsRecordsOfTheBandAndKindAlone()
{
    CUndoSession session(kPathLossPage);
    QVERIFY(session.IsRead());
    session.Select("band", "n78");
    for (const QString &type : {QString("Type1"), QString("Type2")}) {
        session.Select("routeType", type);
        const auto *routes = session.Selector("route");
        QStringList expected;
        for (int i = 0; i < routes->count(); ++i) {
            if (i != routes->currentIndex())
                expected.append("Route " + routes->itemText(i));
        }
        QStringList texts;
        QCOMPARE(session.Action("m_actionCopyRecord")->isEnabled(), !expected.isEmpty());
        if (expected.isEmpty())
            continue;
        AnswerCopy({}, QDialogButtonBox::Cancel, &texts);
        session.Action("m_actionCopyRecord")->trigger();
        QCOMPARE(texts, expected);
    }
}

void RecordUndoTest::pageMayGoBehindTheCopyDialog()
{
    CUndoSession session(kAptPage);
    QVERIFY(session.IsRead());
    session.Select("band", "n78");
    QTimer::singleShot(100, [&] { session->ResetPlugin(); });
    session.Action("m_actionCopyRecord")->trigger();
    QVERIFY(!QApplication::activeModalWidget());
    QVERIFY(!session.Page());
}

QUORLIN_TEST_CLASS(RecordUndoTest)
#include "RecordUndoTest.moc"
