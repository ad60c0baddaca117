#include "tests/hands/desk/Desk.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QRegularExpression>
#include <QStatusBar>
#include <QThreadPool>
#include <QWheelEvent>
#include <QWindow>
#include <QtTest>

#include "Simulator/VondSim.h"
#include "tests/common/WaitUntil.h"

namespace {

// End a broken run; never waited for in a good one.
constexpr int kLongMs = 60000;
constexpr int kShowMs = 20000;

QWindow *Handle(const QWidget *widget)
{
    return widget->window()->windowHandle();
}

void Activate(QWidget *window)
{
    if (QApplication::activeWindow() == window)
        return;
    window->activateWindow();
    QCoreApplication::processEvents();
    if (QApplication::activeWindow() != window)
        QApplication::setActiveWindow(window);
}

// Of the first kind of file that the dialog offers.
QString Suffix(const QFileDialog &dialog)
{
    const QString kind = dialog.nameFilters().value(0).section('*', 1);
    return kind.left(kind.indexOf(QRegularExpression("[ )]")));
}

}  // namespace

CDesk::CDesk(const QString &profile, const QString &folder)
    : m_folder(folder), m_session(std::make_unique<CPluginSession>(profile, 1, QString())),
      m_window(m_session->Window())
{
    connect(&m_dialogs, &QTimer::timeout, this, &CDesk::AnswerDialog);
    m_dialogs.start(ClockSpeed());
}

CDesk::~CDesk()
{
    Release();
    VondSim_ClearFaults();
    Settle();
}

QString CDesk::Show()
{
    Tool()->ShowPlugin();
    const bool isShown = WaitUntil(
        [this] { return m_window->isEnabled() && Pages().size() > 1 && IsQuiet(); }, kShowMs);
    if (!isShown)
        return "the tool is not shown: " + m_session->StatusBar();
    Activate(m_window);
    for (QDockWidget *page : Pages()) {
        connect(page, SIGNAL(Signal_PluginIsBusy(bool)), this, SLOT(OnPageBusy(bool)),
                Qt::UniqueConnection);
        connect(page, SIGNAL(Signal_UpdateStatus(QString, int)), this, SLOT(OnPageStatus(QString)),
                Qt::UniqueConnection);
    }
    return {};
}

bool CDesk::IsQuiet() const
{
    return QThreadPool::globalInstance()->waitForDone(0) &&
           (m_session->busy.isEmpty() || !m_session->busy.last());
}

bool CDesk::IsHeld() const
{
    return IsHolding() && VondSim_WaitUntilHeld(m_held.constData(), 0) == 1;
}

QString CDesk::Settle()
{
    int quietTurns = 0;
    const auto isSettled = [&] {
        m_watchdog.Feed();
        quietTurns = IsQuiet() || IsHeld() ? quietTurns + 1 : 0;
        return quietTurns > 2;  // what the last job has posted is handled
    };
    if (!WaitUntil(isSettled, kLongMs))
        return "the tool stays busy";
    // As a window manager does when a box has closed.
    if (QWidget *active = QApplication::activeWindow())
        m_active = active;
    else if (Windows().contains(m_active))
        Activate(m_active);
    else if (m_window && m_window->isVisible())
        Activate(m_window);
    return m_watchdog.HasBitten() ? "the GUI thread waited for the target" : QString();
}

void CDesk::Hold(const char *function)
{
    Release();
    m_held = function;
    VondSim_Hold(function);
    m_watchdog.Guard(m_held);
}

void CDesk::Release()
{
    m_watchdog.Guard({});
    if (IsHolding())
        VondSim_Release(m_held.constData());
    m_held.clear();
}

QList<QDockWidget *> CDesk::Pages() const
{
    return m_window ? m_window->findChildren<QDockWidget *>(QString(), Qt::FindDirectChildrenOnly)
                    : QList<QDockWidget *>();
}

QDockWidget *CDesk::Page(const QString &className) const
{
    for (QDockWidget *page : Pages()) {
        if (page->objectName() == className)
            return page;
    }
    return nullptr;
}

QDockWidget *CDesk::FrontPage() const
{
    for (QDockWidget *page : Pages()) {
        if (!page->isFloating() && page->isEnabled() && !page->visibleRegion().isEmpty())
            return page;
    }
    return nullptr;
}

QAbstractButton *CDesk::RfOff() const
{
    const auto *bar = m_window ? m_window->findChild<QStatusBar *>() : nullptr;
    for (QAbstractButton *button :
         bar ? bar->findChildren<QAbstractButton *>() : QList<QAbstractButton *>()) {
        if (button->text().remove('&') == "RF Off")
            return button;
    }
    return nullptr;
}

bool CDesk::IsRfOffMarked() const
{
    const QAbstractButton *button = RfOff();
    return button && button->property("isHighlighted").toBool();
}

QList<QWidget *> CDesk::Windows() const
{
    QList<QWidget *> windows;
    if (m_window->isVisible())
        windows.append(m_window);
    for (QDockWidget *page : Pages()) {
        if (page->isFloating() && page->isVisible())
            windows.append(page);
    }
    return windows;
}

void CDesk::Click(QWidget *widget, const QPoint &place)
{
    const QPoint inWindow = widget->mapTo(widget->window(), place);
    Activate(widget->window());
    if (QWindow *window = Handle(widget))
        QTest::mouseClick(window, Qt::LeftButton, Qt::NoModifier, inWindow);
}

// The way of a real wheel: the window finds the widget, and Qt gives that the focus if it likes.
void CDesk::Wheel(QWidget *widget, const QPoint &place, int notches)
{
    QWindow *window = Handle(widget);
    if (!window)
        return;
    const QPoint inWindow = widget->mapTo(widget->window(), place);
    QWheelEvent event(inWindow, widget->mapToGlobal(place), {}, {0, 120 * notches}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(window, &event);
}

void CDesk::Key(QWidget *window, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    // The key may end the window that it goes to: a page is docked.
    const QPointer<QWindow> handle = Handle(window);
    if (handle)
        QTest::keyPress(handle, key, modifiers);
    if (handle)
        QTest::keyRelease(handle, key, modifiers);
}

void CDesk::AnswerDialog()
{
    if (auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget()))
        menu->close();
    QWidget *const modal = QApplication::activeModalWidget();
    auto *dialog = qobject_cast<QFileDialog *>(modal);
    if (!dialog) {
        auto *question = qobject_cast<QDialog *>(modal);
        if (!question || qobject_cast<QMessageBox *>(modal))
            return;
        auto *write = question->findChild<QAbstractButton *>("m_write");
        if (agrees && write)
            write->click();
        else
            question->reject();
        return;
    }
    const QDockWidget *page = FrontPage();
    const QString file = m_folder + '/' + (page ? page->objectName() : "other") + Suffix(*dialog);
    if (dialog->acceptMode() == QFileDialog::AcceptOpen && !QFile::exists(file)) {
        dialog->reject();
        return;
    }
    if (dialog->acceptMode() == QFileDialog::AcceptSave)
        saved.append(file);
    dialog->setOption(QFileDialog::DontConfirmOverwrite);
    dialog->findChild<QLineEdit *>("fileNameEdit")->setText(file);
    QMetaObject::invokeMethod(dialog, "accept");
}

void CDesk::OnPageBusy(bool isBusy)
{
    if (onBusy)
        onBusy(qobject_cast<QDockWidget *>(sender()), isBusy);
}

void CDesk::OnPageStatus(const QString &text)
{
    auto *page = qobject_cast<QDockWidget *>(sender());
    if (onStatus)
        onStatus(page, text);
    emit Signal_Status(page, text);
}
