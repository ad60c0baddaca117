#include "Runner/run/Expectations.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <optional>

namespace {

QString NumberText(double number)
{
    return QString::number(number, 'g', 10);
}

struct SOfWord
{
    EOf of;
    const char *word;
};

constexpr std::array<SOfWord, 5> kOfWords = {{
    {.of = EOf::Each, .word = "a reading"},
    {.of = EOf::Mean, .word = "the mean"},
    {.of = EOf::Min, .word = "the least reading"},
    {.of = EOf::Max, .word = "the greatest reading"},
    {.of = EOf::Last, .word = "the last reading"},
}};

QString WordOf(EOf of)
{
    for (const SOfWord &row : kOfWords)
        if (row.of == of)
            return row.word;
    return {};
}

// The numbers that the limits are for: all of them, or the one that stands for all.
QVector<double> Reduced(EOf of, const QVector<double> &numbers)
{
    switch (of) {
    case EOf::Mean:
        return {std::accumulate(numbers.begin(), numbers.end(), 0.0) / numbers.size()};
    case EOf::Min:
        return {*std::min_element(numbers.begin(), numbers.end())};
    case EOf::Max:
        return {*std::max_element(numbers.begin(), numbers.end())};
    case EOf::Last:
        return {numbers.last()};
    case EOf::Each:
        break;
    }
    return numbers;
}

// Blank cells of a table are no readings.
QStringList WithoutBlanks(const QStringList &texts)
{
    QStringList readings;
    for (const QString &text : texts)
        if (!text.trimmed().isEmpty())
            readings << text.trimmed();
    return readings;
}

QString JudgeTexts(const SPlanExpect &expect, const QStringList &readings)
{
    const QString wanted = QString::fromStdString(*expect.value);
    for (const QString &reading : expect.of == EOf::Last ? QStringList(readings.last()) : readings)
        if (reading != wanted)
            return QString("it is \"%1\", not \"%2\"").arg(reading, wanted);
    return {};
}

QString JudgeNumbers(const SPlanExpect &expect, const QVector<double> &numbers)
{
    const auto failing = [&expect](double number) {
        return (expect.min && number < *expect.min) || (expect.max && number > *expect.max);
    };
    const QVector<double> reduced = Reduced(expect.of, numbers);
    const auto first = std::find_if(reduced.begin(), reduced.end(), failing);
    if (first == reduced.end())
        return {};
    const bool isBelow = expect.min && *first < *expect.min;
    QString text = QString("%1 is %2, %3 %4")
                       .arg(WordOf(expect.of), NumberText(*first), isBelow ? "below" : "above",
                            NumberText(isBelow ? *expect.min : *expect.max));
    const auto count = std::count_if(reduced.begin(), reduced.end(), failing);
    if (count > 1)
        text += QString("; so are or exceed %1 of %2").arg(count).arg(reduced.size());
    return text;
}

// What is subtracted: an output, or else an input of the page.
std::optional<SRefusal> FindMinus(const CBenchPage &page, const SPlanExpect &expect,
                                  QStringList &values)
{
    const QString name = QString::fromStdString(expect.minus->text);
    const SBenchOutput output = page.FindOutput(name);
    if (output.isFound) {
        values = output.values;
        return std::nullopt;
    }
    SBenchMember member;
    int column = -1;
    if (const auto refusal = page.FindInput(name, member, column))
        return refusal;
    values = column < 0 ? member.values : QStringList(member.values.value(column));
    return std::nullopt;
}

QString Judge(const SPlanExpect &expect, const CBenchPage &page)
{
    const SBenchOutput output = page.FindOutput(QString::fromStdString(expect.key.text));
    if (!output.isFound)
        return output.refusal.Text();
    QStringList minus;
    if (expect.minus)
        if (const auto refusal = FindMinus(page, expect, minus))
            return refusal->Text();
    return JudgeReadings(expect, output.values, minus);
}

bool IsBox(const SBenchBox &box, const SPlacedText &expected)
{
    const QString wanted = QString::fromStdString(expected.text);
    return box.title.trimmed() == wanted || box.text.trimmed() == wanted ||
           box.informative.trimmed() == wanted;
}

QString BoxText(const SBenchBox &box)
{
    QStringList texts;
    for (const QString &text : {box.title, box.text, box.informative})
        if (!text.trimmed().isEmpty())
            texts << text.trimmed();
    return texts.join(": ");
}

}  // namespace

QString JudgeReadings(const SPlanExpect &expect, const QStringList &readings,
                      const QStringList &minus)
{
    const QStringList texts = WithoutBlanks(readings);
    if (texts.isEmpty())
        return "there is no reading";
    if (expect.value)
        return JudgeTexts(expect, texts);
    if (minus.size() > 1 && minus.size() != texts.size())
        return QString("%1 readings, but %2 values to subtract")
            .arg(texts.size())
            .arg(minus.size());
    QVector<double> numbers;
    for (int i = 0; i < texts.size(); ++i) {
        const QString away = minus.value(minus.size() > 1 ? i : 0, "0");
        for (const QString &text : {texts[i], away}) {
            bool isNumber = false;
            if (!std::isfinite(text.toDouble(&isNumber)) || !isNumber)
                return QString("\"%1\" is no number").arg(text);
        }
        numbers << texts[i].toDouble() - away.toDouble();
    }
    return JudgeNumbers(expect, numbers);
}

QStringList FailedExpectations(const SPlanStep &step, const QString &status, const CBenchPage &page)
{
    QStringList reasons;
    if (step.status && status.trimmed() != QString::fromStdString(step.status->text))
        reasons << QString("status: it is \"%1\", not \"%2\"")
                       .arg(status.trimmed(), QString::fromStdString(step.status->text));
    for (const SPlanExpect &expect : step.expect)
        if (const QString reason = Judge(expect, page); !reason.isEmpty())
            reasons << QString::fromStdString(expect.key.text) + ": " + reason;
    return reasons;
}

bool IsExpectedBox(const SPlanStep &step, const SBenchBox &box)
{
    return std::any_of(step.boxes.begin(), step.boxes.end(),
                       [&box](const SPlacedText &expected) { return IsBox(box, expected); });
}

QStringList FailedBoxes(const SPlanStep &step, const QVector<SBenchBox> &boxes)
{
    QStringList reasons;
    for (const SBenchBox &box : boxes)
        if (!IsExpectedBox(step, box))
            reasons << "a box opened: " + BoxText(box);
    for (const SPlacedText &expected : step.boxes)
        if (std::none_of(boxes.begin(), boxes.end(),
                         [&expected](const SBenchBox &box) { return IsBox(box, expected); }))
            reasons
                << QString("box: \"%1\" did not open").arg(QString::fromStdString(expected.text));
    return reasons;
}

void CheckExpectations(const std::string &file, const SPlanStep &step, const CBenchPage &page,
                       CPlanErrors &errors)
{
    for (const SPlanExpect &expect : step.expect) {
        const SBenchOutput output = page.FindOutput(QString::fromStdString(expect.key.text));
        if (!output.isFound)
            errors.Add(file, expect.key.place, output.refusal.reason.toStdString(),
                       output.refusal.allowed.toStdString());
        QStringList ignored;
        if (!expect.minus)
            continue;
        if (const auto refusal = FindMinus(page, expect, ignored))
            errors.Add(file, expect.minus->place, refusal->reason.toStdString(),
                       refusal->allowed.toStdString());
    }
}
