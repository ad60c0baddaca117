#include "Operations/calibration/CalKeys.h"

std::string FormText(std::string_view form, std::initializer_list<std::string> texts)
{
    std::string result;
    for (const std::string &text : texts) {
        const size_t mark = form.find('%');
        if (mark == std::string_view::npos || mark + 1 == form.size())
            break;
        result += form.substr(0, mark);
        result += text;
        form.remove_prefix(mark + 2);
    }
    result += form;
    return result;
}
