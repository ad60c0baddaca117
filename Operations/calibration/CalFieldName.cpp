#include "Operations/calibration/CalFieldName.h"

SCalFieldName SplitCalField(std::string_view field)
{
    SCalFieldName split;
    bool isIndex = false;
    for (const char character : field) {
        if (character == '[') {
            isIndex = true;
            split.indexes.push_back(0);
        } else if (character == ']') {
            isIndex = false;
        } else if (isIndex) {
            constexpr int kTen = 10;
            split.indexes.back() = split.indexes.back() * kTen + (character - '0');
        } else {
            split.name += character;
        }
    }
    return split;
}
