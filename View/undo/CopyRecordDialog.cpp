#include "View/undo/CopyRecordDialog.h"

#include <QPushButton>

#include "ui_CopyRecordDialog.h"

CCopyRecordDialog::CCopyRecordDialog(const CalCopyTargets &targets, QWidget *parent)
    : QDialog(parent), m_targets(targets), m_ui(std::make_unique<Ui::CCopyRecordDialog>())
{
    m_ui->setupUi(this);
    m_ui->m_buttons->button(QDialogButtonBox::Ok)->setText(QStringLiteral("Copy"));
    for (const SCalCopyTarget &target : m_targets) {
        auto *row = new QListWidgetItem(target.text, m_ui->m_listTargets);
        row->setFlags(Qt::ItemIsEnabled | Qt::ItemIsUserCheckable | Qt::ItemIsSelectable);
        row->setCheckState(Qt::Unchecked);
    }
    connect(m_ui->m_listTargets, &QListWidget::itemChanged, this, &CCopyRecordDialog::EnableCopy);
    EnableCopy();
}

CCopyRecordDialog::~CCopyRecordDialog() = default;

CalCopyTargets CCopyRecordDialog::Chosen() const
{
    CalCopyTargets chosen;
    for (int i = 0; i < m_targets.size(); ++i) {
        if (m_ui->m_listTargets->item(i)->checkState() == Qt::Checked)
            chosen.append(m_targets[i]);
    }
    return chosen;
}

void CCopyRecordDialog::EnableCopy()
{
    m_ui->m_buttons->button(QDialogButtonBox::Ok)->setEnabled(!Chosen().isEmpty());
}
