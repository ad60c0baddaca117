// What the libraries show to the process that loads them: their entries, and nothing that a library or the
// host could have by the same name.
#include <QProcess>
#include <QRegularExpression>
#include <QtTest>

#include "tests/common/TestClass.h"

namespace {

QStringList Exports(const QString &library)
{
    QProcess nm;
    nm.start("nm", {"-D", "--defined-only", "--format=posix",
                    QCoreApplication::applicationDirPath() + "/../" + library});
    if (!nm.waitForFinished() || nm.exitCode() != 0)
        return {"nm: " + nm.readAllStandardError() + nm.errorString()};
    QStringList names;
    for (const QString &line : QString::fromUtf8(nm.readAllStandardOutput()).split('\n'))
        names.append(line.section(' ', 0, 0).section('@', 0, 0));
    names.removeAll(QString());
    names.removeDuplicates();
    names.sort();
    return names;
}

}  // namespace

class ExportsTest : public QObject
{
    Q_OBJECT

private slots:
    void entriesAreAll_data()
    {
        QTest::addColumn<QString>("library");
        QTest::addColumn<QStringList>("entries");
        QTest::newRow("tool") << "plugins/libQuorlinRf.so"
                              << QStringList{"qt_plugin_instance", "qt_plugin_query_metadata"};
        QTest::newRow("plots") << "plugins/libQuorlinPlots.so" << QStringList{"QuorlinMakePlot"};
        QTest::newRow("calibration") << "plugins/libQuorlinCal.so" << QStringList{"QuorlinCalRun"};
    }
    void entriesAreAll()
    {
        QFETCH(QString, library);
        QFETCH(QStringList, entries);
        QCOMPARE(Exports(library).join('\n'), entries.join('\n'));
    }

    void doorsShowThePairsFunctionsAlone_data()
    {
        QTest::addColumn<QString>("library");
        QTest::addColumn<QString>("others");
        QTest::newRow("tap") << "lib/libVondTap.so"
                             << "VondTap_Note|dlclose";
        QTest::newRow("VondCore") << "lib/libVondCore.so"
                                  << "VondSim_\\w+|VondSimConn_\\w+";
        QTest::newRow("VondApp") << "lib/libVondApp.so"
                                 << "VondSim_\\w+|VondSimConn_\\w+";
    }
    void doorsShowThePairsFunctionsAlone()
    {
        QFETCH(QString, library);
        QFETCH(QString, others);
        const QRegularExpression allowed("^(VOND_\\w+|VondConn_\\w+|" + others + ")$");
        QStringList names = Exports(library);
        QVERIFY(names.size() >= 2);
        const QStringList pair = names.filter(QRegularExpression("^VOND_|^VondConn_"));
        QVERIFY(!pair.isEmpty());
        QCOMPARE(names.filter(allowed), names);
    }
};

QUORLIN_TEST_CLASS(ExportsTest)
#include "ExportsTest.moc"
