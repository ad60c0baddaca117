// Catches the log of the process while it lives; "quorlin.engine" is on at debug level meanwhile.
//
//   CLogCatcher log;
//   page.Init();
//   QCOMPARE(log.Critical(), QStringList{"..."});
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

class CLogCatcher
{
public:
    CLogCatcher();
    ~CLogCatcher();
    CLogCatcher(const CLogCatcher &) = delete;
    CLogCatcher &operator=(const CLogCatcher &) = delete;

    // Lines of "quorlin.engine", to the letter, in order.
    QStringList Critical() const { return Lines(QtCriticalMsg); }
    QStringList Debug() const { return Lines(QtDebugMsg); }
    // Lines of any type that begin so.
    int Count(const QString &head) const;
    bool Has(const QString &head) const { return Count(head) > 0; }
    void Clear() { m_lines.clear(); }

private:
    struct SLine
    {
        QtMsgType type;
        QString category;
        QString text;
    };

    static void Catch(QtMsgType type, const QMessageLogContext &context, const QString &text);
    QStringList Lines(QtMsgType type) const;

    static CLogCatcher *s_current;
    QVector<SLine> m_lines;
    QtMessageHandler m_before;
};
