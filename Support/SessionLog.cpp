#include "Support/SessionLog.h"

#include <QRegularExpression>

namespace {

const char *WordOf(ESessionEvent kind)
{
    switch (kind) {
    case ESessionEvent::Information:
        return "box";
    case ESessionEvent::Warning:
        return "warning";
    case ESessionEvent::Critical:
        return "error";
    default:
        return "status";
    }
}

// What a line of progress is about; empty for any other text.
QString ProgressOf(const QString &text)
{
    static const QRegularExpression kProgress(
        QStringLiteral("^(.*: )(round \\d+, )?\\d+ of \\d+ routes$"));
    return kProgress.match(text).captured(1);
}

}  // namespace

CSessionLog &CSessionLog::Get()
{
    static auto *const log = new CSessionLog;
    return *log;
}

CSessionLog::CSessionLog(int most) : m_most(most) {}

bool CSessionLog::ReplacesLast(const SEvent &event) const
{
    if (m_events.empty())
        return false;
    const SEvent &last = m_events.back();
    const QString progress = ProgressOf(event.text);
    return !progress.isEmpty() && last.kind == event.kind && last.where == event.where &&
           ProgressOf(last.text) == progress;
}

void CSessionLog::Add(ESessionEvent kind, const QString &where, const QString &text)
{
    const SEvent event{QDateTime::currentDateTime(), kind, where, text};
    const auto end = static_cast<int>(m_events.size());
    if (ReplacesLast(event)) {
        m_events.back() = event;
        emit dataChanged(index(end - 1, 0), index(end - 1, eColumns - 1));
        return;
    }
    beginInsertRows({}, end, end);
    m_events.push_back(event);
    endInsertRows();
    if (end < m_most)
        return;
    beginRemoveRows({}, 0, 0);
    m_events.pop_front();
    endRemoveRows();
}

int CSessionLog::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_events.size());
}

int CSessionLog::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : eColumns;
}

QVariant CSessionLog::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || (role != Qt::DisplayRole && role != Qt::ToolTipRole))
        return {};
    const SEvent &event = m_events[static_cast<size_t>(index.row())];
    switch (index.column()) {
    case eTime:
        return event.time.toString(Qt::ISODateWithMs);
    case eWhere:
        return event.where;
    case eKind:
        return QLatin1String(WordOf(event.kind));
    default:
        // One line in the table, all of it in the tool tip.
        return role == Qt::ToolTipRole ? event.text : event.text.simplified();
    }
}

QVariant CSessionLog::headerData(int section, Qt::Orientation orientation, int role) const
{
    static const char *const kHeaders[] = {"Time", "Where", "Kind", "Text"};
    if (role != Qt::DisplayRole)
        return {};
    return orientation == Qt::Horizontal ? QVariant(QLatin1String(kHeaders[section]))
                                         : QVariant(section + 1);
}
