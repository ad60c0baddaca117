#include "tests/view/engine/TestPage.h"

#include <QHeaderView>

#include "Model/JsonPath.h"
#include "Model/ModelText.h"
#include "tests/common/Cells.h"

CTestPage::CTestPage(const CTestDocument &document, QWidget *parent)
    : CAutoBindingDataModelDockWidget(parent), m_document(document), m_text(document.Text()),
      m_content(new QWidget(this)), m_layout(new QVBoxLayout(m_content))
{
    setWindowTitle("Test page");
    setWidget(m_content);
}

void CTestPage::RequestDataModel()
{
    ++m_requests;
    if (m_answersAtOnce)
        Deliver();
}

void CTestPage::Deliver()
{
    const QPointer<CTestPage> self(this);
    Slot_GetDataModelDone(m_text);
    if (self && m_hasEditorsAtOnce)
        MakeAllEditors(this);
}

QTableWidget *CTestPage::AddTable(const QString &member)
{
    auto *table = Add<QTableWidget>(member);
    table->verticalHeader()->setMinimumSectionSize(1);
    return table;
}

QJsonValue CTestPage::Package(const QString &member)
{
    const QJsonObject packaged = ModelFromText(PackageMemberValue());
    const QString group = m_document.Word() + '.' + member.section('.', 0, 1);
    return GetJsonValueConst(packaged, group + ".memberValue." + member.section('.', 2));
}
