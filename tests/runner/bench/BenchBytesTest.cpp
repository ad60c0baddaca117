// What a bench makes of a page reaches the DUT as a person's keys and clicks do, byte for byte.
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QThreadPool>
#include <QtTest>

#include "tests/common/BoxWatcher.h"
#include "tests/common/Cells.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"
#include "tests/runner/bench/BenchSession.h"
#include "tests/runner/bench/PageDeeds.h"

namespace {

// By keys, as a person who uses no mouse.
void Do(const CPluginSession &session, const SDeed &deed)
{
    const QString place = '_' + deed.member.section + '_' + deed.member.group + "_memberProperty_";
    QWidget *editor = nullptr;
    for (QWidget *widget : session.Page()->findChildren<QWidget *>()) {
        auto *table = deed.column >= 0 ? qobject_cast<QTableWidget *>(widget) : nullptr;
        if (table && widget->objectName().contains(place)) {
            for (int row = 0; row < table->rowCount(); ++row) {
                if (table->verticalHeaderItem(row)->text().trimmed() == deed.member.caption)
                    editor = table->cellWidget(row, deed.column);
            }
        } else if (deed.column < 0 && widget->objectName().endsWith(place + deed.member.key)) {
            editor = widget;
        }
    }
    QVERIFY2(editor, qPrintable(deed.member.Name()));
    for (QWidget *at = editor; at; at = at->parentWidget()) {
        for (QTabWidget *tabs : session.Page()->findChildren<QTabWidget *>()) {
            if (tabs->indexOf(at) >= 0)
                tabs->setCurrentWidget(at);
        }
    }
    if (auto *list = qobject_cast<QComboBox *>(editor)) {
        list->setFocus();
        while (list->currentIndex() > 0 && list->currentText().trimmed() != deed.value)
            QTest::keyClick(list, Qt::Key_Up);
        while (list->currentText().trimmed() != deed.value &&
               list->currentIndex() + 1 < list->count())
            QTest::keyClick(list, Qt::Key_Down);
        QCOMPARE(list->currentText().trimmed(), deed.value);
    } else if (auto *box = qobject_cast<QCheckBox *>(editor)) {
        if (box->isChecked() != (deed.value == "true"))
            QTest::keyClick(box, Qt::Key_Space);
    } else {
        editor->setFocus();
        QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(editor, deed.value);
        QTest::keyClick(editor, Qt::Key_Tab);
    }
}

QVector<QByteArray> ByPerson(const QString &profile, const SPageDeeds &page,
                             const QVector<SDeed> &deeds)
{
    const CBoxWatcher boxes;
    CPluginSession session(profile, 1, page.page);
    if (!session.ShowAndWait())
        return {};
    MakeAllEditors(session.Page());
    const auto isIdle = [&] { return session.busy.isEmpty() || !session.busy.last(); };
    WaitUntil(isIdle);
    VondSim_ClearJournal();
    for (const SDeed &deed : deeds) {
        Do(session, deed);
        WaitUntil(isIdle);
    }
    for (const QString &button : page.buttons) {
        session.Press(button);
        WaitUntil(isIdle);
        QThreadPool::globalInstance()->waitForDone();
        QCoreApplication::processEvents();
    }
    return Requests();
}

}  // namespace

class BenchBytesTest : public QObject
{
    Q_OBJECT

private slots:
    void bytesAreThoseOfTheSameKeysAndClicks_data();
    void bytesAreThoseOfTheSameKeysAndClicks();
};

void BenchBytesTest::bytesAreThoseOfTheSameKeysAndClicks_data()
{
    AddPageDeeds();
}

void BenchBytesTest::bytesAreThoseOfTheSameKeysAndClicks()
{
    QFETCH(QString, profile);
    QFETCH(int, page);
    const SPageDeeds &deeds = PageDeeds()[page];
    QVector<SDeed> done;
    QVector<QByteArray> byBench;
    {
        CBenchSession session(profile);
        CBenchPage *bench = session.Page(deeds.page);
        QVERIFY(bench);
        QVERIFY(!bench->Raise());
        VondSim_ClearJournal();
        done = SetAll(bench);
        QVERIFY2(done.size() > 3, qPrintable(QString::number(done.size())));
        for (const QString &button : deeds.buttons)
            bench->Press(button, kLong);
        byBench = Requests();
    }
    // Where the odd DUT has no route, nothing can be started.
    QVERIFY(!byBench.isEmpty() || profile != "handset");
    const QVector<QByteArray> byPerson = ByPerson(profile, deeds, done);
    for (int i = 0; i < qMin(byBench.size(), byPerson.size()); ++i)
        QCOMPARE(byBench[i], byPerson[i]);
    QCOMPARE(byBench.size(), byPerson.size());
}

QUORLIN_TEST_CLASS(BenchBytesTest)

#include "BenchBytesTest.moc"
