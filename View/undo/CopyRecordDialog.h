// Asks which records one record is copied to. GUI thread; it runs an event loop, in which its parent
// may go, and it with that.
//
//   const QPointer<CCopyRecordDialog> dialog(new CCopyRecordDialog(targets, page));
//   if (dialog->exec() == QDialog::Accepted && dialog)
//       copy(dialog->Chosen());
#pragma once

#include <memory>

#include <QDialog>

#include "Model/CalChanges.h"

namespace Ui {
class CCopyRecordDialog;
}

class CCopyRecordDialog : public QDialog
{
    Q_OBJECT

public:
    CCopyRecordDialog(const CalCopyTargets &targets, QWidget *parent);
    ~CCopyRecordDialog() override;

    CalCopyTargets Chosen() const;

private:
    void EnableCopy();

    const CalCopyTargets m_targets;
    std::unique_ptr<Ui::CCopyRecordDialog> m_ui;
};
