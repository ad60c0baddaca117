#include "Operations/CalKeys.h"

std::string FormText(std::string_view form, std::initializer_list<std::string> texts)
{
    std::string result;
    const std::string *next = texts.begin();
    for (size_t i = 0; i < form.size(); ++i) {
        if (form[i] == '%' && i + 1 < form.size() && next != texts.end()) {
            result += *next++;
            ++i;
        } else {
            result += form[i];
        }
    }
    return result;
}

bool ReadKey(CCalIniFile &file, const std::string &section, const std::string &key,
             std::string &value)
{
    static const std::string kAbsent = "\n";  // no value of a file holds a line break
    value = file.ReadString(section, key, kAbsent);
    return value != kAbsent;
}
