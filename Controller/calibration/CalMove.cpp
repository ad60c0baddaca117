#include "Controller/calibration/CalMove.h"

#include <algorithm>

#include "Controller/calibration/CalEditor.h"
#include "Model/JsonPath.h"
#include "Model/ModelIntegrity.h"
#include "Model/ModelQuery.h"
#include "Support/Log.h"

namespace {

QString ValuePath(const char *group, const QString &member)
{
    return QLatin1String(group) + QLatin1String(".memberValue.") + member;
}

int CountToFirst0(const uint32_t (&freq)[kVondCalMaxSubbands], int length)
{
    return static_cast<int>(std::find(freq, freq + length, 0u) - freq);
}

// An empty text is a combo box without a choice; it equals no number.
bool IsSame(ECalText kind, const QString &a, const QString &b)
{
    if (a.isEmpty() || b.isEmpty())
        return a.isEmpty() == b.isEmpty();
    return CalValue(kind, a) == CalValue(kind, b);
}

// own: the text that the page was given.
void Fill(const CCalEditor &editor, ECalText kind, const QString &packaged, const QString &own,
          CCalCell cell)
{
    const QStringList shown = editor.Shown(own);
    const bool isEdited = std::none_of(shown.begin(), shown.end(), [&](const QString &text) {
        return IsSame(kind, packaged, text);
    });
    if (isEdited)
        cell.Set(CalValue(kind, packaged));
}

// The frequencies as the page is given them, one for each place.
QStringList FrequencyTexts(const SCalFrequencies &frequencies)
{
    const int end = frequencies.shownToFirst0 ? CountToFirst0(frequencies.freq, kVondCalMaxSubbands)
                                              : kVondCalMaxSubbands;
    QStringList texts;
    for (int i = 0; i < kVondCalMaxSubbands; ++i)
        texts.append(CalText(ECalText::Number, i < end ? frequencies.freq[i] : 0));
    return texts;
}

}  // namespace

void CCalFill::Field(const SCalField &field)
{
    const QString path = ValuePath(field.group, field.member);
    const QJsonValue packaged = GetJsonValueConst(m_document, path);
    if (field.fillLog)
        qCDebug(lcCommand) << field.fillLog << packaged;
    if (!IsJsonValueValid(packaged))
        return;
    if (field.kind == ECalText::Option) {
        const int option = GetUiIndexByMemberValue(m_document, path);
        if (option >= 0)
            field.cell(0).Set(option + 1);
        return;
    }
    const CCalEditor editor(m_document, PropertyPath(field.group, field.member));
    const QJsonArray texts = field.columns == kOneText ? QJsonArray{packaged} : packaged.toArray();
    const int count = std::min(texts.size(), std::max(field.columns, 1));
    for (int i = 0; i < count; ++i) {
        const CCalCell cell = field.cell(i);
        Fill(editor, field.kind, texts[i].toString(), CalText(field.kind, cell.Get()), cell);
    }
}

void CCalFill::Frequencies(const SCalFrequencies &frequencies)
{
    const QJsonValue packaged =
        GetJsonValueConst(m_document, ValuePath(frequencies.group, frequencies.member));
    if (!packaged.isArray())
        return;
    const QJsonArray texts = packaged.toArray();
    const QStringList own = FrequencyTexts(frequencies);
    const CCalEditor editor(m_document, PropertyPath(frequencies.group, frequencies.member));
    const int count = std::min(texts.size(), kVondCalMaxSubbands);
    for (int i = 0; i < count; ++i)
        Fill(editor, ECalText::Number, texts[i].toString(), own[i], CCalCell(frequencies.freq[i]));
    const int entries = CountToFirst0(frequencies.freq, count);
    frequencies.blockCount =
        static_cast<uint32_t>((entries + kVondCalBlockSubbands - 1) / kVondCalBlockSubbands);
}

void CCalShow::Field(const SCalField &field)
{
    const QString path = PropertyPath(field.group, field.member);
    QJsonValue value;
    if (field.kind == ECalText::Option) {
        const QJsonArray options =
            GetJsonValueConst(m_document, path + QLatin1String(".trait.value")).toArray();
        const auto option = static_cast<int>(field.cell(0).Get()) - 1;
        value = options.at(option).toString(QLatin1String(""));  // empty: no option stands for it
    } else if (field.columns == kOneText) {
        value = CalText(field.kind, field.cell(0).Get());
    } else {
        QJsonArray texts;
        for (int i = 0; i < field.columns; ++i)
            texts.append(CalText(field.kind, field.cell(i).Get()));
        value = texts;
    }
    bool written = Write(path + QLatin1String(".trait.defaultValue"), value);
    if (!field.caption.isNull())
        written = Write(path + QLatin1String(".caption"), field.caption) && written;
    if (!written)
        Fail(QString::fromLatin1(field.failed).replace(QLatin1String("%1"), field.member));
}

void CCalShow::Frequencies(const SCalFrequencies &frequencies)
{
    QStringList texts = FrequencyTexts(frequencies);
    if (frequencies.shownToFirst0) {
        // One 0 behind the last, as a column table repeats its last entry.
        const int count = CountToFirst0(frequencies.freq, kVondCalMaxSubbands);
        texts = texts.mid(0, count == 0 ? 0 : count + 1);
    }
    if (!Write(PropertyPath(frequencies.group, frequencies.member) +
                   QLatin1String(".trait.defaultValue"),
               QJsonArray::fromStringList(texts)))
        Fail(QString::fromLatin1(frequencies.failed));
}

bool CCalShow::Write(const QString &path, const QJsonValue &value)
{
    return ModifyJsonValue(m_document, path, value, 0);
}

void CCalShow::Fail(const QString &message)
{
    qCCritical(lcCommand).noquote()
        << GetJsonValueConst(m_document, QStringLiteral("modelName")).toString() << message;
    AddModelUpdateResult(m_document, false, message);
}
