#include "tests/fuzz/common/Mutator.h"

#include <QFile>

#include "tests/fuzz/common/FuzzTarget.h"
#include "tests/fuzz/common/JsonMutator.h"

namespace {

constexpr int kMaxChanges = 6;  // of one input
constexpr int kMaxPart = 200;   // bytes that a change moves

}  // namespace

QVector<QByteArray> ReadDictionary(const QString &file)
{
    QVector<QByteArray> words;
    QFile dictionary(file);
    if (!dictionary.open(QIODevice::ReadOnly))
        return words;
    for (const QByteArray &line : dictionary.readAll().split('\n')) {
        const QByteArray word = line.trimmed();
        if (word.startsWith('"') && word.endsWith('"') && word.size() > 2)
            words.append(word.mid(1, word.size() - 2)
                             .replace("\\\"", "\"")
                             .replace("\\x0a", "\n")
                             .replace("\\\\", "\\"));
    }
    return words;
}

CMutator::CMutator(QVector<QByteArray> corpus, QVector<QByteArray> words, int maxLength,
                   unsigned seed)
    : m_corpus(std::move(corpus)), m_words(std::move(words)), m_maxLength(maxLength), m_random(seed)
{
}

int CMutator::Below(int limit)
{
    return FuzzBelow(m_random, limit);
}

void CMutator::Change(QByteArray &input)
{
    const int at = Below(input.size() + 1);
    const int length = qMin(Below(kMaxPart), input.size() - at);
    switch (Below(7)) {
    case 0:
        if (at < input.size())
            input[at] = static_cast<char>(Below(256));
        break;
    case 1:
        input.remove(at, length);
        break;
    case 2:
        input.insert(Below(input.size() + 1), input.mid(at, length));
        break;
    case 3:
        input.insert(at, m_words[Below(m_words.size())]);
        break;
    case 4: {
        const QByteArray &word = m_words[Below(m_words.size())];
        const int found = input.indexOf(word, at);
        if (found >= 0)
            input.replace(found, word.size(), m_words[Below(m_words.size())]);
        break;
    }
    case 5: {
        const QByteArray &other = m_corpus[Below(m_corpus.size())];
        input.replace(at, length, other.mid(Below(other.size()), Below(kMaxPart)));
        break;
    }
    default:
        for (int i = at; i < input.size(); ++i) {
            if (input[i] >= '0' && input[i] <= '9') {
                input[i] = static_cast<char>('0' + Below(10));
                break;
            }
        }
    }
}

QByteArray CMutator::Next()
{
    QByteArray input = m_corpus[Below(m_corpus.size())];
    for (int changes = 1 + Below(kMaxChanges); changes > 0; --changes) {
        if (Below(5) == 0)
            Change(input);
        else
            input = MutateFuzzInput(input, m_random);
    }
    return input.left(m_maxLength);
}
