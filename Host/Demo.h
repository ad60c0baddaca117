// The demonstration: does without a person what an engineer does first with the tool.
//
// Queries the plug-in, shows the tool, waits for its pages, starts continuous RX with the page's
// Start button, stops it with the Stop button, and saves a picture of the tool if one is asked for.
// It goes on when the status bar of the tool says that a step is done. It fails at the first thing
// that goes wrong: the DUT isn't supported, a step fails, a message box opens, a button is missing
// or stays off, the plug-in's signals don't fit, the picture can't be saved, or the deadline
// passes.
//
// Everything happens on the GUI thread, from the event loop; Start returns at once. A query or a
// window that blocks the GUI thread delays the deadline too.
//
//     CDemo demo(host, plugin, "demo.png");
//     connect(&demo, &CDemo::Signal_Ended, [](const QString &failure) { ... });
//     demo.Start(std::chrono::seconds(60));
//     app.exec();
#pragma once

#include <chrono>

#include <QObject>
#include <QPointer>
#include <QTimer>

#include "Host/ToolWindow.h"

class CBenchHost;
class CPluginHandle;
class QAbstractButton;
class QMessageBox;

class CDemo : public QObject
{
    Q_OBJECT

public:
    // screenshotFile: empty for no picture. Host and plug-in must outlive the demonstration.
    CDemo(CBenchHost &host, CPluginHandle &plugin, QString screenshotFile);
    ~CDemo() override;

    void Start(std::chrono::milliseconds deadline);

signals:
    // A step in plain words.
    void Signal_Said(const QString &line);
    // Once, last of all. failure: empty if all of it worked, otherwise what went wrong.
    void Signal_Ended(const QString &failure);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    // A line of the status bar that is waited for, and what is done when it comes.
    struct SStage
    {
        const char *what;        // the thing that is waited for, in words
        const char *goodStatus;  // status bar line that ends the stage
        const char *badStatus;   // status bar line that ends the demonstration
        void (CDemo::*next)();
    };
    static const SStage kStages[];

    void QueryAndShow();
    void OnStatus(const QString &text);
    void PressStart();
    void PressStop();
    void Conclude();
    void PressWhenOn(const QString &buttonName);
    void PressIfOn();
    void ReportBox(QMessageBox *box);
    void OnBusy(bool isBusy);
    void OnDeadline();
    void End(const QString &failure);

    CBenchHost &m_host;
    CPluginHandle &m_plugin;
    const QString m_screenshotFile;
    CToolWindow m_tool;
    QTimer m_deadline;
    const SStage *m_stage;               // the one that is waited for
    QPointer<QAbstractButton> m_button;  // to be pressed as soon as it is visible and on
    int m_busyCount = 0;                 // target operations that the plug-in announced
    bool m_isEnded = false;
};
