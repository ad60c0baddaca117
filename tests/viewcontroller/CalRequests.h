// The calibration requests of the view controller, as rows of the table of all requests.
//
//   for (const SRequest &request : CalRequests()) ...
#pragma once

#include "tests/viewcontroller/Requests.h"

QVector<SRequest> CalRequests();
