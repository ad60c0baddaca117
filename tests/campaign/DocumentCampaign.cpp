#include <QAbstractButton>
#include <QtTest>

#include "Simulator/VondSim.h"
#include "tests/campaign/LateAnswer.h"
#include "tests/campaign/LaunchCampaign.h"
#include "tests/common/SimJournal.h"
#include "tests/common/WaitUntil.h"

namespace {

constexpr char kListName[] = "page list";
constexpr char kEmptyList[] = "Without any RF page init flow.";
constexpr char kPageErrors[] = "There are some error in this page:  ";
// Only a case that does not hold waits so long.
constexpr int kPatienceMs = 20000;
constexpr char kNoBands[] = "Get band info failed";

// How the first show ends.
enum class EShow
{
    Good,      // nine pages, no box
    NoPages,   // the list is empty, since the generation is not known
    BadPages,  // nine pages as their templates have them, a box for each
    Any        // one of the three; a page's box names its own first failure
};

struct SShowWords
{
    EFunction function;
    EShow onFail;
    EShow onNoise;
};

constexpr SShowWords kShows[] = {
    {EFunction::QueryFunctionSupported, EShow::NoPages, EShow::Good},
    {EFunction::MultiModeCapability, EShow::NoPages, EShow::Any},
    {EFunction::NrCapability, EShow::NoPages, EShow::Any},
    {EFunction::RouteConfig, EShow::BadPages, EShow::Any},
    {EFunction::BandRxInfo, EShow::BadPages, EShow::Any},
    {EFunction::RxRouteValues, EShow::BadPages, EShow::Any},
    {EFunction::RouteDetail, EShow::BadPages, EShow::Any},
};

class CShow
{
public:
    CShow(CTally &tally, const SCampaignOptions &options) : m_tally(tally), m_options(options) {}

    void Run();

private:
    void RunFault(const SDoorFault &fault);
    QString Wait(const SDoorFault &fault);
    QString DiffersInList(EShow show) const;
    QString DiffersInPage(const SPage &page, EShow show) const;
    QString IsUsable(const SPage &page);
    QString Press(const SPage &page, const SRequest &request);
    QString ShowsWell();
    bool HasEnded() const;
    QDockWidget *PageOf(const SPage &page) const
    {
        return m_session.Window()->findChild<QDockWidget *>(page.className);
    }

    CTally &m_tally;
    const SCampaignOptions m_options;
    CPluginSession m_session;
    CBoxWatcher m_boxes{1};
    int m_boxesBefore = 0;
    SLiving m_living;
};

EShow ShowOf(const SDoorFault &fault)
{
    if (fault.kind == EFault::Late)
        return EShow::Good;
    for (const SShowWords &row : kShows) {
        if (row.function == fault.function->id)
            return fault.kind == EFault::Noise ? row.onNoise : row.onFail;
    }
    qFatal("no words for %s at the first show", fault.function->name.data());
}

QString Plain(QString text)
{
    return text.remove("<P><FONT COLOR='#000080'><FONT SIZE='4'>")
        .remove("</FONT></FONT></P>")
        .replace("<br>", "\n");
}

// The init flow has enabled the window, or has told why not, and its boxes are closed.
bool CShow::HasEnded() const
{
    const QString status = m_session.StatusBar();
    if (QApplication::activeModalWidget() || !m_session.Window()->isEnabled())
        return false;
    return status == "Init done." ||
           (status == "Init failed." && m_boxes.Seen().size() > m_boxesBefore);
}

QString CShow::Wait(const SDoorFault &fault)
{
    m_session->HidePlugin();
    m_session->ResetPlugin();
    m_boxesBefore = m_boxes.Seen().size();
    VondSim_ClearJournal();
    Lay(fault, m_options.delay);
    std::unique_ptr<CLateAnswer> late;
    if (fault.kind == EFault::Late)
        late.reset(new CLateAnswer(fault, m_options.delay, [&] {
            return QString(m_session.Window()->isEnabled() ? "the window is enabled too early"
                                                           : "");
        }));
    m_session->ShowPlugin();
    if (!WaitUntil([&] { return HasEnded(); }, kPatienceMs))
        return "the show does not end";
    return late ? late->Problem() : QString();
}

// Faultless, with nothing in its way.
QString CShow::ShowsWell()
{
    const int before = m_boxes.Seen().size();
    m_session->HidePlugin();
    m_session->ResetPlugin();
    m_boxesBefore = before;
    m_session->ShowPlugin();
    if (!WaitUntil([&] { return HasEnded(); }) || m_session.StatusBar() != "Init done.")
        return "status line: " + m_session.StatusBar();
    if (m_boxes.Seen().size() != before)
        return "a box: " + m_boxes.Seen().last().text;
    for (int i = 0; i < kPageCount; ++i) {
        if (!PageOf(kPages[i]))
            return QString("no page ") + kPages[i].name;
    }
    return {};
}

QString CShow::DiffersInList(EShow show) const
{
    const QVector<SSeenBox> seen = m_boxes.Seen().mid(m_boxesBefore);
    if (show != EShow::NoPages)
        return m_session.StatusBar() == "Init done." ? QString()
                                                     : "status line: " + m_session.StatusBar();
    if (m_session.StatusBar() != "Init failed.")
        return "status line: " + m_session.StatusBar();
    if (seen.size() != 1)
        return QString("%1 boxes").arg(seen.size());
    if (seen[0].title != m_session.Window()->windowTitle() || Plain(seen[0].text) != kEmptyList ||
        seen[0].icon != QMessageBox::Warning)
        return QString("box titled %1: %2").arg(seen[0].title, seen[0].text);
    if (!m_session.Window()->findChildren<QDockWidget *>().isEmpty())
        return "there are pages";
    return {};
}

QString CShow::DiffersInPage(const SPage &page, EShow show) const
{
    const QString head = kPageErrors + QString(page.title) + '\n';
    QStringList told;
    for (const SSeenBox &box : m_boxes.Seen().mid(m_boxesBefore)) {
        if (!Plain(box.text).startsWith(head))
            continue;
        if (box.title != "Error" || box.icon != QMessageBox::Critical)
            return "box titled " + box.title;
        told.append(Plain(box.text).mid(head.size()));
    }
    switch (show) {
    case EShow::BadPages:
        return told == QStringList(QString(kNoBands) + '\n') ? QString()
                                                             : "told: " + told.join(" and ");
    case EShow::Any:
        return told.size() <= 1 && !told.contains("\n") ? QString() : "told: " + told.join(" and ");
    default:
        return told.isEmpty() ? QString() : "told: " + told.join(" and ");
    }
}

// The page comes to the front with a button to begin with, and a test that is started on what its
// document says is answered, well or not.
QString CShow::IsUsable(const SPage &page)
{
    if (!m_session.ClickTab(page.title))
        return "cannot be brought to the front";
    const SRequest &first = page.requests[0];
    const QString ofFirst = Press(page, first);
    if (!ofFirst.isEmpty())
        return ofFirst;
    const bool isRunning = page.hasTest && m_session.StatusBar() == first.done;
    return isRunning ? Press(page, page.requests[1]) : QString();
}

// Whatever the answer is.
QString CShow::Press(const SPage &page, const SRequest &request)
{
    auto *button = PageOf(page)->findChild<QAbstractButton *>(request.trigger);
    if (!button || !button->isEnabled())
        return QString("its %1 is off").arg(request.name);
    const int busy = m_session.busy.size();
    QTest::mouseClick(button, Qt::LeftButton);
    // A document without choices leaves a list empty, and the page says so instead of asking.
    const auto isEmptyChoice = [&] { return m_session.StatusBar().endsWith(" is empty."); };
    const auto isAnswered = [&] {
        return (m_session.busy.size() == busy + 2 || isEmptyChoice()) &&
               !QApplication::activeModalWidget();
    };
    if (!WaitUntil(isAnswered, kPatienceMs))
        return QString("its %1 is not answered").arg(request.name);
    const QString status = m_session.StatusBar();
    return status == request.done || status == request.failed || isEmptyChoice()
               ? QString()
               : QString("its %1 ends with: %2").arg(request.name, status);
}

void CShow::RunFault(const SDoorFault &fault)
{
    const QString stuck = Wait(fault);
    const QString function = fault.function->name.data();
    EShow show = ShowOf(fault);
    if (show == EShow::Any && m_session.StatusBar() == "Init failed.")
        show = EShow::NoPages;
    QString ofList = stuck.isEmpty() ? DiffersInList(show) : stuck;
    QStringList ofPages;
    for (int i = 0; i < kPageCount; ++i)
        ofPages.append(stuck.isEmpty() ? DiffersInPage(kPages[i], show) : stuck);
    for (int i = 0;
         stuck.isEmpty() && show != EShow::NoPages && fault.kind != EFault::Late && i < kPageCount;
         ++i) {
        if (ofPages[i].isEmpty())
            ofPages[i] = IsUsable(kPages[i]);
    }
    ClearDoor();
    VondSim_SetProfile("handset");  // whatever test was started
    // A show with a late answer is a good run itself.
    QString behind = fault.kind == EFault::Late ? QString() : ShowsWell();
    if (behind.isEmpty() && !(Living(m_session.Window()) == m_living))
        behind = Living(m_session.Window()).Text() + ", not " + m_living.Text();
    if (!behind.isEmpty())
        behind.prepend("behind it: ");
    m_tally.Book({kListName, function, fault.kind, fault.Name()},
                 ofList.isEmpty() ? behind : ofList);
    for (int i = 0; show != EShow::NoPages && i < kPageCount; ++i)
        m_tally.Book({QString(kPages[i].name) + ": document", function, fault.kind, fault.Name()},
                     ofPages[i].isEmpty() ? behind : ofPages[i]);
}

void CShow::Run()
{
    VondSim_ClearJournal();
    QString problem = ShowsWell();
    const QMap<QString, int> calls = CalledFunctions();
    // Once more, for what is made once alone.
    if (problem.isEmpty())
        problem = ShowsWell();
    if (!problem.isEmpty()) {
        m_tally.Complain("first show: no good run, " + problem);
        return;
    }
    m_living = Living(m_session.Window());
    for (auto row = calls.begin(); row != calls.end(); ++row) {
        m_tally.Reach("page list and documents", row.key(), row.value());
        if (!m_options.hasFaults)
            continue;
        const SFunction *function = FindFunction(row.key().toStdString());
        for (const SDoorFault &fault : FaultsOf(*function, row.value(), m_options.noises))
            RunFault(fault);
    }
}

}  // namespace

void RunDocumentCampaign(CTally &tally, const SCampaignOptions &options)
{
    CShow(tally, options).Run();
}
