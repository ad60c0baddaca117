#include <QCoreApplication>

#include "tools/modelcheck/Program.h"

int main(int argc, char *argv[])
{
    const QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    QTextStream err(stderr);
    return RunModelCheck(QCoreApplication::arguments().mid(1), out, err);
}
