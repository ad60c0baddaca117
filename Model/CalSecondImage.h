// A second image of calibration data, which stands beside what a page shows: of the DUT or of a file.
//
// It was read once and never changes. GUI thread.
//
//   if (const std::optional<QJsonObject> other = read.image->Document(packaged))
//       ... the same members as in packaged, with the other values
#pragma once

#include <memory>
#include <optional>

#include <QJsonObject>

#include "Model/OperationResult.h"

class ICalSecondImage
{
public:
    virtual ~ICalSecondImage() = default;

    // The page's packaged document with the values that this image has under its selection; none when
    // the image has no such record.
    virtual std::optional<QJsonObject> Document(const QJsonObject &packaged) const = 0;
};

// The answer to the question for one.
struct SCalSecondRead
{
    SEachItemOperationResult result = {};
    std::shared_ptr<const ICalSecondImage> image = {};  // null when it could not be read
};
