// A second image of calibration data, shown as the core shows its own (Model/CalSecondImage.h).
//
// Made under the core's lock, since it asks for the route table; used without it.
//
//   read.image = std::make_shared<CCalSecondImage>(ECalItem::Apt, image, gains);
#pragma once

#include <set>

#include "Controller/calibration/LossConfig.h"
#include "Controller/core/CalItemTable.h"
#include "Model/CalSecondImage.h"
#include "Operations/calibration/CalItemByL1Operation.h"

class CCalSecondImage : public ICalSecondImage
{
public:
    CCalSecondImage(ECalItem item, const SCalImage &image, const SSupportedGains &gains);

    std::optional<QJsonObject> Document(const QJsonObject &packaged) const override;

private:
    const SCalItemRow &m_row;
    const std::unique_ptr<ICalItemByL1Operation> m_operation;
    const SSupportedGains m_gains;
    std::set<SCalName> m_names;  // of the route table
};
