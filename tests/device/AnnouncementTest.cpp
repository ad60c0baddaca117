// What comes up by itself is announced to who reads the screen aloud: status lines, boxes, a test that
// runs.
#include <QAccessible>
#include <QComboBox>
#include <QMessageBox>
#include <QStatusBar>
#include <QtTest>

#include "Simulator/VondSim.h"
#include "tests/common/BoxWatcher.h"
#include "tests/common/PluginSession.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"

namespace {

struct SAlert
{
    QString role;
    QString name;
    QString description;
};

QVector<SAlert> g_alerts;
bool g_isListening = false;

// Reads at once what is announced, as a screen reader does.
void Hear(QAccessibleEvent *event)
{
    if (event->type() != QAccessible::Alert || !event->accessibleInterface())
        return;
    const QAccessibleInterface *told = event->accessibleInterface();
    const QWidget *widget = qobject_cast<QWidget *>(event->object());
    g_alerts.append({.role = widget ? widget->objectName() : QString(),
                     .name = told->text(QAccessible::Name),
                     .description = told->text(QAccessible::Description)});
}

bool IsHeard(const QString &text)
{
    for (const SAlert &alert : qAsConst(g_alerts)) {
        if (alert.name.contains(text) || alert.description.contains(text))
            return true;
    }
    return false;
}

}  // namespace

// In front of Qt's own: where no desktop listens, as on the offscreen platform, Qt drops every event
// before the handler of installUpdateHandler gets to see it.
void QAccessible::updateAccessibility(QAccessibleEvent *event)
{
    if (g_isListening)
        Hear(event);
}

class AnnouncementTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        g_alerts.clear();
        g_isListening = true;
    }

    void cleanup() { g_isListening = false; }

    void statusLinesAreAnnounced()
    {
        CPluginSession session;
        QVERIFY(session.ShowAndWait());
        QVERIFY(IsHeard("Init done."));
        session.Press("m_start");
        QVERIFY(session.WaitForStatus("Cont Rx start..."));
        QVERIFY(IsHeard("Cont Rx start..."));
    }

    void boxesAreAnnouncedWithTheirText()
    {
        CPluginSession session;
        QVERIFY(session.ShowAndWait());
        CBoxWatcher boxes;
        VondSim_AddFault(
            "{\"function\": \"VOND_MMRf_ContRxV7_r\", \"kind\": \"fail\", \"result\": 7}");
        session.Press("m_start");
        QVERIFY(WaitUntil([&] { return boxes.Seen().size() == 1; }));
        VondSim_ClearFaults();
        QVERIFY(IsHeard(boxes.Seen().first().plain));
    }

    void runningTestIsAnnouncedOnce()
    {
        CPluginSession session("handset", 1, "CNrSingleToneTxDockWidgetV7");
        QVERIFY(session.ShowAndWait());
        session.Press("m_start");
        auto *lamp = session.Window()->statusBar()->findChild<QWidget *>("m_testLamp");
        QVERIFY(WaitUntil([&] { return IsHeard("The DUT transmits: Single Tone TX"); }));
        QCOMPARE(lamp->accessibleName(), QString("Running test"));
        int count = 0;
        for (const SAlert &alert : qAsConst(g_alerts))
            count += alert.role == "m_testLamp" ? 1 : 0;
        QCOMPARE(count, 1);
        session.Press("m_stop");
        QVERIFY(WaitUntil([&] { return !lamp->isVisible(); }));
    }
};

QUORLIN_TEST_CLASS(AnnouncementTest)
#include "AnnouncementTest.moc"
