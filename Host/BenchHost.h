// The window "Quorlin bench host": what the plug-in says of itself, and a button for each request
// that a host can make.
//
// Shows the metadata, the answer to the launch query in words, whether the tool's window is shown,
// whether it works on the target, the radio as the tool knows it, and a log of all that with times.
// With the simulated DUT there are the radio as the DUT knows it, and pages that steer the DUT and show
// the calls that reach it.
//
// While the tool is busy, the requests that would disturb the link to the target are off, and
// neither this window nor the tool's closes: the status bars of both say why. While a test runs,
// the user is asked before a window closes and before a reset, since both stop the test. Closing
// this window hides the tool. The plug-in must be loaded and outlive the window. GUI thread.
//
//     CBenchHost host(plugin);
//     host.show();
//     if (host.Query().isSupport)
//         host.ShowTool();
#pragma once

#include <memory>

#include <QMainWindow>
#include <QTimer>

#include "Host/PluginHandle.h"
#include "Host/SimulatedDut.h"

namespace Ui {
class CBenchHost;
}

class CBenchHost : public QMainWindow
{
    Q_OBJECT

public:
    explicit CBenchHost(CPluginHandle &plugin, QWidget *parent = nullptr);
    ~CBenchHost() override;

    // Blocks on the link to the target, at most for its timeouts.
    SPluginToolLaunchRequirement Query();
    void ShowTool();
    // A line of the event log, with the time of now.
    void AddEvent(const QString &event, const QString &detail);

protected:
    void closeEvent(QCloseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void on_m_query_clicked() { Query(); }
    void on_m_show_clicked() { ShowTool(); }
    void on_m_hide_clicked();
    void on_m_reset_clicked();
    void on_m_disable_clicked();
    void on_m_enable_clicked();
    void on_m_picture_clicked();

private:
    // What the host is about to do: an event, and a note in the trace.
    void BeginAction(const QString &action);
    // The pages that the DUT at hand has; see Tap.h for the ways of a trace.
    void AddPanels();
    void AddPanel(const QString &title, QWidget *panel);
    void FillPluginFields();
    void FillAnswer(const SPluginToolLaunchRequirement &answer);
    void ShowHint(const SPluginToolLaunchRequirement &answer);
    void ShowState();
    // The radio as the tool and the DUT know it.
    void ShowRadio();
    QString ProfileName() const;
    // The page "DUT" doesn't go by an older DUT any more.
    void TellThatToolHasAsked();
    // May this window, or the tool's, close? If not, the event is refused, and the reason told.
    bool MayClose(QCloseEvent *event, const QString &window);
    void RefuseClose(QCloseEvent *event, const QString &window);
    // Asks the user, if a test runs.
    bool MayStopTest(const QString &question);

    CPluginHandle &m_plugin;
    CSimulatedDut m_dut;
    std::unique_ptr<Ui::CBenchHost> m_ui;
    bool m_hasDut = false;  // steered by the pages: simulated, and no trace in its place
    QTimer m_radioTimer;
};
