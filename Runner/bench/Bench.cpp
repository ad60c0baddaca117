#include "Runner/bench/Bench.h"

#include <algorithm>
#include <vector>

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QDockWidget>
#include <QEventLoop>
#include <QPointer>
#include <QStatusBar>
#include <QTabBar>
#include <QTimer>

#include "Host/LinkLibrary.h"
#include "Host/Options.h"
#include "Host/PluginHandle.h"
#include "Host/SimulatedDut.h"
#include "Host/ToolWindow.h"
#include "Runner/bench/BenchPage.h"
#include "Runner/bench/BoxCatcher.h"

namespace {

constexpr char kRfOffButton[] = "m_rfOff";
constexpr char kRfOffDone[] = "RF off.";
constexpr char kRfOffFailed[] = "RF off failed: ";
constexpr char kHandleProperty[] = "vondTargetHandle";
constexpr char kChipName[] = "ChipName()";
constexpr char kProfileVariable[] = "VOND_SIM_PROFILE";
constexpr char kScenarioVariable[] = "VOND_SIM_SCENARIO";

QStringList TabTitles(const QMainWindow *window)
{
    QStringList titles;
    for (const QTabBar *bar :
         window->findChildren<QTabBar *>(QString(), Qt::FindDirectChildrenOnly)) {
        for (int tab = 0; tab < bar->count(); ++tab)
            titles.append(bar->tabText(tab).trimmed());
    }
    return titles;
}

}  // namespace

struct CBench::SParts
{
    CBoxCatcher boxes;
    CLinkLibrary link;
    std::unique_ptr<CPluginHandle> plugin;
    QPointer<QMainWindow> window;
    QPointer<QStatusBar> bar;
    std::vector<std::unique_ptr<CBenchPage>> pages;
    uint32_t handle = 0;
    QString toolVersion;
    QString chipName;
    bool isInterrupted = false;
    bool hasPressed = false;
};

CBench::CBench() : m_parts(std::make_unique<SParts>())
{
    connect(&m_parts->boxes, &CBoxCatcher::Signal_Box, this, &CBench::Signal_Box);
}

CBench::~CBench()
{
    Close();
}

SBenchError CBench::Open(const SBenchOptions &options)
{
    QString error;
    m_parts->handle = options.handle;
    if (!options.linkFile.isEmpty()) {
        if (!m_parts->link.Open(options.linkFile, error))
            return {EBenchError::Wrong, error};
        m_parts->handle = m_parts->link.Handle();
    }
    const SBenchError loaded = LoadTool(options);
    return loaded.kind == EBenchError::None ? ShowTool(options.wait) : loaded;
}

// The simulated DUT comes with the plug-in and takes profile and scenario at that moment.
SBenchError CBench::LoadTool(const SBenchOptions &options)
{
    if (!options.profile.isEmpty())
        qputenv(kProfileVariable, options.profile.toUtf8());
    if (!options.scenario.isEmpty())
        qputenv(kScenarioVariable, options.scenario.toUtf8());
    qApp->setProperty(kHandleProperty, m_parts->handle);
    m_parts->plugin = std::make_unique<CPluginHandle>();
    QString error;
    const QString file = options.pluginFile.isEmpty() ? DefaultPluginFile() : options.pluginFile;
    if (!m_parts->plugin->Load(file, error)) {
        m_parts->plugin.reset();
        return {EBenchError::Wrong, error};
    }
    const QStringList profiles = SimulatedProfiles();
    if (IsUnknownProfile(options.profile, profiles))
        return {EBenchError::Wrong,
                QStringLiteral("There is no profile '%1', and no file of that name. Profiles: %2.")
                    .arg(options.profile, profiles.join(QStringLiteral(", ")))};
    if (const QString reason = ScenarioError(options.scenario); !reason.isEmpty())
        return {EBenchError::Wrong, reason};
    m_parts->toolVersion = m_parts->plugin->MetaData()
                               .value(QLatin1String("MetaData"))
                               .toObject()
                               .value(QLatin1String("version"))
                               .toString();
    connect(m_parts->plugin.get(), &CPluginHandle::Signal_Busy, this,
            [this](const QString &, bool isBusy) { emit Signal_Busy(isBusy); });
    const SPluginToolLaunchRequirement answer = m_parts->plugin->Tool().QueryLaunchRequirement();
    if (!answer.isSupport)
        return {EBenchError::Unsupported,
                QStringLiteral("The tool can't run on this DUT: ") + answer.unsupportReason};
    return {};
}

SBenchError CBench::ShowTool(std::chrono::milliseconds bound)
{
    m_parts->pages.clear();
    m_parts->window = FindToolWindow();
    m_parts->bar = m_parts->window ? m_parts->window->findChild<QStatusBar *>() : nullptr;
    if (!m_parts->bar)
        return {EBenchError::Wrong, QStringLiteral("The plug-in has no window with a status bar.")};
    bool isEnded = false;
    bool isGood = false;
    const auto follow =
        connect(m_parts->bar, &QStatusBar::messageChanged, this, [&](const QString &line) {
            isGood = isGood || line == QLatin1String(kPagesReady);
            isEnded = isGood || line == QLatin1String(kNoPages);
        });
    connect(m_parts->bar, &QStatusBar::messageChanged, this, &CBench::TellStatus,
            Qt::UniqueConnection);
    m_parts->plugin->Tool().ShowPlugin();
    const EBenchWait end = WaitUntil([&] { return isEnded; }, bound);
    disconnect(follow);
    if (end == EBenchWait::Late)
        return {EBenchError::Failed, QStringLiteral("The pages did not come up in time.")};
    if (end != EBenchWait::Done || !isGood)
        return {EBenchError::Failed, QStringLiteral("The pages did not come up.")};
    for (QDockWidget *page :
         m_parts->window->findChildren<QDockWidget *>(QString(), Qt::FindDirectChildrenOnly))
        m_parts->pages.push_back(std::make_unique<CBenchPage>(*this, page));
    const QStringList tabs = TabTitles(m_parts->window);
    std::stable_sort(m_parts->pages.begin(), m_parts->pages.end(),
                     [&tabs](const auto &a, const auto &b) {
                         return tabs.indexOf(a->Title()) < tabs.indexOf(b->Title());
                     });
    WaitIdle(bound);
    // Nobody looks, and paint is most of what a press would cost beside the DUT.
    m_parts->window->setUpdatesEnabled(false);
    QObject *root = m_parts->plugin->RootObject();
    // A plug-in that has no such function tells nothing.
    if (root->metaObject()->indexOfMethod(kChipName) >= 0)
        QMetaObject::invokeMethod(root, "ChipName", Qt::DirectConnection,
                                  Q_RETURN_ARG(QString, m_parts->chipName));
    return {};
}

SBenchError CBench::Reload(std::chrono::milliseconds bound)
{
    m_parts->pages.clear();
    m_parts->plugin->Tool().ResetPlugin();
    return ShowTool(bound);
}

void CBench::TellStatus(const QString &line)
{
    if (!line.isEmpty())
        emit Signal_Status(line);
}

bool CBench::Close()
{
    bool isOff = true;
    if (m_parts->plugin && m_parts->window) {
        if (m_parts->hasPressed)
            isOff = RfOff(kBenchWait);
        m_parts->plugin->Tool().HidePlugin();
        WaitAnyhow([this] { return !IsBusy(); }, kBenchWait, false);
    }
    m_parts->pages.clear();
    m_parts->plugin.reset();
    m_parts->link.Close();
    m_parts->hasPressed = false;
    return isOff;
}

QVector<CBenchPage *> CBench::Pages() const
{
    QVector<CBenchPage *> pages;
    for (const auto &page : m_parts->pages)
        pages.append(page.get());
    return pages;
}

CBenchPage *CBench::FindPage(const QString &name, SRefusal *error) const
{
    const QString wanted = name.trimmed();
    QStringList titles;
    for (const auto &page : m_parts->pages) {
        if (page->Title() == wanted || page->ClassName() == wanted)
            return page.get();
        titles.append(page->Title());
    }
    if (error)
        *error = {QStringLiteral("There is no page \"%1\".").arg(wanted),
                  titles.join(QStringLiteral(", "))};
    return nullptr;
}

CBenchPage *CBench::FrontPage() const
{
    for (const auto &page : m_parts->pages) {
        if (page->IsInFront())
            return page.get();
    }
    return nullptr;
}

bool CBench::RfOff(std::chrono::milliseconds bound, QString *why)
{
    auto *button = m_parts->window
                       ? m_parts->window->findChild<QAbstractButton *>(QLatin1String(kRfOffButton))
                       : nullptr;
    QString outcome;
    if (!button || !button->isEnabled()) {
        outcome = QStringLiteral("The tool has no RF Off at this moment.");
    } else {
        QObject listener;
        connect(this, &CBench::Signal_Status, &listener, [&outcome](const QString &line) {
            if (line == QLatin1String(kRfOffDone) || line.startsWith(QLatin1String(kRfOffFailed)))
                outcome = line;
        });
        // The bar says nothing of a line that it shows already.
        m_parts->bar->clearMessage();
        button->click();
        if (WaitAnyhow([&] { return !outcome.isEmpty(); }, bound, false) != EBenchWait::Done)
            outcome = QStringLiteral("RF Off has not ended in time.");
    }
    if (why)
        *why = outcome;
    return outcome == QLatin1String(kRfOffDone);
}

bool CBench::MayTransmit() const
{
    const auto *button =
        m_parts->window ? m_parts->window->findChild<QAbstractButton *>(QLatin1String(kRfOffButton))
                        : nullptr;
    return IsTestRunning() || (button && button->property("isHighlighted").toBool());
}

bool CBench::IsBusy() const
{
    return m_parts->plugin && m_parts->plugin->IsBusy();
}

QString CBench::Status() const
{
    return m_parts->bar ? m_parts->bar->currentMessage() : QString();
}

uint32_t CBench::Handle() const
{
    return m_parts->handle;
}

QString CBench::ChipName() const
{
    return m_parts->chipName;
}

QString CBench::ToolName() const
{
    return m_parts->plugin ? m_parts->plugin->Tool().GetPluginName() : QString();
}

QString CBench::ToolVersion() const
{
    return m_parts->toolVersion;
}

EBenchWait CBench::WaitUntil(const std::function<bool()> &condition,
                             std::chrono::milliseconds bound)
{
    return WaitAnyhow(condition, bound, true);
}

EBenchWait CBench::WaitAnyhow(const std::function<bool()> &condition,
                              std::chrono::milliseconds bound, bool isInterruptible)
{
    bool isLate = false;
    QTimer deadline;
    deadline.setSingleShot(true);
    connect(&deadline, &QTimer::timeout, [&isLate] { isLate = true; });
    deadline.start(bound);
    while (!condition()) {
        if (isInterruptible && m_parts->isInterrupted)
            return EBenchWait::Interrupted;
        if (!m_parts->window)
            return EBenchWait::Gone;
        if (isLate)
            return EBenchWait::Late;
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return EBenchWait::Done;
}

void CBench::Interrupt()
{
    m_parts->isInterrupted = true;
    QMetaObject::invokeMethod(
        this, [] {}, Qt::QueuedConnection);  // a turn of the event loop
}

void CBench::Resume()
{
    m_parts->isInterrupted = false;
}

bool CBench::IsInterrupted() const
{
    return m_parts->isInterrupted;
}

void CBench::AnswerFileDialog(const QString &file)
{
    m_parts->boxes.AnswerFileDialog(file);
}

QVector<SBenchBox> CBench::TakeBoxes()
{
    return m_parts->boxes.Take();
}

bool CBench::HasPressed() const
{
    return m_parts->hasPressed;
}

void CBench::NotePress()
{
    m_parts->hasPressed = true;
}
