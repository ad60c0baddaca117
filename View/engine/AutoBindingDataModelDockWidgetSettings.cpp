// The settings of a page: read from its editors, and entered into them.
#include "View/engine/AutoBindingDataModelDockWidget.h"

#include <algorithm>

#include <QJsonArray>

#include "Model/JsonPath.h"
#include "View/engine/Binding.h"
#include "View/engine/MemberEditors.h"
#include "View/engine/Walk.h"

namespace {

constexpr int kMostTurns = 10;

// The value that settings have for an editor; null when they have none.
QString Wanted(const QJsonObject &groups, const SMemberEditor &editor)
{
    const QStringList key = editor.key.split(QLatin1Char('.'));
    const QJsonValue value = groups[key.first()].toObject()[key.last()];
    if (editor.column < 0)
        return value.isString() ? value.toString() : QString();
    const QJsonArray cells = value.toArray();
    return editor.column < cells.size() ? cells[editor.column].toString() : QString();
}

QString NameOf(const SMemberEditor &editor)
{
    const QString name = editor.caption.isEmpty() ? editor.key : editor.caption;
    return editor.column < 0 ? name : QStringLiteral("%1, column %2").arg(name).arg(editor.column);
}

// Members of the settings that the document lacks.
QStringList Unknown(const QJsonObject &groups, const QJsonObject &section)
{
    QStringList unknown;
    for (const QString &group : groups.keys()) {
        const QJsonArray known =
            section.value(group).toObject().value(QLatin1String("memberList")).toArray();
        for (const QString &member : groups[group].toObject().keys()) {
            if (!known.contains(member))
                unknown.append(
                    QStringLiteral("%1.%2: this page has no such setting").arg(group, member));
        }
    }
    return unknown;
}

}  // namespace

QString CAutoBindingDataModelDockWidget::SettingsSection() const
{
    return m_modelInterface == eInterfaceCmdIf ? QStringLiteral("request")
                                               : QStringLiteral("config");
}

// What the walk writes goes into a copy, as of DocumentText.
SMemberSettings CAutoBindingDataModelDockWidget::Settings()
{
    if (m_dataModel.isEmpty())
        return {};
    QJsonObject document = m_dataModel;
    Walk(kPackageWalk, BindingOf(document, document));
    return {.version = document.value(QLatin1String("modelVersion")).toInt(),
            .section = SettingsSection(),
            .groups = PackagedValues(document, AbsoluteModelPath(SettingsSection()))};
}

// In turns: what one editor takes may hang on what another one holds, and change it.
QStringList CAutoBindingDataModelDockWidget::TakeSettings(const QJsonObject &groups)
{
    const QPointer<CAutoBindingDataModelDockWidget> self(this);
    FinishEdit();
    const QString section = AbsoluteModelPath(SettingsSection());
    const CChangeScope scope(&m_changes, {.key = QStringLiteral("settings")});
    QStringList refused;
    const auto isOn = [this](const SMemberEditor &editor) {
        return editor.editor && editor.editor->isEnabled() && editor.editor->isVisibleTo(this);
    };
    for (int turn = 0; self && turn < kMostTurns; ++turn) {
        const QVector<SMemberEditor> editors = EditorsOf(m_dataModel, section, m_index);
        if (std::none_of(editors.begin(), editors.end(), isOn))
            return {QStringLiteral("The page's inputs are off now.")};
        refused = Unknown(groups, GetJsonValueConst(m_dataModel, section).toObject());
        bool hasChanged = false;
        for (const SMemberEditor &editor : editors) {
            const QString wanted = Wanted(groups, editor);
            if (wanted.isNull() || !isOn(editor))
                continue;
            const QString before = PackagedText(editor.editor);
            if (before == wanted)
                continue;
            BeforeEntry(editor.editor);
            if (!EnterPackaged(editor.editor, wanted))
                refused.append(QStringLiteral("%1: %2 is not possible here, it stays %3")
                                   .arg(NameOf(editor), wanted, before));
            else if (self && editor.editor)
                hasChanged = hasChanged || PackagedText(editor.editor) != before;
            if (!self)
                return {};
        }
        if (!hasChanged)
            break;
    }
    return refused;
}
