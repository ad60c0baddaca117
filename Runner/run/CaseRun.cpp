#include "Runner/run/CaseRun.h"

#include <QDir>
#include <QElapsedTimer>

#include "Runner/plan/PlanErrors.h"
#include "Runner/run/CaseInputs.h"
#include "Runner/run/Expectations.h"
#include "Runner/run/PageValues.h"
#include "Runner/run/PlanCheck.h"

namespace {

// Longer than the target's own timeout, so that a DUT that hangs is told from one that is slow.
constexpr std::chrono::seconds kSafeWait(15);

// What the tool says of a status that is in no table: the DUT has answered noise.
constexpr char kNoStatus[] = "Not found status descrption";

QString SecondsText(std::chrono::milliseconds time)
{
    return QString::number(static_cast<double>(time.count()) / 1000.0) + " s";
}

}  // namespace

SCaseResult CaseBefore(const SRunCase &runCase)
{
    SCaseResult result;
    result.plan = Text(runCase.plan->plan.name.text);
    result.planFile = Text(runCase.plan->plan.file);
    result.step = Text(runCase.step->name.text);
    result.page = Text(runCase.step->page.text);
    result.combination = static_cast<int>(runCase.combination) + 1;
    result.combinations = static_cast<int>(CombinationCount(*runCase.step));
    for (const SPlanSetting &setting : Combination(*runCase.step, runCase.combination))
        result.sweep.append({Text(setting.key.text), Text(setting.value.text)});
    return result;
}

CCaseRun::CCaseRun(CBench &bench, const SPressLimits &limits, const SRunCase &runCase,
                   const QString &folder)
    : m_bench(bench), m_limits(LimitsOf(limits, runCase.plan->plan)), m_case(runCase),
      m_folder(folder), m_result(CaseBefore(runCase))
{
}

SCaseResult CCaseRun::Run(bool hasInputs)
{
    QElapsedTimer clock;
    clock.start();
    m_result.start = QDateTime::currentDateTimeUtc();
    m_result.verdict = EVerdict::Pass;
    m_bench.TakeBoxes();
    const QMetaObject::Connection follow = QObject::connect(
        &m_bench, &CBench::Signal_Box, &m_bench, [this](const SBenchBox &box) { m_boxes << box; });
    const bool isCarriedOut = CarryOut(hasInputs);
    if (isCarriedOut)
        Look();
    PressThen();
    QObject::disconnect(follow);
    for (const SBenchBox &box : m_boxes)
        m_result.boxes.append({box.title, box.text, box.informative});
    const QStringList ofBoxes = FailedBoxes(*m_case.step, m_boxes);
    if (!m_bench.IsInterrupted())
        m_result.reasons = ofBoxes + m_result.reasons;
    if (m_result.verdict == EVerdict::Pass && !m_result.reasons.isEmpty())
        m_result.verdict = EVerdict::Fail;
    if (HasUnexpectedBox() && m_result.verdict == EVerdict::Fail)
        LookForDut();
    m_result.duration = std::chrono::milliseconds(clock.elapsed());
    return m_result;
}

// Inputs, presses, wait, export. Readings are taken in front of the export, whose status line is its own.
bool CCaseRun::CarryOut(bool hasInputs)
{
    SRefusal refusal;
    m_page = m_bench.FindPage(m_result.page, &refusal);
    if (!m_page)
        return Fail(refusal.Text());
    if (!TakeInputs(hasInputs))
        return false;
    for (const SPlacedText &button : m_case.step->press) {
        if (!Press(button))
            return false;
        if (HasUnexpectedBox())
            return true;
    }
    if (!Wait())
        return false;
    m_result.status = m_bench.Status();
    return !m_case.step->exportFile || HasUnexpectedBox() || Export();
}

bool CCaseRun::TakeInputs(bool hasInputs)
{
    CPlanErrors errors;
    if (!hasInputs)
        ApplyInputs(*m_page, m_case, errors);
    else if (const auto refusal = m_page->Raise())
        return Fail(refusal->Text());
    if (m_bench.IsInterrupted())
        return Interrupted();
    m_result.inputs = PackagedInputs(m_page->DocumentText());
    for (const std::string &text : errors.Texts())
        Fail(Text(text));
    return errors.IsEmpty();
}

bool CCaseRun::Press(const SPlacedText &button)
{
    const QString name = Text(button.text);
    if (m_bench.IsInterrupted())
        return Interrupted();
    if (const auto refusal = GuardPress(m_limits, *m_page, name)) {
        m_isRefused = true;
        return Fail(Where(button.place) + refusal->Text());
    }
    const SPressEnd end = m_page->Press(name, m_case.step->timeout);
    m_result.status = end.status;
    switch (end.how) {
    case EPressEnd::Idle:
        return true;
    case EPressEnd::Refused:
        return m_bench.IsInterrupted() ? Interrupted()
                                       : Fail(Where(button.place) + end.refusal.Text());
    case EPressEnd::Late:
        return Fail(
            Where(button.place) +
            QString("\"%1\" has not ended in %2.").arg(name, SecondsText(m_case.step->timeout)));
    case EPressEnd::Interrupted:
        return Interrupted();
    case EPressEnd::Gone:
        break;
    }
    return Fail("The tool's window is gone.");
}

bool CCaseRun::Wait()
{
    return !m_case.step->wait || WaitFor(*m_case.step->wait);
}

bool CCaseRun::WaitFor(const SPlanWait &wait)
{
    const auto isDone = [this, &wait] {
        return HasUnexpectedBox() || (wait.rows && m_page->Rows() >= *wait.rows);
    };
    switch (m_bench.WaitUntil(isDone, wait.time.value_or(wait.timeout))) {
    case EBenchWait::Done:
        return true;
    case EBenchWait::Late:
        break;
    case EBenchWait::Interrupted:
        return Interrupted();
    case EBenchWait::Gone:
        return Fail("The tool's window is gone.");
    }
    return wait.time || Fail(QString("There are %1 rows of %2 after %3.")
                                 .arg(m_page->Rows())
                                 .arg(*wait.rows)
                                 .arg(SecondsText(wait.timeout)));
}

// The first combination has the name of the plan, the others their number behind it.
bool CCaseRun::Export()
{
    Look();
    const QFileInfo name(Text(m_case.step->exportFile->text));
    QString file = name.fileName();
    if (m_case.combination > 0)
        file =
            QString("%1-%2%3").arg(name.completeBaseName(), QString::number(m_case.combination + 1),
                                   name.suffix().isEmpty() ? QString() : '.' + name.suffix());
    const QString path = QDir(m_folder).absoluteFilePath(file);
    m_bench.AnswerFileDialog(path);
    const QString status = m_result.status;
    const bool isPressed = Press({"Export", m_case.step->exportFile->place});
    m_result.status = status;
    if (!isPressed)
        return false;
    if (!HasUnexpectedBox() && !QFileInfo(path).isFile())
        return Fail(QString("Nothing was exported to %1.").arg(file));
    m_result.exported = file;
    return true;
}

// Takes the readings and judges them, once.
void CCaseRun::Look()
{
    if (!m_result.outputs.isEmpty())
        return;
    m_result.outputs = OutputsOf(*m_page);
    m_result.reasons += FailedExpectations(*m_case.step, m_result.status, *m_page);
}

// In any case, but a button that is off has nothing to do: a Stop where nothing runs.
void CCaseRun::PressThen()
{
    const bool wasInterrupted = m_bench.IsInterrupted();
    const QString status = m_result.status;  // of the presses
    m_bench.Resume();
    for (const SPlacedText &button : m_case.step->then) {
        SBenchButton found;
        if (!m_page || m_page->FindButton(Text(button.text), found) || !found.isEnabled)
            continue;
        const bool isSafe = m_result.verdict != EVerdict::Error;
        if (isSafe ? Press(button)
                   : m_page->Press(Text(button.text), kSafeWait).how == EPressEnd::Idle)
            continue;
        break;
    }
    m_result.status = status;
    if (wasInterrupted)
        m_bench.Interrupt();
}

// A box may be the first word of a lost DUT. RF Off reaches the DUT, or tells that it is gone.
void CCaseRun::LookForDut()
{
    QString why;
    if (!m_bench.RfOff(kSafeWait, &why))
        Fail(QString("The DUT does not answer as it should: %1").arg(why));
    else if (std::any_of(m_boxes.begin(), m_boxes.end(), [](const SBenchBox &box) {
                 return (box.text + box.informative).contains(kNoStatus);
             }))
        Fail("The DUT does not answer as it should: its status has no meaning.");
}

bool CCaseRun::Fail(const QString &reason)
{
    m_result.verdict = EVerdict::Error;
    m_result.reasons << reason;
    return false;
}

bool CCaseRun::Interrupted()
{
    return Fail("Ended by a signal.");
}

QString CCaseRun::Where(SPlace place) const
{
    return QString("%1:%2:%3: ").arg(m_result.planFile).arg(place.line).arg(place.column);
}

bool CCaseRun::HasUnexpectedBox() const
{
    return std::any_of(m_boxes.begin(), m_boxes.end(),
                       [this](const SBenchBox &box) { return !IsExpectedBox(*m_case.step, box); });
}
