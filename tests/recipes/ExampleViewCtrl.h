// The example page's part of a view controller and of the core behind it.
//
// The page's document and its one test: a reading of the power detector, with the coupler's loss
// added when the document says so. Requests return at once; answers come on the GUI thread, and
// none comes when this object is gone by then.
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
