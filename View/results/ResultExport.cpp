#include "View/results/ResultExport.h"

#include <QDateTime>

#include "Support/FileDialogMan.h"
#include "Support/Threads.h"
#include "Support/ToolVersion.h"
#include "View/editors/NamedAction.h"
#include "View/engine/AutoBindingDataModelDockWidget.h"
#include "View/engine/MemberSettings.h"
#include "View/results/ResultFile.h"
#include "View/results/ResultHeader.h"
#include "ViewController/QuorlinViewCtrl.h"

namespace {

constexpr int kPatienceMs = 2000;  // the DUT may be busy; the file is worth more than the name
constexpr char kResultFilter[] =
    "CSV files (*.csv)|*.csv|JSON Lines files (*.jsonl)|*.jsonl|All files (*.*)|*.*";
const QString kFailedTitle = QStringLiteral("Export results failed");

}  // namespace

CResultExport::CResultExport(const SResultExport &what, CAutoBindingDataModelDockWidget *page,
                             CQuorlinViewCtrl *ctrl)
    : QObject(page), m_page(page), m_ctrl(ctrl),
      m_isEnded(std::make_shared<std::atomic<bool>>(false))
{
    for (const SResultSource &source : what.sources)
        m_kept.push_back({.source = source});
    for (const char *column : what.columns)
        m_columns.append(QLatin1String(column));
    m_patience.setSingleShot(true);
    m_patience.setInterval(kPatienceMs);
    connect(&m_patience, &QTimer::timeout, this, &CResultExport::Write);
    connect(ctrl, &CQuorlinViewCtrl::Signal_ChipNameDone, this, [this](const QString &chip) {
        if (!m_isChipAwaited)
            return;
        m_isChipAwaited = false;
        m_chip = chip;
        if (m_patience.isActive())
            Write();
    });
    AddAction(page, what.action, what.text, {QLatin1String(what.keys)}, [this] { Export(); });
}

CResultExport::~CResultExport()
{
    *m_isEnded = true;
}

void CResultExport::Take(const QJsonObject &document)
{
    if (m_members.isEmpty()) {
        m_members = SettingMembers(document);
        m_version = document.value(QLatin1String("modelVersion")).toInt(m_version);
    }
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    for (SKept &kept : m_kept) {
        const QString group = QLatin1String(kept.source.group);
        const QVector<QStringList> rows = kept.source.rows(document, group, kept.rows.Count());
        if (rows.isEmpty())
            continue;
        if (kept.headers.isEmpty())
            kept.headers = kept.source.headers(document, group);
        const SResultStamp stamp = {
            .timeMs = now,
            .settings = SettingsNumber(PackagedValues(document, QStringLiteral("cmdIf.request")))};
        for (const QStringList &row : rows)
            kept.rows.Add(stamp, row);
    }
}

void CResultExport::Clear()
{
    for (SKept &kept : m_kept)
        kept.rows.Clear();
    m_settings.clear();
}

const CResultRows &CResultExport::Rows(int source) const
{
    return m_kept.at(static_cast<size_t>(source)).rows;
}

// Most answers have the settings of the one before.
int CResultExport::SettingsNumber(const QJsonObject &request)
{
    if (m_settings.isEmpty() || m_settings.last() != request)
        m_settings.append(request);
    return m_settings.size() - 1;
}

void CResultExport::Export()
{
    if (!m_file.isEmpty()) {
        Say(QStringLiteral("An export is under way."));
        return;
    }
    const auto hasRows = [](const SKept &kept) { return kept.rows.Count() > 0; };
    if (std::none_of(m_kept.begin(), m_kept.end(), hasRows)) {
        Say(QStringLiteral("There are no results to export."));
        return;
    }
    m_chip.clear();
    m_isChipAwaited = true;
    m_ctrl->RequestChipName();
    const QPointer<CResultExport> self(this);
    CFileDialogMan dialogs;
    const QString file =
        dialogs.GetSaveFileName(QStringLiteral("Export results"), QLatin1String(kResultFilter));
    if (!self || file.isEmpty())
        return;
    const QString refusal = RefuseResultFile(file);
    if (!refusal.isEmpty()) {
        Complain(refusal);
        return;
    }
    m_file = file;
    if (m_isChipAwaited)
        m_patience.start();
    else
        Write();
}

void CResultExport::Write()
{
    m_patience.stop();
    m_isChipAwaited = false;
    const auto hasRows = [](const SKept &kept) { return kept.rows.Count() > 0; };
    const auto kept = std::find_if(m_kept.begin(), m_kept.end(), hasRows);
    if (kept == m_kept.end()) {
        m_file.clear();
        Say(QStringLiteral("There are no results to export."));
        return;
    }
    Say(QStringLiteral("Exporting results..."));
    const int rows = kept->rows.Count();
    StartOnPoolAtOnce([self = QPointer<CResultExport>(this), isEnded = m_isEnded, file = m_file,
                       rows, table = Table(*kept)] {
        const QString failure =
            WriteResultFile(file, table, [&isEnded] { return !isEnded->load(); });
        PostToGui([self, failure, rows] {
            if (self)
                self->Finish(failure, rows);
        });
    });
}

void CResultExport::Finish(const QString &failure, int rows)
{
    const QString file = std::exchange(m_file, QString());
    if (failure.isEmpty())
        Say(QStringLiteral("Exported %1 rows to %2.").arg(rows).arg(file));
    else
        Complain(failure);
}

SResultTable CResultExport::Table(const SKept &kept) const
{
    const SSettingColumns columns = SettingColumns(m_settings, m_columns, m_members);
    const SResultOrigin origin = {
        .page = m_page->windowTitle(), .version = m_version, .tool = ToolVersion(), .chip = m_chip};
    const int newest = kept.rows.Stamp(kept.rows.Count() - 1).settings;
    return {.settings = SettingsObject(origin, m_settings.at(newest)),
            .headers = DistinctHeaders(kept.headers + columns.headers),
            .rows = kept.rows,
            .settingTexts = columns.values};
}

void CResultExport::Say(const QString &text) const
{
    emit m_page->Signal_UpdateStatus(text);
}

// The page may be gone when it returns.
void CResultExport::Complain(const QString &text)
{
    Say(kFailedTitle + QStringLiteral(": ") + text);
    m_page->ShowBox(eBoxWarning, kFailedTitle, text.toHtmlEscaped());
}
