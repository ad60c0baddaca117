#include <QJsonArray>

#include "Model/JsonPath.h"
#include "tools/modelcheck/Checks.h"
#include "tools/modelcheck/FormatKeys.h"

namespace {

struct SNumber
{
    bool isNumber;
    double value;
};

SNumber ReadWhole(const QString &text)
{
    bool ok = false;
    const int value = text.toInt(&ok, 10);
    return {ok, double(value)};
}

SNumber ReadUnsigned(const QString &text)
{
    bool ok = false;
    const unsigned int value = text.toUInt(&ok, 10);
    return {ok, double(value)};
}

SNumber ReadPoint(const QString &text)
{
    bool ok = false;
    const double value = text.toDouble(&ok);
    return {ok, ok ? value : 0.0};
}

// How the engine reads a default of that type. A type that is not here is shown as text.
struct SReader
{
    const char *type;
    SNumber (*read)(const QString &text);
};

constexpr SReader kReaders[] = {
    {"range", ReadWhole},
    {"pointRange", ReadPoint},
    {"unsignedRange", ReadUnsigned},
};

const SReader *FindReader(const SPageMember &member)
{
    for (const SReader &reader : kReaders) {
        if (QLatin1String(reader.type) == QLatin1String(member.type->name))
            return &reader;
    }
    return nullptr;
}

double Limit(const QJsonValue &limit)
{
    return limit.isString() ? limit.toString().toUInt(nullptr, 10) : limit.toDouble();
}

class CDefaultCheck
{
public:
    CDefaultCheck(const SPage &page, const SPageMember &member, const SReport &report)
        : m_member(member), m_report(report), m_path(Below(member.TraitPath(), "defaultValue")),
          m_entry(page.StartEntry(member)), m_reader(FindReader(member))
    {
    }

    void Check(const QJsonValue &value) const
    {
        if (m_member.groupType == 1)
            CheckElement(value);
        else if (value.isArray())
            CheckArray(value.toArray());
        else if (value.isDouble())
            AddNumber(value.toDouble());
        else if (value.isString())
            m_report.Add(EKind::DefaultNoArray, m_path,
                         QStringLiteral("\"%1\" is no array; it reads as an empty one")
                             .arg(value.toString()));
        else
            m_report.Add(EKind::WrongType, m_path, "is not an array of texts");
    }

private:
    void CheckArray(const QJsonArray &elements) const
    {
        for (const QJsonValue &element : elements)
            CheckElement(element);
    }

    void CheckElement(const QJsonValue &value) const
    {
        if (value.isDouble())
            AddNumber(value.toDouble());
        else if (!value.isString())
            m_report.Add(EKind::WrongType, m_path, "is not a text");
        // A number reads as an empty text, whatever it is.
        if (value.isString() || value.isDouble())
            CheckText(value.toString());
    }

    void CheckText(const QString &text) const
    {
        if (m_reader)
            CheckNumber(text);
        else if (m_member.type->value == EForm::TrueFalse)
            CheckItem(text, {"true", "false"});
        else if (m_member.type->value == EForm::TextList && m_entry.isArray())
            CheckItem(text, Texts(m_entry));
    }

    void CheckItem(const QString &text, const QStringList &items) const
    {
        if (!items.contains(text))
            m_report.Add(EKind::DefaultNotInList, m_path,
                         QStringLiteral("default \"%1\" is not among the items").arg(text));
    }

    void CheckNumber(const QString &text) const
    {
        const SNumber number = m_reader->read(text);
        if (!number.isNumber && !text.isEmpty()) {
            m_report.Add(EKind::DefaultNoNumber, m_path,
                         QStringLiteral("default \"%1\" is no number for data type \"%2\"")
                             .arg(text, QLatin1String(m_member.type->name)));
            return;
        }
        const QJsonObject limits = m_entry.toObject();
        if (!limits.contains("min") || !limits.contains("max"))
            return;
        const double min = Limit(limits.value("min"));
        const double max = Limit(limits.value("max"));
        if (min <= max && (number.value < min || number.value > max))
            m_report.Add(EKind::DefaultOutsideLimits, m_path,
                         QStringLiteral("default %1 is not within %2 to %3")
                             .arg(QString::number(number.value, 'g', 12),
                                  QString::number(min, 'g', 12), QString::number(max, 'g', 12)));
    }

    void AddNumber(double number) const
    {
        const QString text = QString::number(number, 'g', 12);
        if (number == 0 && m_reader)
            m_report.Add(EKind::DefaultZero, m_path, "default is the JSON number 0; write \"0\"");
        else
            m_report.Add(EKind::DefaultNumber, m_path,
                         QStringLiteral("default is the JSON number %1, which reads as an empty "
                                        "text; write \"%1\"")
                             .arg(text));
    }

    const SPageMember &m_member;
    const SReport &m_report;
    QString m_path;
    QJsonValue m_entry;
    const SReader *m_reader;
};

}  // namespace

void CheckDefaults(const SPage &page, const SReport &report)
{
    for (const SPageMember &member : page.members) {
        const bool isEditor = member.groupType == 1 || member.groupType == 3;
        if (isEditor && member.type && member.TraitHas("defaultValue"))
            CDefaultCheck(page, member, report).Check(member.trait.value("defaultValue"));
    }
}
