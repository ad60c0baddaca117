#include "Model/OperationResult.h"

#include "Model/CalRemarks.h"

void RegisterOperationResultTypes()
{
    qRegisterMetaType<std::string>("std::string");
    qRegisterMetaType<SEachItemOperationResult>("SEachItemOperationResult");
    qRegisterMetaType<SCalRemarks>("SCalRemarks");
    qRegisterMetaType<QVector<SEachItemOperationResult>>("QVector<SEachItemOperationResult>");
}
