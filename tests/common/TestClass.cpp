#include "tests/common/TestClass.h"

#include <cctype>
#include <cstdio>
#include <memory>
#include <vector>

#include <QApplication>
#include <QLoggingCategory>
#include <QTemporaryDir>
#include <QtTest>

namespace {

struct SClass
{
    QString name;
    std::function<QObject *()> make;
};

struct SProcess
{
    QString name;
    std::function<int(const QStringList &)> run;
};

// Filled before main() by the sources of the program, in no order that matters.
std::vector<SClass> &Classes()
{
    static std::vector<SClass> classes;
    return classes;
}

std::vector<SProcess> &Processes()
{
    static std::vector<SProcess> processes;
    return processes;
}

// The rules of the environment become those of the process: they would outrule what a test sets. The
// environment keeps them, for the processes that a test starts.
class CLogRules
{
public:
    CLogRules() { qunsetenv("QT_LOGGING_RULES"); }
    void Set() const
    {
        QLoggingCategory::setFilterRules(QString::fromLocal8Bit(m_rules).replace(';', '\n'));
        qputenv("QT_LOGGING_RULES", m_rules);
    }

private:
    const QByteArray m_rules = qgetenv("QT_LOGGING_RULES");
};

int RunClass(const SClass &row, int argc, char *argv[])
{
    const std::unique_ptr<QObject> object(row.make());
    return QTest::qExec(object.get(), argc, argv);
}

int RunAll(int argc, char *argv[])
{
    int failures = 0;
    for (const SClass &row : Classes())
        failures += RunClass(row, argc, argv);
    return failures;
}

}  // namespace

// A class may bear a C in front; its run does not.
bool AddTestClass(const char *name, std::function<QObject *()> make)
{
    const bool hasPrefix = name[0] == 'C' && std::isupper(static_cast<unsigned char>(name[1])) != 0;
    Classes().push_back({name + (hasPrefix ? 1 : 0), std::move(make)});
    return true;
}

bool AddTestProcess(const char *name, std::function<int(const QStringList &)> run)
{
    Processes().push_back({name, std::move(run)});
    return true;
}

namespace {

// A run begins without settings, backups and locks of an earlier one, by hand as in ctest.
void UseOwnHome(const QTemporaryDir &home)
{
    for (const char *name : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
        qputenv(name, home.path().toLocal8Bit());
}

}  // namespace

int main(int argc, char *argv[])
{
    const QTemporaryDir home;
    UseOwnHome(home);
    const CLogRules rules;
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    QApplication application(argc, argv);
    rules.Set();
    const QString name = argc > 1 ? argv[1] : "-";
    for (const SProcess &row : Processes()) {
        if (row.name == name)
            return row.run(QCoreApplication::arguments().mid(2));
    }
    for (const SClass &row : Classes()) {
        if (row.name == name) {
            argv[1] = argv[0];  // what follows the class's name is QtTest's
            return RunClass(row, argc - 1, argv + 1);
        }
    }
    if (name.startsWith('-'))
        return RunAll(argc, argv);
    std::fprintf(stderr, "%s is no class of this program\n", qPrintable(name));
    return 2;
}
