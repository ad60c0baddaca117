#include "bench/BenchPage.h"

#include <QVBoxLayout>

#include "Model/ModelText.h"

CBenchPage::CBenchPage()
{
    setWidget(new QWidget);
    new QVBoxLayout(widget());
}

void CBenchPage::AddToForm(QWidget *child, const QString &name)
{
    child->setObjectName(name);
    widget()->layout()->addWidget(child);
}

QTableWidget *CBenchPage::AddTable(const QString &name)
{
    return Add<QTableWidget>(name);
}

void CBenchPage::Open(const QJsonObject &document)
{
    resize(1000, 700);
    show();
    Slot_GetDataModelDone(ModelToText(document));
}
