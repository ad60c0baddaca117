// Texts of VondSim.h as strings.
#pragma once

#include <string>

#include "Simulator/VondSim.h"

// The text that a function copies, read as its header says: length first, then the bytes.
template <class Read>
std::string TextOf(const Read &read)
{
    std::string text(read(nullptr, 0u), '\0');
    read(text.data(), static_cast<uint32_t>(text.size()) + 1);
    return text;
}

inline std::string SimError()
{
    return TextOf(VondSim_GetError);
}

inline std::string FaultText(uint32_t id)
{
    return TextOf([id](char *text, uint32_t size) { return VondSim_GetFaultText(id, text, size); });
}

inline SVondSimFault FaultAt(uint32_t index)
{
    SVondSimFault fault = {};
    VondSim_GetFault(index, &fault);
    return fault;
}
