// A page for the tests of the binding engine: its form is made in code, its document is given.
//
// The page answers its own request for the model at once, unless answersAtOnce is off: then Deliver
// does it. All protected walks are open.
//
//   CTestPage page(document);
//   auto *band = page.Add<QComboBox>("request.group1.band");
//   page.Init();
//   page.Package("request.group1.band");   // its packaged value
#pragma once

#include <QBoxLayout>

#include "tests/view/engine/TestDocument.h"

class CTestPage : public CAutoBindingDataModelDockWidget
{
    Q_OBJECT

public:
    explicit CTestPage(const CTestDocument &document, QWidget *parent = nullptr);

    QWidget *GetRootWidget() override { return this; }
    int GetModelInterface() override { return m_document.ModelInterface(); }
    void RequestDataModel() override;
    void DisableTestControls() override {}
    void EnableTestControls() override {}
    void Slot_TriggerStopTest() override {}

    // A widget with a name of its own, or with that of a member such as "request.group1.band".
    template <typename Widget>
    Widget *AddNamed(const QString &objectName)
    {
        auto *widget = new Widget(m_content);
        widget->setObjectName(objectName);
        m_layout->addWidget(widget);
        return widget;
    }
    template <typename Widget>
    Widget *Add(const QString &member)
    {
        return AddNamed<Widget>(m_document.ObjectName(member));
    }
    // A table whose rows may be as low as the engine makes them, whatever the style's least height.
    QTableWidget *AddTable(const QString &member);
    template <typename Widget>
    Widget *AddCaption(const QString &member)
    {
        return AddNamed<Widget>(m_document.ObjectName(member) + "_caption");
    }

    // Shows the page, which takes its document.
    void Init() { show(); }
    void Deliver();

    // Packages all widgets; the value of one member.
    QJsonValue Package(const QString &member);

    QJsonObject &Model() { return m_dataModel; }
    bool IsModelReady() const { return m_modelReady; }

    using CAutoBindingDataModelDockWidget::AppendWidget;
    using CAutoBindingDataModelDockWidget::Edits;
    using CAutoBindingDataModelDockWidget::GetGroupType;
    using CAutoBindingDataModelDockWidget::PackageMemberValue;
    using CAutoBindingDataModelDockWidget::ShowItemResult;
    using CAutoBindingDataModelDockWidget::UpdateWidget;

    CTestDocument m_document;
    std::string m_text;  // what a request is answered with
    bool m_answersAtOnce = true;
    bool m_hasEditorsAtOnce = true;  // those of column tables, which come late otherwise
    int m_requests = 0;

private:
    QWidget *m_content;
    QVBoxLayout *m_layout;
};
