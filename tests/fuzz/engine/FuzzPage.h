// The page that the fuzz target shows: a form made in code with a widget for every way of binding.
//
// Sections and groups are the same for both interfaces but for the section's word, "request" or
// "config" and "response" or "data". Member names are short, so that a document of a few hundred
// bytes reaches all of them; FuzzPage.cpp lists them. The document is not asked for: the owner
// delivers it, since a page may be destroyed while its integrity box is open, but not from within
// its own show.
//
//   CFuzzPage page(eInterfaceCmdIf, host);
//   page.show();
//   page.Deliver(text);
#pragma once

#include <QVector>

#include "View/engine/AutoBindingDataModelDockWidget.h"

class CFuzzPage : public CAutoBindingDataModelDockWidget
{
    Q_OBJECT

public:
    CFuzzPage(int modelInterface, QWidget *parent);

    QWidget *GetRootWidget() override { return this; }
    int GetModelInterface() override { return m_interface; }
    void RequestDataModel() override {}
    void DisableTestControls() override {}
    void EnableTestControls() override {}
    void Slot_TriggerStopTest() override {}

    void Deliver(const std::string &text) { Slot_GetDataModelDone(text); }
    QString Word() const;
    // "request" or "config"; "response" or "data".
    QString InputSection() const;
    QString ResultSection() const;

    const QJsonObject &Model() const { return m_dataModel; }
    // Editors that a user can change, tables included, in order of creation.
    const QVector<QWidget *> &Editors() const { return m_editors; }

    using CAutoBindingDataModelDockWidget::AppendWidget;
    using CAutoBindingDataModelDockWidget::PackageMemberValue;
    using CAutoBindingDataModelDockWidget::ShowItemResult;
    using CAutoBindingDataModelDockWidget::UpdateWidget;

private:
    int m_interface;
    QVector<QWidget *> m_editors;
};
