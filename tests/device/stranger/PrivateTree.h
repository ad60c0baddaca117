// A program of the tests with a tree, a home and a current folder of its own: nothing that it writes can be
// anybody else's, and all that it asks the system for is told by strace.
//
//   CPrivateTree tree;
//   QVERIFY(tree.IsReady());
//   QCOMPARE(tree.Run({"SessionOfFiles", "022"}), 0);
//   QCOMPARE(tree.WritesElsewhere(), QStringList());
#pragma once

#include <QMap>
#include <QStringList>
#include <QTemporaryDir>

class CPrivateTree
{
public:
    CPrivateTree();

    bool IsReady() const { return m_isReady; }
    // Where the system forbids tracing.
    static bool CanTrace();
    // This program again, traced; its exit code, -1 without one.
    int Run(const QStringList &arguments);
    QByteArray Output() const { return m_output; }

    QString Path(const QString &name) const { return m_folder.filePath(name); }
    // Files and folders, by their path in the tree; the value is the mode in octal. Links are left out.
    QMap<QString, int> Entries() const;
    // Calls that would have made, changed or removed something outside the tree, failed ones too.
    QStringList WritesElsewhere() const;

private:
    QTemporaryDir m_folder;
    QByteArray m_output;
    bool m_isReady = false;
};
