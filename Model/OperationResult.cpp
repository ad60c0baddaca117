#include "Model/OperationResult.h"

void RegisterOperationResultTypes()
{
    qRegisterMetaType<std::string>("std::string");
    qRegisterMetaType<SEachItemOperationResult>("SEachItemOperationResult");
    qRegisterMetaType<QVector<SEachItemOperationResult>>("QVector<SEachItemOperationResult>");
}
