// Typing into an editor and choosing from a list.
#include "Runner/bench/Editors.h"

#include <cmath>

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QSpinBox>

namespace {

SRefusal NotTaken(const SBenchMember &member, const QString &value)
{
    return {QStringLiteral("%1 does not take \"%2\".").arg(member.Name(), value),
            AllowedText(member)};
}

SRefusal Gone(const SBenchMember &member)
{
    return {QStringLiteral("The editor of %1 has gone.").arg(member.Name())};
}

void SendKey(QWidget *widget, Qt::Key key)
{
    const QPointer<QWidget> alive(widget);
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier);
        if (alive)
            QCoreApplication::sendEvent(alive, &event);
    }
}

// The list opens, shows what it has, and one entry is clicked. A key without a meaning comes first, as
// pages that store what was shown wait for a sign that somebody goes to the list.
std::optional<SRefusal> Choose(QComboBox *list, const SBenchMember &member, const QString &value)
{
    const int index = static_cast<int>(member.choices.indexOf(value));
    if (index < 0)
        return NotTaken(member, value);
    if (index == list->currentIndex())
        return std::nullopt;
    const QPointer<QComboBox> alive(list);
    SendKey(list, Qt::Key_Shift);
    if (!alive)
        return Gone(member);
    list->setCurrentIndex(index);
    if (alive)
        emit list->textActivated(list->itemText(index));
    if (alive)
        emit list->activated(index);
    if (!alive)
        return Gone(member);
    return list->currentText().trimmed() == value ? std::nullopt
                                                  : std::optional(NotTaken(member, value));
}

std::optional<SRefusal> Tick(QCheckBox *box, const SBenchMember &member, const QString &value)
{
    if (!member.choices.contains(value))
        return NotTaken(member, value);
    const bool isOn = value == QLatin1String("true");
    const QPointer<QCheckBox> alive(box);
    if (box->isChecked() != isOn)
        box->click();
    if (!alive)
        return Gone(member);
    return box->isChecked() == isOn ? std::nullopt : std::optional(NotTaken(member, value));
}

// Replaces the whole text, as after a double click, and ends the edit with Enter.
void Retype(QWidget *editor, QLineEdit *line, const QString &text)
{
    const QPointer<QWidget> alive(editor);
    line->selectAll();
    line->insert(text);
    if (alive)
        SendKey(editor, Qt::Key_Return);
}

struct SEntry
{
    bool isNumber = false;
    double number = 0;
    QString text;  // to be typed
};

SEntry ReadEntry(const QSpinBox *box, const QString &value)
{
    SEntry entry;
    entry.number = value.toInt(&entry.isNumber, box->displayIntegerBase());
    entry.text = value;
    return entry;
}

// As many decimals as the box shows; a finer number is none that it takes.
SEntry ReadEntry(const QDoubleSpinBox *box, const QString &value)
{
    SEntry entry;
    entry.number = value.toDouble(&entry.isNumber);
    entry.text = QString::number(entry.number, 'f', box->decimals());
    const double loss = std::abs(entry.text.toDouble() - entry.number);
    entry.isNumber =
        entry.isNumber && std::isfinite(entry.number) && loss <= std::abs(entry.number) * 1e-12;
    return entry;
}

int Decimals(const QSpinBox *)
{
    return 0;
}

int Decimals(const QDoubleSpinBox *box)
{
    return box->decimals();
}

bool IsAllowed(const QString &ranges, double number)
{
    for (const QString &token : ranges.split(',')) {
        const QStringList limits = token.split('~');
        if (limits.constFirst().toDouble() <= number && number <= limits.constLast().toDouble())
            return true;
    }
    return ranges.isEmpty();
}

// The first range's value is what the box falls back to by itself.
QString Middle(const SBenchMember &member, double min, double max, int decimals)
{
    QString middle;
    const auto print = [&](double low, double high) {
        const double value = (low + high) / 2;
        middle = decimals == 0 ? QString::number(static_cast<qint64>(value))
                               : QString::number(value, 'f', decimals);
        return middle.toDouble();
    };
    if (IsAllowed(member.allowed, print(min, max)))
        return middle;
    const QStringList first = member.allowed.section(',', 0, 0).split('~');
    print(first.constFirst().toDouble(), first.constLast().toDouble());
    return middle;
}

QString Lowest(const SBenchMember &member, bool isLowest)
{
    if (member.allowed.isEmpty())
        return isLowest ? member.min : member.max;
    QString best;
    for (const QString &token : member.allowed.split(',')) {
        const QString end = token.section('~', isLowest ? 0 : -1, isLowest ? 0 : -1);
        const bool isBetter = best.isEmpty() || (isLowest ? end.toDouble() < best.toDouble()
                                                          : end.toDouble() > best.toDouble());
        if (isBetter)
            best = end;
    }
    return best;
}

QString Resolve(const SBenchMember &member, const QString &value, int decimals)
{
    if (value == QLatin1String("min") || value == QLatin1String("max"))
        return Lowest(member, value == QLatin1String("min"));
    if (value != QLatin1String("mid"))
        return value;
    bool ok = false;
    const auto read = [&](const QString &text) {
        return member.base == 10 ? text.toDouble(&ok)
                                 : static_cast<double>(text.toLongLong(&ok, member.base));
    };
    const QString middle = Middle(member, read(member.min), read(member.max), decimals);
    return member.base == 10 ? middle : QString::number(middle.toLongLong(), member.base);
}

// What the editor made of the number: a dB editor goes to the nearest step of the target.
bool IsTaken(const QSpinBox *box, double number)
{
    return box->value() == static_cast<int>(number);
}

bool IsTaken(const QDoubleSpinBox *box, double number)
{
    constexpr double kDbStep = 1.0 / 32;
    const double slack = box->singleStep() == kDbStep ? kDbStep / 2 : 0;
    return std::abs(box->value() - number) <= slack + 1e-9 * std::max(1.0, std::abs(number));
}

template <typename Box>
std::optional<SRefusal> TypeNumber(Box *box, const SBenchMember &member, const QString &wanted)
{
    const QString value = Resolve(member, wanted, Decimals(box));
    const SEntry entry = ReadEntry(box, value);
    const bool isInLimits = box->minimum() <= entry.number && entry.number <= box->maximum();
    if (!entry.isNumber || !isInLimits || !IsAllowed(member.allowed, entry.number))
        return NotTaken(member, wanted);
    auto *line = box->template findChild<QLineEdit *>();
    if (!line || box->isReadOnly())
        return NotTaken(member, wanted);
    const QPointer<Box> alive(box);
    const QString before = box->cleanText();
    Retype(box, line, entry.text);
    if (!alive)
        return Gone(member);
    if (IsTaken(box, entry.number))
        return std::nullopt;
    Retype(box, line, before);
    return NotTaken(member, wanted);
}

std::optional<SRefusal> TypeUnsigned(QLineEdit *line, const SBenchMember &member,
                                     const QString &wanted)
{
    const QString value = Resolve(member, wanted, 0).toUpper();
    bool isNumber = false;
    const uint number = value.toUInt(&isNumber, member.base);
    const bool isInLimits = member.min.toUInt(nullptr, member.base) <= number &&
                            number <= member.max.toUInt(nullptr, member.base);
    if (!isNumber || !isInLimits || line->isReadOnly())
        return NotTaken(member, wanted);
    const QPointer<QLineEdit> alive(line);
    const QString before = line->text();
    Retype(line, line, value);
    if (!alive)
        return Gone(member);
    if (line->text() == value)
        return std::nullopt;
    Retype(line, line, before);
    return NotTaken(member, wanted);
}

}  // namespace

std::optional<SRefusal> TypeInto(QWidget *editor, const SBenchMember &member, const QString &value)
{
    const QPointer<QWidget> alive(editor);
    editor->setFocus(Qt::MouseFocusReason);
    if (!alive)
        return Gone(member);
    const QString text = value.trimmed();
    if (auto *list = qobject_cast<QComboBox *>(editor))
        return Choose(list, member, text);
    if (auto *box = qobject_cast<QCheckBox *>(editor))
        return Tick(box, member, text);
    if (auto *box = qobject_cast<QSpinBox *>(editor))
        return TypeNumber(box, member, text);
    if (auto *box = qobject_cast<QDoubleSpinBox *>(editor))
        return TypeNumber(box, member, text);
    if (auto *line = qobject_cast<QLineEdit *>(editor))
        return TypeUnsigned(line, member, text);
    return NotTaken(member, value);
}
