// Runs a fuzz target without libFuzzer, on known inputs or on new ones.
//
//   EngineFuzzReplay [FILE or FOLDER]...           runs each input once
//   EngineFuzzReplay --hunt SECONDS [--seed N] ... then makes new ones from them for so long
//
// Without a path, the folders of the environment's QUORLIN_FUZZ_INPUTS are taken, with ":" between
// them; the dictionary is QUORLIN_FUZZ_WORDS, the greatest length of a new input, in bytes,
// QUORLIN_FUZZ_MAX_LENGTH. The name of each input goes to the standard output before it runs, so
// the last one is that of a crash; a hunt keeps the input under way in a file of the working
// directory, the program's name with "-input" behind it. Fails when an input takes longer than ten
// seconds.
#include <cstdio>
#include <cstdlib>
#include <vector>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QStringList>

#include "tests/fuzz/common/FuzzTarget.h"
#include "tests/fuzz/common/Mutator.h"

namespace {

constexpr qint64 kMaxMilliseconds = 10000;  // of one input, with sanitizers on a busy machine
constexpr int kMaxLength = 4096;            // bytes of a new input, unless told

struct SOptions
{
    QStringList paths;
    int huntSeconds = 0;
    unsigned seed = 1;
    QString huntedFile;  // keeps the input under way
};

SOptions ReadOptions(int argc, char *argv[])
{
    SOptions options;
    options.huntedFile =
        QFileInfo(QString::fromLocal8Bit(argv[0])).fileName() + QLatin1String("-input");
    for (int i = 1; i < argc; ++i) {
        const QString word = QString::fromLocal8Bit(argv[i]);
        const char *next = i + 1 < argc ? argv[i + 1] : "";
        if (word == QLatin1String("--hunt")) {
            options.huntSeconds = std::atoi(next);
            ++i;
        } else if (word == QLatin1String("--seed")) {
            options.seed = static_cast<unsigned>(std::atoi(next));
            ++i;
        } else {
            options.paths.append(word);
        }
    }
    if (options.paths.isEmpty())
        options.paths = QString::fromLocal8Bit(qgetenv("QUORLIN_FUZZ_INPUTS"))
                            .split(QLatin1Char(':'), Qt::SkipEmptyParts);
    return options;
}

QStringList FilesBelow(const QStringList &paths)
{
    QStringList files;
    for (const QString &path : paths) {
        if (!QFileInfo(path).isDir()) {
            files.append(path);
            continue;
        }
        const QDir folder(path);
        for (const QString &name : folder.entryList(QDir::Files, QDir::Name))
            files.append(folder.filePath(name));
    }
    return files;
}

// False when the input took too long.
bool Run(const QByteArray &input)
{
    QElapsedTimer clock;
    clock.start();
    // A copy of its own, so that the address sanitizer sees a read behind the end.
    const std::vector<uint8_t> bytes(input.begin(), input.end());
    LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
    if (clock.elapsed() <= kMaxMilliseconds)
        return true;
    std::printf("Too slow: %lld ms\n", static_cast<long long>(clock.elapsed()));
    return false;
}

bool Hunt(const SOptions &options, const QVector<QByteArray> &corpus)
{
    const QVector<QByteArray> words =
        ReadDictionary(QString::fromLocal8Bit(qgetenv("QUORLIN_FUZZ_WORDS")));
    const int maxLength = qEnvironmentVariableIntValue("QUORLIN_FUZZ_MAX_LENGTH");
    CMutator mutator(corpus, words.isEmpty() ? QVector<QByteArray>{"{}"} : words,
                     maxLength > 0 ? maxLength : kMaxLength, options.seed);
    QElapsedTimer clock;
    clock.start();
    long runs = 0;
    for (; clock.elapsed() < options.huntSeconds * 1000LL; ++runs) {
        const QByteArray input = mutator.Next();
        QFile kept(options.huntedFile);
        if (kept.open(QIODevice::WriteOnly))
            kept.write(input);
        kept.close();
        if (!Run(input))
            return false;
    }
    QFile::remove(options.huntedFile);
    std::printf("%ld new inputs, seed %u\n", runs, options.seed);
    return true;
}

}  // namespace

int main(int argc, char *argv[])
{
    LLVMFuzzerInitialize(&argc, &argv);
    const SOptions options = ReadOptions(argc, argv);
    QVector<QByteArray> corpus;
    bool isGood = true;
    for (const QString &name : FilesBelow(options.paths)) {
        std::printf("%s\n", qPrintable(name));
        std::fflush(stdout);
        QFile file(name);
        if (!file.open(QIODevice::ReadOnly)) {
            std::printf("Cannot be read\n");
            isGood = false;
            continue;
        }
        corpus.append(file.readAll());
        isGood = Run(corpus.last()) && isGood;
    }
    if (corpus.isEmpty()) {
        std::printf("No inputs: name files or folders, or set QUORLIN_FUZZ_INPUTS\n");
        return 2;
    }
    std::printf("%d known inputs\n", static_cast<int>(corpus.size()));
    if (options.huntSeconds > 0)
        isGood = Hunt(options, corpus) && isGood;
    return isGood ? 0 : 1;
}
