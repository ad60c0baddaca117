// The tool window of Quorlin RF: the reusable form, tied to the core.
//
// Contract: CAutoBindingDataModelForm. The page classes are registered by whoever assembles the
// plug-in and handed in as a function, so that this window knows none of them.
//
//   CQuorlinForm form(&RegisterPageTypes);
//   form.show();
#pragma once

#include <cstdint>

#include "View/AutoBindingDataModelForm.h"
#include "ViewController/QuorlinViewCtrl.h"

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
    bool QueryPluginState() override;
    void ResetPages() override;

signals:
    void Signal_PluginIsActivated(bool isActivated);  // the window's visibility

public slots:
    void Slot_GetInitPageListDone(QStringList pageList) override;
    void Slot_UpdateStatusbar(QString str) override;

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    CQuorlinViewCtrl m_viewCtrl;
    std::unique_ptr<Ui::CQuorlinForm> m_ui;
};
