#include "Runner/run/PlanRun.h"

#include <cstdio>
#include <set>

#include <QFileInfo>

#include "Host/Tap.h"
#include "Runner/bench/EndSignals.h"
#include "Runner/plan/PlanReader.h"
#include "Runner/report/Reports.h"
#include "Runner/run/CaseRun.h"
#include "Runner/run/PlanCheck.h"
#include "Runner/run/Progress.h"

namespace {

void Complain(const QString &text)
{
    std::fprintf(stderr, "quorlin: %s\n", text.toUtf8().constData());
}

int Complain(const CPlanErrors &errors)
{
    for (const std::string &text : errors.Texts())
        std::fprintf(stderr, "%s\n", text.c_str());
    return errors.IsEmpty() ? eRunGood : eRunWrong;
}

int ExitOf(EBenchError kind)
{
    switch (kind) {
    case EBenchError::None:
        return eRunGood;
    case EBenchError::Wrong:
        return eRunWrong;
    case EBenchError::Unsupported:
        return eRunUnsupported;
    case EBenchError::Failed:
        break;
    }
    return eRunBroken;
}

// "quorlin-night-20261122T031500" beside where the program was started.
QString DefaultFolder(const SRunOptions &options)
{
    return QString("quorlin-%1-%2")
        .arg(QFileInfo(options.plans.value(0)).completeBaseName(),
             QDateTime::currentDateTime().toString("yyyyMMdd'T'HHmmss"));
}

// The parts of a run, and the state that they share.
class CPlanRun
{
public:
    explicit CPlanRun(const SRunOptions &options) : m_options(options)
    {
        // A check starts nothing, so it needs no leave.
        m_limits.allowTransmit = options.mayTransmit || options.isCheck;
        m_limits.allowWrite = options.mayWrite || options.isCheck;
    }

    int Run()
    {
        m_exit.Note(ReadPlans());
        if (m_exit.Code() != eRunGood)
            return m_exit.Code();
        QObject::connect(&m_signals, &CEndSignals::Signal_Came, &m_bench, &CBench::Interrupt);
        m_exit.Note(OpenAndRun());
        if (!m_bench.Close()) {
            m_exit.Note(eRunBroken);
            Complain("The DUT has not confirmed that RF is off: RF MAY BE ON.");
        }
        return m_signals.Number() != 0 ? 128 + m_signals.Number() : m_exit.Code();
    }

private:
    int ReadPlans()
    {
        CPlanErrors errors;
        CDefines defines(m_options.defines);
        for (const QString &file : m_options.plans)
            if (auto plan = ReadPlan(file.toStdString(), defines, errors)) {
                m_plans.push_back({*plan, {}});
                ReadSettingsFiles(m_plans.back(), errors);
            }
        if (errors.IsEmpty())
            for (const std::string &name : defines.Unused())
                errors.Add("--define " + name, {}, "no plan has ${" + name + "}");
        return Complain(errors);
    }

    int OpenAndRun()
    {
        const SBenchError error = m_bench.Open(m_options.bench);
        if (m_signals.Number() != 0)
            return eRunGood;  // the signal is the outcome
        if (error.kind != EBenchError::None) {
            Complain(error.text);
            return ExitOf(error.kind);
        }
        if (const int code = Check(); code != eRunGood || m_options.isCheck)
            return code;
        if (m_signals.Number() != 0)
            return eRunGood;
        return OpenReports() ? RunCases() : eRunWrong;
    }

    // Each plan on fresh pages, as it will run.
    int Check()
    {
        CPlanErrors errors;
        for (std::size_t i = 0; i < m_plans.size(); ++i) {
            if (i > 0 && !Refresh())
                return eRunBroken;
            CheckPlan(m_bench, m_limits, m_plans[i], errors);
        }
        return m_signals.Number() != 0 ? eRunGood : Complain(errors);
    }

    // A page that one case alone has used holds what that case wants, and nothing else. Between two plans
    // the pages have been made anew.
    bool IsEachPageUsedOnce() const
    {
        if (m_plans.size() != 1)
            return false;
        std::set<const CBenchPage *> used;
        for (const SRunCase &runCase : CasesOf(m_plans[0]))
            if (!used.insert(m_bench.FindPage(Text(runCase.step->page.text), nullptr)).second)
                return false;
        return true;
    }

    bool Refresh()
    {
        const SBenchError error = m_bench.Reload(m_options.bench.wait);
        if (error.kind != EBenchError::None && m_signals.Number() == 0)
            Complain(error.text);
        return error.kind == EBenchError::None;
    }

    bool OpenReports()
    {
        QVector<SCaseResult> all;
        for (const SRunPlan &plan : m_plans)
            for (const SRunCase &runCase : CasesOf(plan))
                all.append(CaseBefore(runCase));
        SRunInfo info;
        info.toolVersion = m_bench.ToolName() + ' ' + m_bench.ToolVersion();
        info.chip = m_bench.ChipName();
        info.handle = m_bench.Handle();
        info.start = QDateTime::currentDateTimeUtc();
        const QString folder = m_options.out.isEmpty() ? DefaultFolder(m_options) : m_options.out;
        return NoteReports(m_reports.Open(folder, info, all));
    }

    int RunCases()
    {
        const bool hasInputs = IsEachPageUsedOnce();
        QString why;
        int index = 0;
        for (const SRunPlan &plan : m_plans) {
            if (why.isEmpty() && !hasInputs && !Refresh()) {
                m_exit.Note(eRunBroken);
                why = "The pages did not come up again.";
            }
            const std::vector<SRunCase> cases = CasesOf(plan);
            CProgress progress(cases);
            for (std::size_t i = 0; i < cases.size(); ++i, ++index) {
                if (why.isEmpty() && m_signals.Number() != 0)
                    why = "ended by " + m_signals.Name();
                if (!why.isEmpty())
                    continue;
                progress.Begin(i);
                why = RunCase(cases[i], index, hasInputs, progress);
            }
        }
        End(why);
        return m_exit.Code();
    }

    // Why nothing runs after it; empty: the next one.
    QString RunCase(const SRunCase &runCase, int index, bool hasInputs, CProgress &progress)
    {
        NoteOfHost("Plan: " + CaseName(CaseBefore(runCase)));
        CCaseRun run(m_bench, m_limits, runCase, m_reports.Folder());
        const SCaseResult result = run.Run(hasInputs);
        progress.End(result);
        NoteReports(m_reports.Add(index, result));
        const QString name = "the step \"" + CaseName(result) + "\"";
        if (m_signals.Number() != 0)
            return "ended by " + m_signals.Name() + " during " + name;
        if (run.EndsPlan()) {
            m_exit.Note(run.IsRefused() ? eRunWrong : eRunBroken);
            return name + " could not be carried out";
        }
        if (result.verdict != EVerdict::Fail)
            return {};
        m_exit.Note(eRunFailed);
        return m_options.endsAtFailure ? name + " failed, and --stop-on-failure is on" : QString();
    }

    void End(const QString &why)
    {
        if (!why.isEmpty())
            Complain("The run ends: " + why + ".");
        NoteReports(m_reports.Finish(why));
        std::printf("Reports: %s\n", m_reports.Folder().toUtf8().constData());
        std::fflush(stdout);
    }

    bool NoteReports(const QString &error)
    {
        if (error.isEmpty())
            return true;
        Complain(error);
        m_exit.Note(eRunBroken);
        return false;
    }

    const SRunOptions &m_options;
    SPressLimits m_limits;
    std::vector<SRunPlan> m_plans;
    CRunExit m_exit;
    CEndSignals m_signals;
    CBench m_bench;
    CReports m_reports;
};

}  // namespace

int RunPlans(const SRunOptions &options)
{
    return CPlanRun(options).Run();
}
