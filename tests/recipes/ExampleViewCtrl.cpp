#include "tests/recipes/ExampleViewCtrl.h"

#include <QFile>
#include <QPointer>

#include "Model/JsonPath.h"
#include "Model/ModelText.h"
#include "Model/StatusTable.h"
#include "Support/Threads.h"
#include "tests/recipes/ExamplePdValue.h"

namespace {

constexpr double kPowerScale = 256.0;  // dBm in 1/256 dB
constexpr char kResultPath[] = "cmdIf.response.group1.memberProperty.pdValue.trait.defaultValue";

struct SExampleAnswer
{
    SEachItemOperationResult result;
    std::string response;
};

// The answer of job reaches done on the GUI thread, if ctrl still lives then.
template <typename Job, typename Done>
void RunOnPool(CExampleViewCtrl *ctrl, Job job, Done done)
{
    StartOnPool([job, done, self = QPointer<CExampleViewCtrl>(ctrl)] {
        PostToGui([self, done, answer = job()] {
            if (self)
                done(*self, answer);
        });
    });
}

std::string LoadDocument()
{
    QFile file(QStringLiteral(":/NrExampleV7.json"));
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

// From the packaged document to the command, to the target, and back into the document.
SExampleAnswer ReadPdValue(const std::string &text)
{
    QJsonObject document = ModelFromText(text);
    const QJsonObject values =
        GetJsonValue(document, QStringLiteral("cmdIf.request.group1.memberValue")).toObject();

    CExamplePdValue operation;
    int16_t reading = 0;
    const uint32_t status =
        operation.Read(values.value(QLatin1String("detector")).toString().toUInt(), reading);

    double power = reading / kPowerScale;
    if (values.value(QLatin1String("corrected")).toString() == QLatin1String("true"))
        power += values.value(QLatin1String("couplerLoss")).toString().toDouble();
    if (status == eStatusSuccess)
        ModifyJsonValue(document, QLatin1String(kResultPath), QString::number(power, 'f', 2), 0);
    return {.result = {.itemName = QStringLiteral("Example"),
                       .status = static_cast<int>(status),
                       .message = operation.GetErrorMessage()},
            .response = ModelToText(document)};
}

}  // namespace

void CExampleViewCtrl::GetExampleDataModel()
{
    RunOnPool(this, &LoadDocument, [](CExampleViewCtrl &ctrl, const std::string &text) {
        emit ctrl.Signal_GetExampleDataModelDone(text);
    });
}

void CExampleViewCtrl::ExampleTest(std::string document)
{
    RunOnPool(
        this, [document = std::move(document)] { return ReadPdValue(document); },
        [](CExampleViewCtrl &ctrl, const SExampleAnswer &answer) {
            emit ctrl.Signal_ExampleTestDone(answer.result, answer.response);
        });
}
