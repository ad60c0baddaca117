// Makes new inputs of the fuzz target from known ones, where no libFuzzer is at hand.
//
// Blind, without a look at what the code did: most changes are those of the target
// (MutateFuzzInput); the others change bytes, cut or double parts, take them from another input, or
// put in words of the format. The same seed makes the same inputs.
//
//   CMutator mutator(corpus, ReadDictionary("engine.dict"), 4096, 1);
//   const QByteArray input = mutator.Next();
#pragma once

#include <random>

#include <QByteArray>
#include <QString>
#include <QVector>

// The words of a libFuzzer dictionary: one in double quotes a line, # for comments.
QVector<QByteArray> ReadDictionary(const QString &file);

class CMutator
{
public:
    // corpus: at least one input. words: at least one. maxLength: bytes of an input.
    CMutator(QVector<QByteArray> corpus, QVector<QByteArray> words, int maxLength, unsigned seed);

    QByteArray Next();

private:
    int Below(int limit);
    void Change(QByteArray &input);

    QVector<QByteArray> m_corpus;
    QVector<QByteArray> m_words;
    int m_maxLength;
    std::mt19937 m_random;
};
