// Collects the lines of one log category for the life of a scope, debug level included, whatever
// rules the process runs under. Lines of other categories go their usual way.
//
//   const LogCapture log(lcModel());
//   ModifyJsonValue(document, "nowhere", 1, 0);
//   EXPECT_TRUE(log.Holds(QtDebugMsg, "nowhere"));
#pragma once

#include <algorithm>
#include <mutex>

#include <QLoggingCategory>
#include <QPair>
#include <QStringList>
#include <QVector>

class LogCapture
{
public:
    explicit LogCapture(const QLoggingCategory &category)
        : m_category(const_cast<QLoggingCategory &>(category)),
          m_wasEnabled(category.isDebugEnabled())
    {
        m_category.setEnabled(QtDebugMsg, true);
        s_current = this;
        m_previous = qInstallMessageHandler(&LogCapture::Handle);
    }
    ~LogCapture()
    {
        qInstallMessageHandler(m_previous);
        s_current = nullptr;
        m_category.setEnabled(QtDebugMsg, m_wasEnabled);
    }
    LogCapture(const LogCapture &) = delete;
    LogCapture &operator=(const LogCapture &) = delete;

    QStringList Lines(QtMsgType type) const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        QStringList lines;
        for (const auto &line : m_lines) {
            if (line.first == type)
                lines.append(line.second);
        }
        return lines;
    }
    QStringList Critical() const { return Lines(QtCriticalMsg); }
    QStringList Debug() const { return Lines(QtDebugMsg); }
    // A line of that level contains the text.
    bool Holds(QtMsgType type, const QString &text) const
    {
        return !Lines(type).filter(text).isEmpty();
    }
    // Lines of any level that begin so.
    int Count(const QString &head) const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return static_cast<int>(
            std::count_if(m_lines.begin(), m_lines.end(),
                          [&](const auto &line) { return line.second.startsWith(head); }));
    }
    bool Has(const QString &head) const { return Count(head) > 0; }
    void Clear()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_lines.clear();
    }

private:
    static void Handle(QtMsgType type, const QMessageLogContext &context, const QString &text)
    {
        if (qstrcmp(context.category, s_current->m_category.categoryName()) != 0) {
            s_current->m_previous(type, context, text);
            return;
        }
        const std::lock_guard<std::mutex> lock(s_current->m_mutex);
        s_current->m_lines.append({type, text});
    }

    inline static LogCapture *s_current = nullptr;

    QLoggingCategory &m_category;
    bool m_wasEnabled;
    QtMessageHandler m_previous = nullptr;
    mutable std::mutex m_mutex;  // one that a thread sanitizer sees
    QVector<QPair<QtMsgType, QString>> m_lines;
};
