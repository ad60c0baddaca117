#include "View/settings/TxPowerLimit.h"

#include <QDoubleValidator>
#include <QInputDialog>
#include <QLineEdit>
#include <QPointer>

#include "Support/Settings.h"

namespace {

constexpr char kLimitKey[] = "limits/txPowerDbm";
constexpr double kLeastDbm = -128.0;
constexpr double kMostDbm = 127.0;
constexpr int kDecimals = 2;

QString LimitText()
{
    const std::optional<double> limit = TxPowerLimit();
    return limit ? QString::number(*limit, 'f', kDecimals) : QString();
}

}  // namespace

std::optional<double> TxPowerLimit()
{
    bool isNumber = false;
    const double limit = CSettings::Get().Value(kLimitKey).toString().toDouble(&isNumber);
    return isNumber ? std::optional(limit) : std::nullopt;
}

void SetTxPowerLimit(std::optional<double> limit)
{
    CSettings::Get().SetValue(kLimitKey,
                              limit ? QString::number(*limit, 'f', kDecimals) : QString());
}

void AskTxPowerLimit(QWidget *window)
{
    const QPointer<QInputDialog> dialog = new QInputDialog(window);
    dialog->setObjectName(QStringLiteral("m_txPowerLimit"));
    dialog->setWindowTitle(QStringLiteral("TX power limit"));
    dialog->setLabelText(QStringLiteral("No test starts with more than (dBm; empty: no limit)"));
    dialog->setTextValue(LimitText());
    if (auto *const line = dialog->findChild<QLineEdit *>()) {
        auto *const validator = new QDoubleValidator(kLeastDbm, kMostDbm, kDecimals, line);
        validator->setNotation(QDoubleValidator::StandardNotation);
        validator->setLocale(QLocale::c());
        line->setValidator(validator);
    }
    const bool isTaken = dialog->exec() == QDialog::Accepted && dialog;
    if (isTaken) {
        bool isNumber = false;
        const double limit = dialog->textValue().toDouble(&isNumber);
        SetTxPowerLimit(isNumber ? std::optional(limit) : std::nullopt);
    }
    delete dialog;
}
