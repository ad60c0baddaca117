// A page made in code, whose walks a benchmark can call.
#pragma once

#include <QTableWidget>

#include "View/engine/AutoBindingDataModelDockWidget.h"

class CBenchPage : public CAutoBindingDataModelDockWidget
{
    Q_OBJECT

public:
    CBenchPage();

    // Shows the page; the document is what its init flow gets.
    void Open(const QJsonObject &document);
    QTableWidget *AddTable(const QString &name);
    template <typename Widget>
    Widget *Add(const QString &name)
    {
        auto *widget = new Widget;
        AddToForm(widget, name);
        return widget;
    }

    using CAutoBindingDataModelDockWidget::AppendWidget;
    using CAutoBindingDataModelDockWidget::PackageMemberValue;
    using CAutoBindingDataModelDockWidget::UpdateWidget;

    QWidget *GetRootWidget() override { return this; }
    int GetModelInterface() override { return eInterfaceCmdIf; }
    void RequestDataModel() override {}
    void DisableTestControls() override {}
    void EnableTestControls() override {}

public slots:
    void Slot_TriggerStopTest() override {}

private:
    void AddToForm(QWidget *widget, const QString &name);
};
