// Compare and Guarded Write of a calibration page: their actions, the window, the question, and the
// requests behind them.
//
// Guarded Write reads the flash first, tells what the page would change, and writes after the user's
// yes alone. Between the two the page is idle behind the question. Each ends in one status line.
// The object belongs to its page; whatever becomes of the page, no answer comes behind its end, and a
// write that was not begun is given up. GUI thread.
//
//   auto *compare = new CCalCompare({.widget = this, .item = ECalItem::Apt, ...});
//   compare->AddActions({m_ui->m_btnCompare, m_ui->m_btnGuardedWrite});
#pragma once

#include <QDialog>
#include <QPointer>

#include "Model/GuardedPlan.h"
#include "View/compare/PageWork.h"

class CCompareWindow;
class QAbstractButton;

class CCalCompare : public QObject
{
    Q_OBJECT

public:
    explicit CCalCompare(const SComparePage &page);
    ~CCalCompare() override;

    // The page's two buttons do it, and so do two actions of the page with a shortcut each.
    void AddActions(QAbstractButton *compare, QAbstractButton *guardedWrite);

private:
    void OpenWindow();
    void Compare(const SComparedSide &left, const SComparedSide &right);
    void ShowComparison(const SCalCompared &compared);
    void GoTo(const SCalCellPlace &place);

    void PrepareWrite();
    void AskForWrite(const SGuardedPlan &plan);
    void ShowQuestion(const SGuardedPlan &plan);
    void CarryWrite(const SGuardedPlan &plan);
    void ShowReport(const SGuardedReport &report);

    const SComparePage m_page;
    CPageWork m_work;
    QPointer<CCompareWindow> m_window;
    QPointer<QDialog> m_question;
};
