#include "View/explain/ExplainAction.h"

#include <QAction>
#include <QTableWidget>

#include "Model/JsonPath.h"
#include "Model/MemberPath.h"
#include "View/editors/NamedAction.h"
#include "View/engine/AutoBindingDataModelDockWidget.h"
#include "View/engine/GroupTypes.h"
#include "View/engine/TableGroup.h"
#include "View/explain/ExplainWindow.h"

namespace {

constexpr int kRowTable = 2;  // groupType

using ExplainedPage = CAutoBindingDataModelDockWidget;

void Open(ExplainedPage *page, const QString &member)
{
    auto *window = page->findChild<CExplainWindow *>(QString(), Qt::FindDirectChildrenOnly);
    if (!window)
        window = new CExplainWindow(page);
    window->ShowMember(member);
    window->BringUp();
}

// Of a column table's row or a row table's column; empty beside them.
QString MemberInTable(const QJsonObject &document, const QString &path, const QTableWidget &table,
                      const QPoint &globalPos)
{
    const QModelIndex cell = table.indexAt(table.viewport()->mapFromGlobal(globalPos));
    const STableGroup group(document, path);
    const QString key = GroupTypeOf(document, path) == kRowTable
                            ? group.members.value(cell.column())
                            : group.rows.value(cell.row());
    return key.isEmpty() ? QString() : GroupPropertyPath(path) + QLatin1Char('.') + key;
}

// Empty when there is none.
QString MemberAt(const QJsonObject &document, const SMenuPlace &place, const QPoint &globalPos)
{
    const QString path = place.member ? PathFromObjectName(place.member->objectName()) : QString();
    if (GetJsonValueConst(document, path).isUndefined())
        return {};
    const auto *table = qobject_cast<const QTableWidget *>(place.member);
    return table ? MemberInTable(document, path, *table, globalPos) : path;
}

}  // namespace

void AddExplain(CAutoBindingDataModelDockWidget *page)
{
    AddAction(page, "m_actionExplain", "E&xplain changes...", {"Ctrl+Shift+X"},
              [page] { Open(page, {}); });
    auto *const ofMember = new QAction(page);
    ofMember->setObjectName(QStringLiteral("m_actionExplainMember"));
    QObject::connect(ofMember, &QAction::triggered, page,
                     [page, ofMember] { Open(page, ofMember->data().toString()); });
    page->SetMemberActions([page, ofMember](const SMenuPlace &place, const QPoint &globalPos) {
        const QString member = MemberAt(page->DataModel(), place, globalPos);
        if (member.isEmpty())
            return QList<QAction *>();
        const QString caption = CChangeWords(*page).Caption(member, -1);
        ofMember->setText(
            QStringLiteral("Explain changes of %1")
                .arg(QString(caption).replace(QLatin1Char('&'), QLatin1String("&&"))));
        ofMember->setData(member);
        return QList<QAction *>{ofMember};
    });
}
