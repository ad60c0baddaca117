#include "tests/files/FileFlow.h"

#include <cstdio>

#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>

#include "tests/files/Preloaded.h"

namespace {

constexpr const char *kFailures[] = {"EIO", "ENOSPC", "EACCES", "short", "full"};
constexpr const char *kDeaths[] = {"exit", "kill"};
constexpr int kMostCalls = 400;  // more is no flow of files

bool IsForWrites(const std::string &kind)
{
    return kind == "short" || kind == "full";
}

// A sync of a real disk takes longer than all else.
QString PlaceInMemory()
{
    const QString memory = "/dev/shm";
    return (QFileInfo(memory).isWritable() ? memory : QDir::tempPath()) + "/quorlin-files-XXXXXX";
}

// The flow on a folder that is laid down anew.
class CTry
{
public:
    explicit CTry(const SFileFlow &flow) : m_flow(flow)
    {
        if (flow.prepare)
            flow.prepare(Folder());
        m_before = BytesOf(Folder());
    }

    QString Folder() const { return m_place.path(); }
    const FolderBytes &Before() const { return m_before; }
    QString Run() const { return m_flow.run(Folder()); }

    QString RunWithTrouble(int at, const char *kind) const
    {
        Preloaded().arm(QFile::encodeName(Folder()).constData(), at, kind);
        const QString words = Run();
        Preloaded().disarm();
        return words;
    }
    // The exit code, or minus the signal.
    int RunUntilDeath(int at, const char *kind) const
    {
        const pid_t child = fork();
        if (child == 0) {
            RunWithTrouble(at, kind);
            _exit(0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        return WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status);
    }

private:
    const SFileFlow &m_flow;
    QTemporaryDir m_place{PlaceInMemory()};
    FolderBytes m_before;
};

class CTries
{
public:
    explicit CTries(const SFileFlow &flow) : m_flow(flow) {}

    SFlowCount Run()
    {
        if (!Learn())
            return m_count;
        for (int at = 1; at <= m_count.calls; ++at) {
            for (const char *kind : kFailures)
                if (!IsForWrites(kind) || m_calls[at - 1].startsWith("write"))
                    Fail(at, kind);
            for (const char *kind : kDeaths)
                Die(at, kind);
        }
        std::printf("| %s | %d | %d | %d | %d |\n", m_flow.name, m_count.calls, m_count.cases,
                    m_count.failed, m_count.killed);
        return m_count;
    }

private:
    // A good run tells the calls, and what is to be.
    bool Learn()
    {
        const CTry good(m_flow);
        EXPECT_EQ(good.RunWithTrouble(0, ""), QString());
        m_after = BytesOf(good.Folder());
        for (int i = 1; *Preloaded().name(i) != '\0'; ++i)
            m_calls.append(Preloaded().name(i));
        m_count.calls = m_calls.size();
        EXPECT_GT(m_count.calls, 0);
        EXPECT_LT(m_count.calls, kMostCalls);
        return !::testing::Test::HasFailure();
    }

    void Fail(int at, const char *kind)
    {
        SCOPED_TRACE(Case(at, kind));
        ++m_count.cases;
        const CTry bad(m_flow);
        const QString words = bad.RunWithTrouble(at, kind);
        const FolderBytes left = BytesOf(bad.Folder());
        m_count.failed += words.isEmpty() ? 0 : 1;
        if (words.isEmpty()) {
            EXPECT_TRUE(left == m_after) << "said to be done: " << Differences(left, m_after);
        }
        if (!words.isEmpty()) {
            EXPECT_TRUE(words.contains(bad.Folder())) << words.toStdString();
            for (const QString &name : left.keys())
                EXPECT_TRUE(bad.Before().contains(name) || m_after.contains(name))
                    << "left behind: " << name.toStdString();
            ExpectWhole(bad, left, false);
        }
        ExpectGood(bad);
    }

    void Die(int at, const char *kind)
    {
        SCOPED_TRACE(Case(at, kind));
        ++m_count.cases;
        const CTry bad(m_flow);
        const int end = bad.RunUntilDeath(at, kind);
        EXPECT_TRUE(end == -SIGKILL || end == kFailingCallsExit) << end;
        ++m_count.killed;
        ExpectWhole(bad, BytesOf(bad.Folder()), true);
        ExpectGood(bad);
    }

    // Each file as it was, or as it is to be.
    void ExpectWhole(const CTry &bad, const FolderBytes &left, bool isKilled) const
    {
        for (const QString &name : bad.Before().keys())
            EXPECT_TRUE(left.contains(name)) << "lost: " << name.toStdString();
        for (const QString &name : left.keys()) {
            if (!bad.Before().contains(name) && !m_after.contains(name))
                continue;
            const QByteArray &bytes = left[name];
            const bool isOld = bad.Before().contains(name) && bad.Before()[name] == bytes;
            const bool isNew = m_after.contains(name) && m_after[name] == bytes;
            EXPECT_TRUE(isOld || isNew || (m_flow.isWhole && m_flow.isWhole(name, bytes, isKilled)))
                << "half of " << name.toStdString() << ", " << bytes.size() << " bytes";
        }
    }

    void ExpectGood(const CTry &again) const
    {
        EXPECT_EQ(again.Run(), QString()) << "the next try";
        const FolderBytes left = BytesOf(again.Folder());
        for (const QString &name : m_after.keys())
            EXPECT_EQ(left.value(name), m_after[name]) << "the next try, " << name.toStdString();
    }

    static std::string Differences(const FolderBytes &left, const FolderBytes &wanted)
    {
        QString text;
        for (const QString &name : left.keys())
            if (left[name] != wanted.value(name))
                text += QString("%1 has %2 bytes. ").arg(name).arg(left[name].size());
        for (const QString &name : wanted.keys())
            if (!left.contains(name))
                text += name + " is missing. ";
        return text.toStdString();
    }

    std::string Case(int at, const char *kind) const
    {
        return QString("%1: %2 at call %3, %4")
            .arg(m_flow.name, kind)
            .arg(at)
            .arg(QString::fromUtf8(m_calls[at - 1]))
            .toStdString();
    }

    const SFileFlow &m_flow;
    SFlowCount m_count;
    QList<QByteArray> m_calls;
    FolderBytes m_after;
};

}  // namespace

SFlowCount TryEachCall(const SFileFlow &flow)
{
    return CTries(flow).Run();
}

FolderBytes BytesOf(const QString &folder)
{
    FolderBytes all;
    QDirIterator files(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        QFile file(path);
        if (path.endsWith(".lock") || !file.open(QIODevice::ReadOnly))
            continue;
        all.insert(QDir(folder).relativeFilePath(path), file.readAll());
    }
    return all;
}

void PutFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}
