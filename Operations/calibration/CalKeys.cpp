#include "Operations/calibration/CalKeys.h"

void AppendForm(std::string &to, std::string_view form, std::initializer_list<std::string> texts)
{
    for (const std::string &text : texts) {
        const size_t mark = form.find('%');
        if (mark == std::string_view::npos || mark + 1 == form.size())
            break;
        to += form.substr(0, mark);
        to += text;
        form.remove_prefix(mark + 2);
    }
    to += form;
}

std::string FormText(std::string_view form, std::initializer_list<std::string> texts)
{
    std::string result;
    result.reserve(form.size());
    AppendForm(result, form, texts);
    return result;
}
