// Fuzz target of the binding engine: a page is shown with any bytes for a document, used and
// packaged.
//
// It is one function, which libFuzzer or ReplayMain.cpp calls with one input after another. What is
// looked for: crashes, what the sanitizers find, broken rules (PackageCheck.h), and inputs that
// take too long. An input does the same each time it is run, since nothing of the one before is
// left.
#include <iterator>

#include <QApplication>
#include <QPointer>
#include <QToolTip>

#include "Model/ModelText.h"
#include "tests/fuzz/common/FuzzTarget.h"
#include "tests/fuzz/engine/BoxCloser.h"
#include "tests/fuzz/engine/FuzzInput.h"
#include "tests/fuzz/engine/FuzzPage.h"
#include "tests/fuzz/engine/FuzzUser.h"
#include "tests/fuzz/engine/FuzzVariant.h"
#include "tests/fuzz/engine/PackageCheck.h"

namespace {

constexpr qint64 kMaxCells = 600;  // of one document
constexpr int kMaxActions = 48;    // of one input
constexpr int kMaxResults = 2;     // result boxes of one input; one costs as much as a page

CBoxCloser *s_closer = nullptr;
QWidget *s_host = nullptr;  // the window that the pages lie in

class CRun
{
public:
    explicit CRun(const CFuzzInput &input) : m_input(input) {}
    void Go();

    QWidget *Editor(uint8_t which) const
    {
        const auto &editors = m_page->Editors();
        return editors[static_cast<uint8_t>(which - 'a') % editors.size()];
    }
    CFuzzPage *Page() { return m_page; }
    QJsonObject Report(uint8_t which, uint8_t how);
    void TakeOwnReport();
    void ShowResult(uint8_t which, uint8_t how);
    // What goes on while the next box is open: the page is destroyed, or another report comes.
    void DestroyLater();
    void ReportLater(const QJsonObject &report);

private:
    void Act(const QByteArray &actions);

    const CFuzzInput &m_input;
    QPointer<CFuzzPage> m_page;
    int m_results = 0;
};

struct SAction
{
    char key;
    void (*act)(CRun &run, uint8_t which, uint8_t how);
};

// A report that asks for more cells than an input may is taken for empty.
QJsonObject Bounded(const QJsonObject &report)
{
    return CellCount(report) <= kMaxCells ? report : QJsonObject();
}

constexpr SAction kActions[] = {
    {'v', [](CRun &run, uint8_t which, uint8_t how) { FuzzUser::Change(run.Editor(which), how); }},
    {'t', [](CRun &run, uint8_t which, uint8_t how) { FuzzUser::Type(run.Editor(which), how); }},
    {'w', [](CRun &run, uint8_t which, uint8_t how) { FuzzUser::Wheel(run.Editor(which), how); }},
    {'f', [](CRun &run, uint8_t which, uint8_t how) { FuzzUser::Focus(run.Editor(which), how); }},
    {'p', [](CRun &run, uint8_t, uint8_t) { CheckedPackage(*run.Page()); }},
    {'o', [](CRun &run, uint8_t, uint8_t) { run.TakeOwnReport(); }},
    {'u', [](CRun &run, uint8_t which,
             uint8_t how) { run.Page()->UpdateWidget(run.Report(which, how)); }},
    {'a', [](CRun &run, uint8_t which,
             uint8_t how) { run.Page()->AppendWidget(run.Report(which, how)); }},
    {'e', [](CRun &, uint8_t, uint8_t) { QCoreApplication::sendPostedEvents(); }},
    {'h', [](CRun &run, uint8_t, uint8_t how) { run.Page()->setVisible(how % 2 == 0); }},
    {'s', [](CRun &run, uint8_t which, uint8_t how) { run.ShowResult(which, how); }},
    {'k', [](CRun &run, uint8_t, uint8_t) { run.DestroyLater(); }},
    {'l', [](CRun &run, uint8_t which, uint8_t how) { run.ReportLater(run.Report(which, how)); }},
};

const SAction &FindAction(char key)
{
    for (const SAction &action : kActions) {
        if (action.key == key)
            return action;
    }
    return kActions[static_cast<uint8_t>(key) % std::size(kActions)];
}

QJsonObject CRun::Report(uint8_t which, uint8_t how)
{
    const QList<QByteArray> &reports = m_input.Reports();
    if (!reports.isEmpty() && which % 2 == 0)
        return Bounded(ModelFromText(reports[which / 2 % reports.size()].toStdString()));
    return Bounded(FuzzVariant(m_page->Model(), m_page->Word(), m_page->ResultSection(), how));
}

void CRun::DestroyLater()
{
    s_closer->Meanwhile([page = m_page] { delete page.data(); });
}

void CRun::ReportLater(const QJsonObject &report)
{
    s_closer->Meanwhile([page = m_page, report] {
        if (page)
            page->UpdateWidget(report);
    });
}

void CRun::TakeOwnReport()
{
    s_closer->Meanwhile({});  // it would come between the checks
    CheckOwnReport(*m_page);
}

void CRun::ShowResult(uint8_t which, uint8_t how)
{
    if (++m_results <= kMaxResults)
        m_page->ShowItemResult(QStringLiteral("Result"),
                               {QStringLiteral("item"), how, FuzzText(which)});
}

void CRun::Act(const QByteArray &actions)
{
    int done = 0;
    for (int at = 0; at + 2 < actions.size() && done < kMaxActions && m_page;) {
        if (actions[at] == ' ' || actions[at] == '\n') {
            ++at;
            continue;
        }
        FindAction(actions[at])
            .act(*this, static_cast<uint8_t>(actions[at + 1]),
                 static_cast<uint8_t>(actions[at + 2]));
        at += 3;
        ++done;
    }
}

void CRun::Go()
{
    m_page = new CFuzzPage(m_input.ModelInterface(), s_host);
    m_page->setGeometry(s_host->rect());
    m_page->show();
    if (m_input.Actions().startsWith('k'))
        DestroyLater();
    m_page->Deliver(m_input.Document());
    if (m_page)
        CheckedPackage(*m_page);
    Act(m_input.Actions());
    if (m_page)
        TakeOwnReport();
    s_closer->Meanwhile({});
    delete m_page.data();
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    SwitchLogsOff();
    static int count = 1;
    static char name[] = "EngineFuzz";
    static char *names[] = {name, nullptr};
    new QApplication(count, names);  // lives as long as the process
    s_closer = new CBoxCloser;
    s_host = new QWidget;
    s_host->setAttribute(Qt::WA_DontShowOnScreen);
    s_host->setUpdatesEnabled(false);  // nobody looks
    s_host->resize(1000, 800);
    s_host->show();
    QApplication::setActiveWindow(s_host);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const CFuzzInput input(data, size);
    if (CellCount(ModelFromText(input.Document())) > kMaxCells)
        return 0;
    CRun(input).Go();
    QToolTip::hideText();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::sendPostedEvents();
    return 0;
}
