// Every action of every page and of the window is reached by the keyboard alone: by its shortcut, and by
// the menu of Tools.
#include <QAction>
#include <QMenu>
#include <QPushButton>
#include <QShortcutEvent>
#include <QTimer>
#include <QtTest>

#include "tests/common/PluginSession.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"

namespace {

constexpr const char *kAllPages[] = {
    "CNrContRxDockWidgetV7",        "CNrRssiDockWidgetV7",          "CNrRxPathlossDockWidgetV7",
    "CNrRsrpForceDockWidgetV7",     "CNrRsrpNormalDockWidgetV7",    "CNrSingleToneTxDockWidgetV7",
    "CNrPuschTxForcedDockWidgetV7", "CNrPuschTxNormalDockWidgetV7", "CNrAptProfileDockWidgetV7",
};

// Takes the shortcut of an action in its place, so that nothing is done.
class CShortcutCatcher : public QObject
{
public:
    explicit CShortcutCatcher(const QList<QAction *> &actions)
    {
        for (QAction *action : actions)
            action->installEventFilter(this);
    }

    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() != QEvent::Shortcut)
            return false;
        const bool isAmbiguous = static_cast<QShortcutEvent *>(event)->isAmbiguous();
        caught.append(object->objectName() + (isAmbiguous ? " (ambiguous)" : ""));
        return true;
    }

    QStringList caught;
};

QList<QAction *> ActionsOf(const CPluginSession &session)
{
    QList<QAction *> actions;
    for (QAction *action : session.Page()->actions() + session.Window()->actions()) {
        if (!action->isSeparator())
            actions.append(action);
    }
    return actions;
}

void Press(QWidget *focus, const QKeySequence &keys)
{
    const int key = keys[0];
    QTest::keyClick(focus, static_cast<Qt::Key>(key & ~Qt::KeyboardModifierMask),
                    Qt::KeyboardModifiers(key & Qt::KeyboardModifierMask));
}

QString Plain(QString text)
{
    return text.remove('&').section('\t', 0, 0);
}

// Goes down through an open menu with the arrow keys; the texts of the entries on the way.
QStringList WalkDown(QMenu *menu)
{
    QStringList texts;
    for (int i = 0; i < menu->actions().size(); ++i) {
        QTest::keyClick(menu, Qt::Key_Down);
        if (menu->activeAction())
            texts.append(Plain(menu->activeAction()->text()));
    }
    return texts;
}

void AddAllPages()
{
    QTest::addColumn<QString>("page");
    for (const char *page : kAllPages)
        QTest::newRow(page) << QString(page);
}

}  // namespace

class KeyboardActionsTest : public QObject
{
    Q_OBJECT

private slots:
    void shortcutsReachTheirActions_data() { AddAllPages(); }

    void shortcutsReachTheirActions()
    {
        QFETCH(QString, page);
        CPluginSession session("handset", 1, page);
        QVERIFY(session.ShowAndWait());
        QApplication::setActiveWindow(session.Window());
        const QString section = page.contains("Pathloss") || page.contains("Apt")
                                    ? "calDataIf_config"
                                    : "cmdIf_request";
        session.Find(section + "_group1_memberProperty_band")->setFocus(Qt::TabFocusReason);
        const QList<QAction *> actions = ActionsOf(session);
        QVERIFY(actions.size() > 5);
        CShortcutCatcher catcher(actions);
        for (QAction *action : actions) {
            QVERIFY2(!action->shortcut().isEmpty(), qPrintable(action->objectName()));
            if (!action->isEnabled())
                continue;
            for (const QKeySequence &keys : action->shortcuts()) {
                catcher.caught.clear();
                Press(QApplication::focusWidget(), keys);
                QVERIFY2(catcher.caught == QStringList{action->objectName()},
                         qPrintable(action->objectName() + ": " + catcher.caught.join(", ")));
            }
        }
    }

    // Those that are off are passed over.
    void menuOfToolsHasThemAll_data() { AddAllPages(); }

    void menuOfToolsHasThemAll()
    {
        QFETCH(QString, page);
        CPluginSession session("handset", 1, page);
        QVERIFY(session.ShowAndWait());
        QApplication::setActiveWindow(session.Window());
        QStringList expected;
        for (const QAction *action : ActionsOf(session)) {
            if (action->isEnabled() && action->isVisible())
                expected.append(Plain(action->text()));
        }
        QStringList walked;
        // The menu runs a loop of its own until it is closed.
        QTimer look;
        connect(&look, &QTimer::timeout, this, [&] {
            auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            if (!menu)
                return;
            look.stop();
            walked = WalkDown(menu);
            QTest::keyClick(menu, Qt::Key_Escape);
        });
        look.start(1);
        QTest::keyClick(session.Window(), Qt::Key_T, Qt::AltModifier);
        QVERIFY(WaitUntil([&] { return !walked.isEmpty(); }));
        const QSet<QString> missed = QSet<QString>(expected.begin(), expected.end()) -
                                     QSet<QString>(walked.begin(), walked.end());
        QVERIFY2(missed.isEmpty(), qPrintable(missed.values().join(", ")));
    }

    void toolsAndRfOffAreReachedByTab()
    {
        CPluginSession session;
        QVERIFY(session.ShowAndWait());
        QApplication::setActiveWindow(session.Window());
        session.Find("m_start")->setFocus(Qt::TabFocusReason);
        QSet<QString> reached;
        constexpr int kMost = 100;
        for (int i = 0; i < kMost && QApplication::focusWidget(); ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            if (QApplication::focusWidget())
                reached.insert(QApplication::focusWidget()->objectName());
        }
        QVERIFY(reached.contains("m_tools"));
        QVERIFY(reached.contains("m_rfOff"));
    }
};

QUORLIN_TEST_CLASS(KeyboardActionsTest)
#include "KeyboardActionsTest.moc"
