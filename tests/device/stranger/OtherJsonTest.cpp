// A host that has another nlohmann-json in the process, of the same names: our libraries keep their own.
#include <dlfcn.h>

#include <QProcess>
#include <QTemporaryDir>

#include "tests/common/TestClass.h"
#include "tests/device/CalibrationSession.h"

namespace {

QString Built(const QString &file)
{
    return QCoreApplication::applicationDirPath() + "/../" + file;
}

QString Symbols(const QString &library)
{
    QProcess nm;
    nm.start("nm", {"--demangle", Built(library)});
    nm.waitForFinished();
    return QString::fromUtf8(nm.readAllStandardOutput());
}

}  // namespace

class OtherJsonTest : public QObject
{
    Q_OBJECT

private slots:
    // Else the other library's functions would stand in nobody's way.
    void namesAreThoseOfOurOwn()
    {
        const QString other = Symbols("lib/libOtherJson.so");
        const QString own = Symbols("lib/libVondCore.so");
        const QRegularExpression destroy("nlohmann::\\S*basic_json<.*>::json_value::destroy\\(");
        QVERIFY(destroy.match(other).hasMatch());
        QVERIFY(destroy.match(own).hasMatch());
        QCOMPARE(own.split('\n').filter(destroy).first().section(' ', 2),
                 other.split('\n').filter(destroy).first().section(' ', 2));
    }

    void toolWorksBesideIt()
    {
        void *other = dlopen(qPrintable(Built("lib/libOtherJson.so")), RTLD_NOW | RTLD_GLOBAL);
        QVERIFY2(other, dlerror());
        {
            CCalibrationSession session(kPathLossPage);
            QVERIFY(session.ShowAndWait() && session.Run(kRead) && session.Run(kWrite));
        }
        QCOMPARE(reinterpret_cast<int (*)()>(dlsym(other, "OtherJsonCalls"))(), 0);
    }

    // In front of everything that a program loads: pair, tap, tool.
    void hostWithItPreloadedRecordsAndIsPlayedBack()
    {
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
        QSKIP("A sanitizer's runtime wants to be in front.");
#else
        const QTemporaryDir folder;
        const QString trace = folder.filePath("run.jsonl");
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("LD_PRELOAD", Built("lib/libOtherJson.so"));
        for (const char *how : {"--record", "--replay"}) {
            QProcess host;
            host.setProcessEnvironment(environment);
            host.setProcessChannelMode(QProcess::MergedChannels);
            host.start(Built("bin/quorlin-host"), {"--demo", "--profile", "handset", how, trace});
            QVERIFY(host.waitForFinished(120000));
            const QByteArray output = host.readAll();
            QVERIFY2(host.exitStatus() == QProcess::NormalExit && host.exitCode() == 0,
                     output.constData());
            QVERIFY2(!output.contains("OtherJson"), output.constData());
        }
        QVERIFY(QFileInfo(trace).size() > 1000);
#endif
    }
};

QUORLIN_TEST_CLASS(OtherJsonTest)
#include "OtherJsonTest.moc"
