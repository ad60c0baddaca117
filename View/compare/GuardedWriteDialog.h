// The question of a guarded write: what would be changed in the DUT, by route and by field, and where
// the backup goes. Cancel is the default, and what closing it means.
//
// Its parent is the tool's window; the page's CCalCompare ends it with the page, and then nobody answers.
// GUI thread.
//
//   auto *dialog = new CGuardedWriteDialog("RX Pathloss", plan, page->parentWidget());
//   connect(dialog, &QDialog::accepted, this, &CCalCompare::Carry);
//   dialog->open();
#pragma once

#include <memory>

#include <QDialog>

#include "Model/GuardedPlan.h"

namespace Ui {
class CGuardedWriteDialog;
}

class CGuardedWriteDialog : public QDialog
{
    Q_OBJECT

public:
    // name: of the page, for the title.
    CGuardedWriteDialog(const QString &name, const SGuardedPlan &plan, QWidget *tool);
    ~CGuardedWriteDialog() override;

private:
    std::unique_ptr<Ui::CGuardedWriteDialog> m_ui;
};
