#include "Controller/calibration/CalEdits.h"

#include <algorithm>

#include "Controller/calibration/CalEditor.h"
#include "Model/JsonPath.h"

namespace {

// Compares the texts of the document; never touches a record.
class CEditFinder : public ICalMove
{
public:
    explicit CEditFinder(const QJsonObject &document) : m_document(document) {}

    bool HasFound() const { return m_hasFound; }

    void Field(const SCalField &field) override { Look(field.group, field.member, field.kind); }
    void Frequencies(const SCalFrequencies &frequencies) override
    {
        Look(frequencies.group, QString::fromLatin1(frequencies.member), ECalText::Number);
    }

private:
    static QJsonArray AsArray(const QJsonValue &value)
    {
        return value.isArray() ? value.toArray() : QJsonArray{value};
    }

    void Look(const char *group, const QString &member, ECalText kind)
    {
        if (m_hasFound)
            return;
        const QString path = QLatin1String(group) + QLatin1String(".memberProperty.") + member;
        const QJsonValue packaged = GetJsonValueConst(
            m_document, QLatin1String(group) + QLatin1String(".memberValue.") + member);
        const QJsonArray given =
            AsArray(GetJsonValueConst(m_document, path + QLatin1String(".trait.defaultValue")));
        if (!IsJsonValueValid(packaged) || given.isEmpty())
            return;
        const QStringList options = Options(path);
        const CCalEditor editor(m_document, path);
        const QJsonArray texts = AsArray(packaged);
        for (int i = 0; i < texts.size() && !m_hasFound; ++i) {
            // A column table repeats the last one.
            const QString own = given.at(std::min(i, given.size() - 1)).toVariant().toString();
            QStringList untouched = editor.Shown(own);
            if (!options.isEmpty() && !options.contains(own))
                untouched.append(options.first());
            const QString text = texts[i].toString();
            m_hasFound =
                std::none_of(untouched.begin(), untouched.end(), [&](const QString &shown) {
                    return shown == text ||
                           (kind != ECalText::Option && !shown.isEmpty() && !text.isEmpty() &&
                            CalValue(kind, shown) == CalValue(kind, text));
                });
        }
    }

    QStringList Options(const QString &path) const
    {
        return GetJsonValueConst(m_document, path + QLatin1String(".trait.value"))
            .toVariant()
            .toStringList();
    }

    const QJsonObject &m_document;
    bool m_hasFound = false;
};

}  // namespace

bool HoldsEdits(const QJsonObject &document, const std::function<void(ICalMove &)> &walk)
{
    CEditFinder finder(document);
    walk(finder);
    return finder.HasFound();
}
