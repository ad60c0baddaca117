// The window on a small screen: what must stay in view does, and everything else can be reached.
#include <memory>

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QFontInfo>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStatusBar>
#include <QTableWidget>
#include <QTest>
#include <QWheelEvent>
#include <QtTest/qtestspontaneevent.h>

#include "tests/common/PluginSession.h"
#include "tests/common/WaitUntil.h"
#include "tests/layout/LayoutCheck.h"
#include "tests/layout/Pages.h"

namespace {

// A laptop's 1366 x 768, or 1920 x 1080 at 150 %, less what the desktop takes.
const QSize kSmallest(1024, 560);

// All of it can be seen on the screen.
bool IsInView(const QWidget *widget)
{
    return widget->isVisible() && widget->visibleRegion() == QRegion(widget->rect());
}

bool IsCell(const QWidget *widget)
{
    for (const QWidget *parent = widget->parentWidget(); parent; parent = parent->parentWidget()) {
        if (qobject_cast<const QTableWidget *>(parent))
            return true;
    }
    return false;
}

// Editors of the page that the user can go to.
QList<QWidget *> EditorsOf(const QDockWidget *page)
{
    QList<QWidget *> editors;
    for (QWidget *widget : page->findChildren<QWidget *>()) {
        const bool isEditor =
            qobject_cast<QAbstractSpinBox *>(widget) || qobject_cast<QComboBox *>(widget);
        if (isEditor && widget->isVisible() && widget->isEnabled() && !IsCell(widget))
            editors.append(widget);
    }
    return editors;
}

}  // namespace

class AnyScreenTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void windowGetsThatSmall();
    void buttonsAndStatusBarStayInView_data() { NinePages(); }
    void buttonsAndStatusBarStayInView();
    void editorWithTheFocusIsScrolledIntoView_data() { NinePages(); }
    void editorWithTheFocusIsScrolledIntoView();
    void paneScrollsByTheWheelBesideItsEditors();
    void cleanupTestCase() { m_session.reset(); }

private:
    std::unique_ptr<CPluginSession> m_session;
};

// With the one font that every test has, whatever is installed.
void AnyScreenTest::initTestCase()
{
    QCOMPARE(QFontInfo(QFont("Arial")).family(), QString("DejaVu Sans"));
    m_session = std::make_unique<CPluginSession>("handset", 1, "CNrRssiDockWidgetV7");
    QVERIFY(m_session->ShowAndWait());
    m_session->Window()->resize(kSmallest);
    QApplication::setActiveWindow(m_session->Window());
    QCoreApplication::processEvents();
}

void AnyScreenTest::windowGetsThatSmall()
{
    QCOMPARE(m_session->Window()->size(), kSmallest);
}

void AnyScreenTest::buttonsAndStatusBarStayInView()
{
    QFETCH(QString, page);
    const QDockWidget *dock = RaisePage(*m_session, page);
    QVERIFY(dock);
    QCoreApplication::processEvents();
    QCOMPARE(HiddenButtons(dock).join('\n'), QString());
    QCOMPARE(CutTexts(dock).join('\n'), QString());
    QCOMPARE(Overlaps(dock).join('\n'), QString());
    const QStatusBar *bar = m_session->Window()->statusBar();
    QVERIFY(IsInView(bar));
    QCOMPARE(HiddenButtons(bar).join('\n'), QString());
    QCOMPARE(m_session->Window()->size(), kSmallest);
}

void AnyScreenTest::editorWithTheFocusIsScrolledIntoView()
{
    QFETCH(QString, page);
    const QDockWidget *dock = RaisePage(*m_session, page);
    QVERIFY(dock);
    QCoreApplication::processEvents();
    for (QWidget *editor : EditorsOf(dock)) {
        editor->setFocus(Qt::TabFocusReason);
        QVERIFY2(editor->hasFocus() && IsInView(editor), qPrintable(editor->objectName()));
    }
}

void AnyScreenTest::paneScrollsByTheWheelBesideItsEditors()
{
    QDockWidget *dock = RaisePage(*m_session, "CNrAptProfileDockWidgetV7");
    QVERIFY(dock);
    auto *pane = dock->findChild<QScrollArea *>("m_inputs");
    QVERIFY(pane && pane->verticalScrollBar()->maximum() > 0);
    pane->verticalScrollBar()->setValue(0);
    QWidget *caption = dock->findChild<QWidget *>("groupBox_hw");
    const QPointF at = caption->rect().center();
    QWheelEvent wheel(at, caption->mapToGlobal(at.toPoint()), {}, {0, -120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&wheel);  // as from the mouse: only such a one is passed on
    qApp->notify(caption, &wheel);
    QVERIFY(pane->verticalScrollBar()->value() > 0);
}

QTEST_MAIN(AnyScreenTest)
#include "AnyScreenTest.moc"
