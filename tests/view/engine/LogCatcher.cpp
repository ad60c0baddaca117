#include "tests/view/engine/LogCatcher.h"

#include <QLoggingCategory>

namespace {

const QLatin1String kEngine("quorlin.engine");

}  // namespace

CLogCatcher *CLogCatcher::s_current = nullptr;

CLogCatcher::CLogCatcher()
{
    Q_ASSERT(!s_current);
    s_current = this;
    QLoggingCategory::setFilterRules("quorlin.*.debug=false\nquorlin.engine.debug=true");
    m_before = qInstallMessageHandler(Catch);
}

CLogCatcher::~CLogCatcher()
{
    qInstallMessageHandler(m_before);
    QLoggingCategory::setFilterRules("quorlin.*.debug=false");
    s_current = nullptr;
}

void CLogCatcher::Catch(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    s_current->m_lines.append({type, context.category, text});
    if (type == QtFatalMsg)
        s_current->m_before(type, context, text);
}

QStringList CLogCatcher::Lines(QtMsgType type) const
{
    QStringList texts;
    for (const SLine &line : m_lines) {
        if (line.type == type && line.category == kEngine)
            texts.append(line.text);
    }
    return texts;
}

int CLogCatcher::Count(const QString &head) const
{
    int count = 0;
    for (const SLine &line : m_lines)
        count += line.category == kEngine && line.text.startsWith(head);
    return count;
}
