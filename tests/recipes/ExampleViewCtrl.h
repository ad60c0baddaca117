// The example page's part of a view controller and of the core behind it.
//
// It stands in for the generic requests of CQuorlinViewCtrl and the page's row in the core, whose
// tables are not open to a test. It gives the page's document and runs its one test: a reading of
// the power detector, with the coupler's loss added when the document says so. Requests return at
// once. Answers come on the GUI thread, and none comes when this object is gone by then.
//
//   connect(ctrl, &CExampleViewCtrl::Signal_ExampleTestDone, this, &Page::Slot_ExampleTestDone);
//   ctrl->ExampleTest(document);
#pragma once

#include <string>

#include <QObject>

#include "Model/OperationResult.h"

class CExampleViewCtrl : public QObject
{
    Q_OBJECT

public:
    void GetExampleDataModel();
    void ExampleTest(std::string document);

signals:
    void Signal_GetExampleDataModelDone(std::string dataModel);
    void Signal_ExampleTestDone(SEachItemOperationResult result, std::string response);
};
