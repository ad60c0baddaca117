// The settings of a page: read from its editors, and entered into them.
#include "View/engine/AutoBindingDataModelDockWidget.h"

#include <algorithm>

#include <QJsonArray>

#include "Model/JsonPath.h"
#include "View/engine/MemberEditors.h"

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

// Members of the settings that the page has no editor for.
QStringList Unknown(const QJsonObject &groups, const QVector<SMemberEditor> &editors)
{
    QStringList unknown;
    for (const QString &group : groups.keys()) {
        for (const QString &member : groups[group].toObject().keys()) {
            const QString key = group + QLatin1Char('.') + member;
            const bool isKnown =
                std::any_of(editors.begin(), editors.end(),
                            [&](const SMemberEditor &editor) { return editor.key == key; });
            if (!isKnown)
                unknown.append(QStringLiteral("%1: this page has no such setting").arg(key));
        }
    }
    return unknown;
}

}  // namespace

SMemberSettings CAutoBindingDataModelDockWidget::Settings() const
{
    if (m_dataModel.isEmpty())
        return {};
    SMemberSettings settings;
    settings.version = m_dataModel.value(QLatin1String("modelVersion")).toInt();
    settings.section =
        m_modelInterface == eInterfaceCmdIf ? QStringLiteral("request") : QStringLiteral("config");
    for (const SMemberEditor &editor :
         EditorsOf(m_dataModel, AbsoluteModelPath(settings.section), m_index)) {
        const QStringList key = editor.key.split(QLatin1Char('.'));
        QJsonObject group = settings.groups[key.first()].toObject();
        const QString text = PackagedText(editor.editor);
        QJsonArray cells = group[key.last()].toArray();
        cells.append(text);
        group[key.last()] = editor.column < 0 ? QJsonValue(text) : QJsonValue(cells);
        settings.groups[key.first()] = group;
    }
    return settings;
}

// In turns: what one editor takes may hang on what another one holds, and change it.
QStringList CAutoBindingDataModelDockWidget::TakeSettings(const QJsonObject &groups)
{
    const QPointer<CAutoBindingDataModelDockWidget> self(this);
    FinishEdit();
    QStringList refused;
    const auto isOn = [this](const SMemberEditor &editor) {
        return editor.editor && editor.editor->isEnabled() && editor.editor->isVisibleTo(this);
    };
    for (int turn = 0; self && turn < kMostTurns; ++turn) {
        const QVector<SMemberEditor> editors =
            EditorsOf(m_dataModel, AbsoluteModelPath(Settings().section), m_index);
        if (std::none_of(editors.begin(), editors.end(), isOn))
            return {QStringLiteral("The page's inputs are off now.")};
        refused = Unknown(groups, editors);
        bool hasChanged = false;
        for (const SMemberEditor &editor : editors) {
            const QString wanted = Wanted(groups, editor);
            if (wanted.isNull() || !isOn(editor))
                continue;
            const QString before = PackagedText(editor.editor);
            if (before == wanted)
                continue;
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
