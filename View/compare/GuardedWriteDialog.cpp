#include "View/compare/GuardedWriteDialog.h"

#include <QDir>

#include "View/compare/CountTable.h"
#include "ui_GuardedWriteDialog.h"

namespace {

QString Counted(int count, const char *one)
{
    return QString::number(count) + QLatin1Char(' ') + QLatin1String(one) +
           QLatin1String(count == 1 ? "" : "s");
}

}  // namespace

CGuardedWriteDialog::CGuardedWriteDialog(const QString &name, const SGuardedPlan &plan,
                                         QWidget *tool)
    : QDialog(tool), m_ui(std::make_unique<Ui::CGuardedWriteDialog>())
{
    m_ui->setupUi(this);
    setModal(true);
    setWindowTitle(name + QLatin1String(": Guarded Write"));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    m_ui->m_summary->setText(
        QStringLiteral("The page differs from the target in %1. %2 would be written and read back.")
            .arg(Counted(plan.changes->Count(), "value"))
            .arg(Counted(plan.records.size(), "record")));
    FillCountTable(m_ui->m_routes, QStringLiteral("Route"), plan.changes->Routes());
    FillCountTable(m_ui->m_fields, QStringLiteral("Field"), plan.changes->Fields());
    m_ui->m_notes->setText(plan.notes.join(QLatin1Char('\n')));
    m_ui->m_notes->setVisible(!plan.notes.isEmpty());
    m_ui->m_backup->setText(QDir::toNativeSeparators(plan.backupFolder));
    connect(m_ui->m_write, &QPushButton::clicked, this, &QDialog::accept);
    connect(m_ui->m_cancel, &QPushButton::clicked, this, &QDialog::reject);
}

CGuardedWriteDialog::~CGuardedWriteDialog() = default;
