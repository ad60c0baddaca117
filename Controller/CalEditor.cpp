#include "Controller/CalEditor.h"

#include <QJsonArray>

#include "Controller/CalText.h"
#include "Model/JsonPath.h"

namespace {

// The limits or options of a member; those of a subscriber go by its publisher's packaged text.
QJsonValue EntryOf(const QJsonObject &document, const QJsonObject &member)
{
    const QJsonObject trait = member.value(QLatin1String("trait")).toObject();
    const QJsonValue publisher = member.value(QLatin1String("subscribeValue"));
    if (!IsJsonValueValid(publisher))
        return trait.value(QLatin1String("value"));
    constexpr bool kIsCmdIf = false;
    const QString keyPath =
        AbsoluteModelPath(publisher.toString(), kIsCmdIf)
            .replace(QLatin1String("memberProperty"), QLatin1String("memberValue"));
    return trait.value(QLatin1String("valuePair"))
        .toObject()
        .value(GetJsonValueConst(document, keyPath).toString());
}

template <typename Number>
Number Held(Number value, Number least, Number most)
{
    return qMax(least, qMin(value, most));
}

}  // namespace

CCalEditor::CCalEditor(const QJsonObject &document, const QString &memberPath)
{
    const QJsonObject member = GetJsonValueConst(document, memberPath).toObject();
    m_dataType = GetJsonValueConst(member, QStringLiteral("trait.dataType")).toString();
    m_entry = EntryOf(document, member);
}

QString CCalEditor::Shown(const QString &text) const
{
    if (m_dataType == QLatin1String("list"))
        return FindStringInJsonArray(m_entry.toArray(), text) >= 0 ? text : QString();

    const QJsonValue least = m_entry.toObject().value(QLatin1String("min"));
    const QJsonValue most = m_entry.toObject().value(QLatin1String("max"));
    if (!least.isDouble() || !most.isDouble())
        return text;
    if (m_dataType == QLatin1String("range"))
        return CalText(ECalText::Number, Held(text.toInt(), least.toInt(), most.toInt()));
    if (m_dataType == QLatin1String("pointRange")) {
        constexpr int kDecimals = 5;
        return QString::number(Held(text.toDouble(), least.toDouble(), most.toDouble()), 'f',
                               kDecimals);
    }
    return text;
}
