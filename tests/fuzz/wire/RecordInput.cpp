#include "tests/fuzz/wire/RecordInput.h"

#include <algorithm>

#include "tests/fuzz/wire/FuzzAnswers.h"
#include "tests/fuzz/wire/FuzzPages.h"

namespace {

constexpr char kFileLine[] = "file";
constexpr uint32_t kMaxTimes = 100000;  // bytes of the largest record are fewer

bool ReadChange(const QByteArray &line, SRecordChange &change)
{
    const QList<QByteArray> words = line.simplified().split(' ');
    if (words.size() < 3)
        return false;
    change.function = words[0];
    change.isResult = words[1] == "=";
    if (change.isResult) {
        change.result = words[2].toInt();
        return true;
    }
    change.offset = words[1].toUInt();
    change.bytes = QByteArray::fromHex(words[2]);
    if (words.size() > 3 && words[3].startsWith('x'))
        change.times = std::min(words[3].mid(1).toUInt(), kMaxTimes);
    return true;
}

}  // namespace

SRecordInput ReadRecordInput(const QByteArray &text)
{
    QList<QByteArray> lines = text.split('\n');
    const QByteArray head = lines.takeFirst().simplified();
    const int blank = head.indexOf(' ');
    SRecordInput input;
    input.dut = head.left(blank);
    input.page = PageOf(QString::fromLatin1(blank < 0 ? QByteArray() : head.mid(blank + 1)));
    for (const QByteArray &line : qAsConst(lines)) {
        SRecordChange change;
        input.isFiled = input.isFiled || line == kFileLine;
        if (ReadChange(line, change))
            input.changes.push_back(change);
    }
    return input;
}

QByteArray RecordText(const SRecordInput &input)
{
    QByteArray text = input.dut + ' ' + PageName(input.page).toLatin1() + '\n';
    if (input.isFiled)
        text += QByteArray(kFileLine) + '\n';
    for (const SRecordChange &change : input.changes) {
        text += change.function + ' ';
        if (change.isResult) {
            text += "= " + QByteArray::number(change.result);
        } else {
            text += QByteArray::number(change.offset) + ' ' + change.bytes.toHex();
            if (change.times != 1)
                text += " x" + QByteArray::number(change.times);
        }
        text += '\n';
    }
    return text;
}

void PlugInput(const SRecordInput &input)
{
    FuzzAnswers::Plug(input.dut);
    for (const SRecordChange &change : input.changes) {
        if (change.isResult)
            FuzzAnswers::Fail(change.function, change.result);
        else
            FuzzAnswers::Overlay(change.function, change.offset, change.bytes, change.times);
    }
}
