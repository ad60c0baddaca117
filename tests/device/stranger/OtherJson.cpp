// Another nlohmann-json, as a host or a library of it may show it: functions of the same names as those of the
// header-only library that our own libraries are compiled with, which do something else and count.
#include <cstdio>

#include <nlohmann/json.hpp>

namespace {

int s_calls = 0;

// Preloaded into a program, it tells at the end.
struct SReport
{
    ~SReport()
    {
        if (s_calls > 0)
            std::fprintf(stderr, "OtherJson: %d calls\n", s_calls);
    }
};

const SReport s_report;

}  // namespace

#define OTHER __attribute__((visibility("default"), used))

extern "C" OTHER int OtherJsonCalls()
{
    return s_calls;
}

NLOHMANN_JSON_NAMESPACE_BEGIN

template <>
OTHER std::string json::dump(int, char, bool, error_handler_t) const
{
    ++s_calls;
    return "of another library";
}

template <>
OTHER void json::json_value::destroy(value_t)
{
    ++s_calls;
}

template <>
OTHER const char *json::type_name() const noexcept
{
    ++s_calls;
    return "of another library";
}

template <>
OTHER void json::push_back(json &&)
{
    ++s_calls;
}

NLOHMANN_JSON_NAMESPACE_END
