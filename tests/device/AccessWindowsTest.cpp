// Every control of every window of the tool has a name for screen readers.
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QHeaderView>
#include <QLineEdit>
#include <QTabBar>
#include <QtTest>

#include "tests/common/PluginSession.h"
#include "tests/common/TestClass.h"
#include "tests/common/WaitUntil.h"

namespace {

bool IsInside(const QWidget *widget)
{
    for (const QWidget *around = widget->parentWidget(); around; around = around->parentWidget()) {
        if (qobject_cast<const QAbstractSpinBox *>(around) ||
            qobject_cast<const QComboBox *>(around) ||
            qobject_cast<const QAbstractItemView *>(around))
            return true;
    }
    return false;
}

bool IsControl(const QWidget *widget)
{
    const bool isOne = qobject_cast<const QAbstractButton *>(widget) ||
                       qobject_cast<const QAbstractSpinBox *>(widget) ||
                       qobject_cast<const QComboBox *>(widget) ||
                       qobject_cast<const QLineEdit *>(widget) ||
                       (qobject_cast<const QAbstractItemView *>(widget) &&
                        !qobject_cast<const QHeaderView *>(widget));
    return isOne && !IsInside(widget) && !qobject_cast<const QTabBar *>(widget->parentWidget());
}

// By name, or by a label whose buddy it is.
bool IsNamed(QWidget *widget)
{
    const QAccessibleInterface *told = QAccessible::queryAccessibleInterface(widget);
    if (!told)
        return false;
    const bool isByValue = qobject_cast<QComboBox *>(widget);
    return !told->relations(QAccessible::Label).isEmpty() || !widget->accessibleName().isEmpty() ||
           (!isByValue && !told->text(QAccessible::Name).isEmpty());
}

QStringList NamelessIn(const QWidget *window)
{
    QStringList names;
    for (QWidget *widget : window->findChildren<QWidget *>()) {
        if (IsControl(widget) && widget->isVisibleTo(window) && !IsNamed(widget))
            names.append(widget->metaObject()->className() + QString(" ") + widget->objectName());
    }
    return names;
}

}  // namespace

class AccessWindowsTest : public QObject
{
    Q_OBJECT

private slots:
    void everyControlHasAName_data()
    {
        QTest::addColumn<QString>("page");
        QTest::addColumn<QString>("action");
        QTest::addColumn<QString>("window");
        const auto add = [](const char *page, const char *action, const char *window) {
            QTest::newRow(action) << QString(page) << QString(action) << QString(window);
        };
        add("CNrContRxDockWidgetV7", "m_actionLog", "CSessionLogWindow");
        add("CNrContRxDockWidgetV7", "m_actionEnterFrequency", "CFrequencyDialog");
        add("CNrContRxDockWidgetV7", "m_actionTxPowerLimit", "");
        add("CNrRxPathlossDockWidgetV7", "m_actionExplain", "CExplainWindow");
        add("CNrRxPathlossDockWidgetV7", "m_actionCompare", "CCompareWindow");
        add("CNrRxPathlossDockWidgetV7", "m_actionPlot", "");
        add("CNrRsrpNormalDockWidgetV7", "m_actionPlot", "");
    }

    void everyControlHasAName()
    {
        QFETCH(QString, page);
        QFETCH(QString, action);
        CPluginSession session("handset", 1, page);
        QVERIFY(session.ShowAndWait());
        const QWidgetList before = QApplication::topLevelWidgets();
        auto *found = session.Window()->findChild<QAction *>(action);
        for (QAction *own : session.Page()->findChildren<QAction *>(action))
            found = own;
        QVERIFY2(found, qPrintable(action));
        // A window of its own, or a dialog that runs a loop until it is closed.
        QStringList nameless = {"no window"};
        QTimer look;
        connect(&look, &QTimer::timeout, this, [&] {
            for (QWidget *window : QApplication::topLevelWidgets()) {
                if (before.contains(window) || !window->isVisible() ||
                    window->findChildren<QAbstractButton *>().isEmpty())
                    continue;
                look.stop();
                nameless = NamelessIn(window);
                window->close();
                return;
            }
        });
        look.start(1);
        found->trigger();
        QVERIFY(WaitUntil([&] { return !look.isActive(); }));
        QVERIFY2(nameless.isEmpty(), qPrintable(nameless.join(", ")));
    }
};

QUORLIN_TEST_CLASS(AccessWindowsTest)
#include "AccessWindowsTest.moc"
