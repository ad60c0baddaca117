#include "Controller/calibration/CalEditor.h"

#include <QJsonArray>

#include "Controller/calibration/CalText.h"
#include "Model/JsonPath.h"

namespace {

// The limits or options of a member. Those of a subscriber depend on the packaged text of its
// publisher.
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

// Computed as the editor does it: the middle of two integers is truncated toward zero.
template <typename Number, typename Text>
QStringList Held(Number value, Number least, Number most, bool goesToTheMiddle, Text text)
{
    QStringList texts = {text(qMax(least, qMin(value, most)))};
    if (goesToTheMiddle && (value < least || value > most))
        texts.append(text((least + most) / 2));
    return texts;
}

}  // namespace

CCalEditor::CCalEditor(const QJsonObject &document, const QString &memberPath)
{
    const QJsonObject member = GetJsonValueConst(document, memberPath).toObject();
    m_dataType = GetJsonValueConst(member, QStringLiteral("trait.dataType")).toString();
    m_isSubscriber = IsJsonValueValid(member.value(QLatin1String("subscribeValue")));
    m_entry = EntryOf(document, member);
}

QStringList CCalEditor::Shown(const QString &text) const
{
    if (m_dataType == QLatin1String("list"))
        return {FindStringInJsonArray(m_entry.toArray(), text) >= 0 ? text : QString()};

    const QJsonValue least = m_entry.toObject().value(QLatin1String("min"));
    const QJsonValue most = m_entry.toObject().value(QLatin1String("max"));
    if (!least.isDouble() || !most.isDouble())
        return {text};
    if (m_dataType == QLatin1String("range"))
        return Held<qint64>(text.toInt(), least.toInt(), most.toInt(), m_isSubscriber,
                            [](qint64 value) { return CalText(ECalText::Number, value); });
    if (m_dataType == QLatin1String("pointRange")) {
        constexpr int kDecimals = 5;
        return Held(text.toDouble(), least.toDouble(), most.toDouble(), m_isSubscriber,
                    [](double value) { return QString::number(value, 'f', kDecimals); });
    }
    return {text};
}
