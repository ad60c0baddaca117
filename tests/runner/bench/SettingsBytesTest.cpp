// Settings of every page that go through a file and a restart reach the DUT as the same bytes.
#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QtTest>

#include "tests/common/BoxWatcher.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"
#include "tests/runner/bench/BenchSession.h"
#include "tests/runner/bench/PageDeeds.h"

namespace {

// Runs an action of the page with the file as the answer to its dialog.
bool Run(CBench &bench, const char *page, const char *action, const QString &file,
         const QString &done)
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        auto *dock = window->findChild<QDockWidget *>(page);
        auto *found = dock ? dock->findChild<QAction *>(action) : nullptr;
        if (!found)
            continue;
        bench.AnswerFileDialog(file);
        found->trigger();
        auto *bar = window->findChild<QStatusBar *>();
        return WaitUntil([&] { return bar->currentMessage() == done.arg(file); }, 5000);
    }
    return false;
}

QVector<QByteArray> Pressed(CBenchPage *page, const SPageDeeds &deeds)
{
    VondSim_ClearJournal();
    // Calibration data are no settings.
    const bool isCalibration = deeds.buttons.contains("m_btnDownload");
    for (const QString &button : isCalibration ? QStringList(deeds.buttons[0]) : deeds.buttons)
        page->Press(button, kLong);
    return Requests();
}

}  // namespace

class SettingsBytesTest : public QObject
{
    Q_OBJECT

private slots:
    void loadedSettingsReachTheDutAsTheSameBytes_data() { AddPageDeeds(); }
    void loadedSettingsReachTheDutAsTheSameBytes();
};

void SettingsBytesTest::loadedSettingsReachTheDutAsTheSameBytes()
{
    QFETCH(QString, profile);
    QFETCH(int, page);
    const SPageDeeds &deeds = PageDeeds()[page];
    const QTemporaryDir folder;
    const QString file = folder.filePath("settings.json");
    QVector<QByteArray> saved;
    {
        CBenchSession session(profile);
        CBenchPage *bench = session.Page(deeds.page);
        QVERIFY(bench && !bench->Raise());
        QVERIFY(!SetAll(bench).isEmpty());
        QVERIFY(
            Run(session.bench, deeds.page, "m_actionSaveSettings", file, "Settings saved to %1."));
        saved = Pressed(bench, deeds);
    }
    CBenchSession session(profile);
    CBenchPage *bench = session.Page(deeds.page);
    QVERIFY(bench && !bench->Raise());
    QVERIFY(
        Run(session.bench, deeds.page, "m_actionLoadSettings", file, "Settings loaded from %1."));
    const QVector<QByteArray> loaded = Pressed(bench, deeds);
    // Where the odd DUT has no route, nothing can be started.
    QVERIFY(!saved.isEmpty() || profile != "handset");
    QCOMPARE(loaded, saved);
}

QUORLIN_TEST_CLASS(SettingsBytesTest)

#include "SettingsBytesTest.moc"
