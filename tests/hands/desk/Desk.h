// The desk at which the careless user sits: the tool in its window, on the simulated DUT.
//
// Keys, clicks and wheel turns go in at the windows, as those of a person do, so that focus,
// shortcuts, popups and modal boxes take their part. A message box is closed as soon as it opens; a
// file dialog gets the file of the page in front, or is cancelled when there is none to open. Any other
// question is answered with no, but for that of a guarded write, if the user agrees.
//
// Settle waits until the tool is idle, or until a call to the DUT stands at a gate that the user's
// DUT has closed (Hold): then the tool is in the middle of a request, and the next thing that the
// user does comes at exactly this moment. GUI thread.
//
//   CDesk desk(profile, folder);
//   desk.Show();
//   desk.Click(button);
//   const QString failure = desk.Settle();   // empty: idle, or held
#pragma once

#include <functional>
#include <memory>

#include <QAbstractButton>
#include <QPointer>

#include "tests/common/BoxWatcher.h"
#include "tests/common/PluginSession.h"
#include "tests/common/WaitUntil.h"
#include "tests/hands/desk/Watchdog.h"

class CDesk : public QObject
{
    Q_OBJECT

public:
    CDesk(const QString &profile, const QString &folder);
    ~CDesk() override;

    CPluginSession &Session() { return *m_session; }
    VondPluginInterface *Tool() { return m_session->operator->(); }
    const QString &Folder() const { return m_folder; }
    CBoxWatcher &Boxes() { return m_boxes; }

    // Shows the tool and waits for the end of its init flow; the reason when that does not come.
    QString Show();
    QString Settle();
    // Nothing is under way.
    bool IsQuiet() const;

    // The next calls of a function wait at its gate.
    void Hold(const char *function);
    void Release();
    bool IsHolding() const { return !m_held.isEmpty(); }

    // The tool's; it lives as long as the session.
    QMainWindow *Window() const { return m_window; }
    // In the order of the tabs; empty behind a reset.
    QList<QDockWidget *> Pages() const;
    QDockWidget *Page(const QString &className) const;
    // Page that the user sees and can work on: in front, or floating.
    QDockWidget *FrontPage() const;
    QAbstractButton *RfOff() const;
    // It says that a test runs, or may run.
    bool IsRfOffMarked() const;
    // The tool's window and the floating pages, those that are shown.
    QList<QWidget *> Windows() const;

    // A click at a place of a widget (its middle), a notch of the wheel over it, a key to wherever
    // keys go in its window.
    void Click(QWidget *widget) { Click(widget, widget->rect().center()); }
    void Click(QWidget *widget, const QPoint &place);
    void Wheel(QWidget *widget, const QPoint &place, int notches);
    void Key(QWidget *window, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    // Heard of every page, at once: its document has not been packaged yet.
    std::function<void(QDockWidget *page, bool isBusy)> onBusy;
    std::function<void(QDockWidget *page, const QString &text)> onStatus;

    bool agrees = false;          // a guarded write is answered with yes
    QStringList saved;            // files that a dialog was answered with, to be written
    int resets = 0;               // by the host, so far
    bool isHostDisabled = false;  // the host's Disable was its last word to these pages

signals:
    // As onStatus, for one who waits in the middle of a deed.
    void Signal_Status(QDockWidget *page, const QString &text);

private slots:
    void AnswerDialog();
    void OnPageBusy(bool isBusy);
    void OnPageStatus(const QString &text);

private:
    bool IsHeld() const;

    const QString m_folder;
    CBoxWatcher m_boxes{ClockSpeed()};
    CWatchdog m_watchdog;
    std::unique_ptr<CPluginSession> m_session;
    QPointer<QMainWindow> m_window;
    QPointer<QWidget> m_active;  // window that the user was last at
    QTimer m_dialogs;
    QByteArray m_held;  // function whose gate is closed
};
