// The tool window of Quorlin RF: the reusable form, tied to the core.
//
// Contract: CAutoBindingDataModelForm. The page classes are registered by whoever assembles the
// plug-in and handed in as a function, so that this window knows none of them.
//
// At the right end of the status bar stand the running test, RF Off and Tools, the menu of all actions.
// RF Off stops every test on the target, whichever page
// started it and whatever is on its way. It is highlighted while a test runs or may run. Reset and
// the window's own end stop what still runs without a word.
//
// A show starts the init flow where there are no pages, also when the window is visible already.
//
//   CQuorlinForm form(&RegisterPageTypes);
//   form.show();
#pragma once

#include <cstdint>

#include "View/form/AutoBindingDataModelForm.h"
#include "View/form/LastSettings.h"
#include "ViewController/QuorlinViewCtrl.h"

class CSessionLogWindow;
class QPushButton;

namespace Ui {
class CQuorlinForm;
}

class CQuorlinForm : public CAutoBindingDataModelForm
{
    Q_OBJECT

public:
    // Makes "<class>*" of every page known to QMetaType.
    using PageTypeRegistrar = void (*)();

    explicit CQuorlinForm(PageTypeRegistrar registerPageTypes);
    ~CQuorlinForm() override;

    void SetTargetHandle(uint32_t handle);
    bool QueryPluginSupport(QString &reason) override;
    // Of the DUT; see CQuorlinViewCtrl.
    QString RfChipName();
    bool QueryPluginState() override;
    void ResetPages() override;
    void setVisible(bool isVisible) override;

signals:
    void Signal_PluginIsActivated(bool isActivated);  // the window's visibility

public slots:
    void Slot_GetInitPageListDone(QStringList pageList) override;
    void Slot_UpdateStatusbar(QString str) override;

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void MakeRfOff();
    void FillStatusBar();
    void FitScreen();
    void ShowLog();
    void RfOff();
    void ShowRfOff(const SEachItemOperationResult &result);
    void Highlight(bool isOn);
    void StartInit();

    CQuorlinViewCtrl m_viewCtrl;
    std::unique_ptr<Ui::CQuorlinForm> m_ui;
    QPushButton *m_rfOff = nullptr;
    std::unique_ptr<CLastSettings> m_lastSettings;
    QPointer<CSessionLogWindow> m_log;  // null until it is asked for
    int m_rfOffs = 0;                   // without an answer yet
    int m_idleReports = 0;              // asked for and not there yet
    bool m_wasShown = false;            // there may be a core, and tests
};
