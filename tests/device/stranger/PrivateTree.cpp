#include "tests/device/stranger/PrivateTree.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>

namespace {

constexpr char kCalls[] = "trace=open,openat,openat2,creat,mkdir,mkdirat,mknod,mknodat,rename,"
                          "renameat,renameat2,link,linkat,symlink,"
                          "symlinkat,unlink,unlinkat,rmdir,truncate,chmod,fchmodat,chown,lchown,"
                          "fchownat,utimensat,setxattr";

QString Built(const QString &file)
{
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../" + file);
}

// An open that only reads.
bool IsRead(const QString &call)
{
    static const QRegularExpression writing("O_WRONLY|O_RDWR|O_CREAT|O_TRUNC|O_APPEND|O_TMPFILE");
    return call.startsWith("open") && !writing.match(call).hasMatch();
}

// Devices that keep nothing, and what a process says of itself.
bool IsNoFile(const QString &path)
{
    return path == "/dev/null" || path == "/dev/tty" || path.startsWith("/proc/self/");
}

}  // namespace

// Beside the build, so that the program can be linked into it and finds its libraries from there.
CPrivateTree::CPrivateTree() : m_folder(Built("stranger-XXXXXX"))
{
    const QDir tree(m_folder.path());
    for (const char *folder : {"bin", "home", "run", "tmp", "work"})
        tree.mkdir(folder);
    const QByteArray program = QFile::encodeName(QCoreApplication::applicationFilePath());
    m_isReady =
        ::link(program.constData(), QFile::encodeName(Path("bin/program")).constData()) == 0 &&
        QFile::link(Built("lib"), Path("lib")) && QFile::link(Built("plugins"), Path("plugins"));
}

bool CPrivateTree::CanTrace()
{
    return QProcess::execute("strace", {"-qq", "-o", "/dev/null", "true"}) == 0;
}

int CPrivateTree::Run(const QStringList &arguments)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"})
        environment.remove(name);
    environment.insert("HOME", Path("home"));
    environment.insert("XDG_RUNTIME_DIR", Path("run"));
    environment.insert("TMPDIR", Path("tmp"));
    environment.insert("VOND_SIM_FLASH", Path("work/dut.flash"));
    // The sanitizer looks for leaks by tracing, which one program can do at a time.
    environment.insert("ASAN_OPTIONS", "detect_leaks=0");
    QProcess program;
    program.setProcessEnvironment(environment);
    program.setWorkingDirectory(Path("work"));
    program.setProcessChannelMode(QProcess::MergedChannels);
    program.start("strace", QStringList{"-f", "-qq", "-y", "-s", "4096", "-o", Path("calls"), "-e",
                                        kCalls, Path("bin/program")} +
                                arguments);
    const bool isOver = program.waitForFinished(300000);
    m_output = program.readAll();
    return isOver && program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1;
}

QMap<QString, int> CPrivateTree::Entries() const
{
    QMap<QString, int> entries;
    QDirIterator all(m_folder.path(), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                     QDirIterator::Subdirectories);
    while (all.hasNext()) {
        const QString path = all.next();
        struct stat status = {};
        if (::lstat(QFile::encodeName(path).constData(), &status) == 0 && !S_ISLNK(status.st_mode))
            entries[path.mid(m_folder.path().size() + 1)] = status.st_mode & 07777;
    }
    return entries;
}

QStringList CPrivateTree::WritesElsewhere() const
{
    static const QRegularExpression quoted("(?:AT_FDCWD<[^>]*>|\\d+<([^>]*)>|[(]|,) ?\"([^\"]*)\"");
    QFile calls(Path("calls"));
    if (!calls.open(QIODevice::ReadOnly))
        return {"no calls"};
    QStringList writes;
    for (const QString &line : QString::fromLocal8Bit(calls.readAll()).split('\n')) {
        const QString call = line.section(' ', 1).trimmed();
        if (call.startsWith('<') || IsRead(call))
            continue;
        auto names = quoted.globalMatch(call);
        while (names.hasNext()) {
            const QRegularExpressionMatch name = names.next();
            const QString folder = name.captured(1).isEmpty() ? Path("work") : name.captured(1);
            const QString path = QDir::cleanPath(QDir(folder).absoluteFilePath(name.captured(2)));
            if (!path.startsWith(m_folder.path() + '/') && !IsNoFile(path))
                writes.append(call);
        }
    }
    return writes;
}
