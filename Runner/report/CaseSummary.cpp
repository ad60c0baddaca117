#include "Runner/report/CaseSummary.h"

#include <algorithm>

SCaseSummary Summarize(const SCaseResult &result)
{
    SCaseSummary summary{result, {}};
    summary.result.outputs.clear();
    for (const SCaseOutput &output : result.outputs) {
        SReadings readings{output.name,
                           output.caption,
                           output.unit,
                           output.values.size(),
                           0,
                           0,
                           0,
                           0,
                           output.values.isEmpty() ? QString() : output.values.last()};
        double sum = 0;
        for (const QString &text : output.values) {
            bool isNumber = false;
            const double value = text.toDouble(&isNumber);
            if (!isNumber)
                continue;
            readings.min = readings.numbers ? std::min(readings.min, value) : value;
            readings.max = readings.numbers ? std::max(readings.max, value) : value;
            sum += value;
            ++readings.numbers;
        }
        readings.mean = readings.numbers ? sum / readings.numbers : 0;
        summary.readings.append(readings);
    }
    return summary;
}
