#include "View/compare/CalCompare.h"

#include <algorithm>

#include <QAbstractButton>
#include <QAction>
#include <QDir>

#include "Support/BoxText.h"
#include "Support/MessageBoxMan.h"
#include "View/compare/CompareWindow.h"
#include "View/compare/GuardedWriteDialog.h"
#include "View/editors/NamedAction.h"

namespace {

const QString kCompare = QStringLiteral("Compare");
const QString kGuardedWrite = QStringLiteral("Guarded write");

constexpr int kMostLines = 2000;  // of what differs behind a write: more than anybody reads

QStringList Lines(const ICalDifferences &differences)
{
    QStringList lines;
    for (int i = 0; i < std::min(differences.Count(), kMostLines); ++i) {
        const SCalDifferenceRow row = differences.Row(i);
        const QString place = row.index.isEmpty()
                                  ? row.field
                                  : row.field + QLatin1Char('[') + row.index + QLatin1Char(']');
        lines.append(QStringLiteral("%1 %2 %3: sent %4, read back %5")
                         .arg(row.route, row.region, place, row.left, row.right)
                         .simplified());
    }
    return lines;
}

}  // namespace

CCalCompare::CCalCompare(const SComparePage &page)
    : QObject(page.widget), m_page(page), m_work(page)
{
    connect(m_page.viewCtrl, &CQuorlinViewCtrl::Signal_ComparisonDone, this,
            &CCalCompare::ShowComparison);
    connect(m_page.viewCtrl, &CQuorlinViewCtrl::Signal_GuardedPlanDone, this,
            &CCalCompare::AskForWrite);
    connect(m_page.viewCtrl, &CQuorlinViewCtrl::Signal_GuardedWriteDone, this,
            &CCalCompare::ShowReport);
}

// Both stand in the tool's window.
CCalCompare::~CCalCompare()
{
    delete m_question;
    delete m_window;
}

void CCalCompare::AddActions(QAbstractButton *compare, QAbstractButton *guardedWrite)
{
    connect(compare, &QAbstractButton::clicked, this, &CCalCompare::OpenWindow);
    connect(guardedWrite, &QAbstractButton::clicked, this, &CCalCompare::PrepareWrite);
    // An action presses its button, so that it does nothing while the button is off.
    const auto add = [this](const char *name, const char *keys, QAbstractButton *button) {
        AddAction(m_page.widget, name, qPrintable(button->text()), {QLatin1String(keys)},
                  [button = QPointer<QAbstractButton>(button)] {
                      if (button)
                          button->click();
                  })
            ->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    };
    add("m_actionCompare", "Ctrl+Shift+C", compare);
    add("m_actionGuardedWrite", "Ctrl+Shift+W", guardedWrite);
}

void CCalCompare::OpenWindow()
{
    if (!m_window) {
        m_window = new CCompareWindow(m_page.widget->windowTitle(), m_page.widget->parentWidget());
        connect(m_window, &CCompareWindow::Signal_Compare, this, &CCalCompare::Compare);
        connect(m_window, &CCompareWindow::Signal_GoTo, this, &CCalCompare::GoTo);
    }
    m_window->ShowInFront();
}

void CCalCompare::Compare(const SComparedSide &left, const SComparedSide &right)
{
    if (!m_work.Begin(kCompare))
        return;
    m_window->SetBusy(true);
    m_page.viewCtrl->RequestComparison(m_page.item, m_page.document(), left, right);
}

void CCalCompare::ShowComparison(const SCalCompared &compared)
{
    const QPointer<CCalCompare> self(this);
    if (!m_work.End() || !self)
        return;
    if (m_window) {
        m_window->SetBusy(false);
        m_window->Show(compared);
    }
    if (!compared.differences)
        m_page.say(QStringLiteral("Compare failed."));
    else
        m_page.say(
            QStringLiteral("Compare done: %1 differences.").arg(compared.differences->Count()));
}

void CCalCompare::GoTo(const SCalCellPlace &place)
{
    m_page.goTo(place, [window = m_window] {
        if (window)
            window->Say(QStringLiteral("The page does not show this value."));
    });
}

void CCalCompare::PrepareWrite()
{
    if (m_work.Begin(kGuardedWrite))
        m_page.viewCtrl->RequestGuardedPlan(m_page.item, m_page.document());
}

void CCalCompare::AskForWrite(const SGuardedPlan &plan)
{
    const QPointer<CCalCompare> self(this);
    if (!m_work.End() || !self)
        return;
    if (!plan.refusal.isEmpty()) {
        const SComparePage page = m_page;
        page.say(QStringLiteral("Guarded write failed."));
        if (self)
            page.showBox(eBoxWarningAsIs, QStringLiteral("Guarded write failed"),
                         BoxText(plan.refusal), {});
    } else if (plan.records.isEmpty()) {
        m_page.say(
            QStringLiteral("Guarded write: the target has what the page has. Nothing was sent."));
    } else {
        ShowQuestion(plan);
    }
}

// The write goes with the question: when the page goes, so do both.
void CCalCompare::ShowQuestion(const SGuardedPlan &plan)
{
    auto *question =
        new CGuardedWriteDialog(m_page.widget->windowTitle(), plan, m_page.widget->parentWidget());
    m_question = question;
    question->setAttribute(Qt::WA_DeleteOnClose);
    connect(question, &QDialog::accepted, this, [this, plan] { CarryWrite(plan); });
    connect(question, &QDialog::rejected, this,
            [this] { m_page.say(QStringLiteral("Guarded write cancelled. Nothing was sent.")); });
    question->open();
}

void CCalCompare::CarryWrite(const SGuardedPlan &plan)
{
    if (m_work.Begin(kGuardedWrite))
        m_page.viewCtrl->RequestGuardedWrite(m_page.item, plan);
}

void CCalCompare::ShowReport(const SGuardedReport &report)
{
    const QPointer<CCalCompare> self(this);
    if (!m_work.End() || !self)
        return;
    const SComparePage page = m_page;
    const QString end = report.isVerified  ? QStringLiteral("Guarded write done and verified")
                        : report.hasFailed ? QStringLiteral("Guarded write failed")
                                           : QStringLiteral("Guarded write not verified");
    page.say(end + QLatin1Char('.'));
    if (!self)
        return;
    QString text = report.text;
    if (!report.backup.isEmpty())
        text += QLatin1String("\nBackup of the flash as it was: ") +
                QDir::toNativeSeparators(report.backup);
    if (report.isVerified) {
        text = text.toHtmlEscaped().replace(QLatin1Char('\n'), QLatin1String("<BR>"));
        page.showBox(eBoxInformation, end, text, {});
        return;
    }
    const QString detail = report.rest ? Lines(*report.rest).join(QLatin1Char('\n')) : QString();
    page.showBox(eBoxWarningAsIs, end, BoxText(text), detail);
}
