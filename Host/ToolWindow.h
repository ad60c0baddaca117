// The tool's window as a host sees it from outside: by its object name, its status bar, its
// widgets' names. GUI thread.
//
//     CToolWindow tool;
//     if (tool.Attach())
//         connect(&tool, &CToolWindow::Signal_Status, this, &CDemo::Slot_Status);
#pragma once

#include <QColor>
#include <QMainWindow>
#include <QObject>
#include <QPointer>

constexpr char kPagesReady[] = "Init done.";  // status line: all pages are there
constexpr char kNoPages[] = "Init failed.";
constexpr char kStopButton[] = "m_stop";  // of a page that tests

// The tool's window among the windows of the application, or null: it exists from the moment when
// the plug-in is loaded.
QMainWindow *FindToolWindow();

// Does a test run on the DUT? A page of the tool tells by an enabled button "m_stop".
bool IsTestRunning();

// The running test as the tool shows it: "Single Tone TX  n78  3549.990 MHz  23.00 dBm  00:01:23".
struct SToolTest
{
    QString text;  // empty: none
    QColor color;  // the tool's: another one while the DUT transmits
};
SToolTest TestInTool();

// Shows a line in the status bar of the tool's own window.
void TellInTool(const QString &text);

class CToolWindow : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    // Finds the window and follows its status bar. False if there is none with a status bar.
    bool Attach();

    // The button of the page with this title, or null.
    class QAbstractButton *PageButton(const QString &pageTitle, const QString &buttonName) const;
    // Brings the page to the front, as a click on its tab does. False if there is no such page.
    bool RaisePage(const QString &pageTitle) const;

    // Saves a picture of the window as PNG. On failure, error says why.
    bool SaveScreenshot(const QString &file, QString &error) const;

signals:
    // A line of the status bar, as soon as the code that set it has returned to the event loop.
    void Signal_Status(const QString &text);

private:
    class QDockWidget *FindPage(const QString &pageTitle) const;

    QPointer<QMainWindow> m_window;
};
