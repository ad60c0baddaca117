// The library that opens the link to a DUT and says under which handle.
//
// It has two C functions: uint32_t VondLink_Open(void), which gives the handle, 0 for none, and
// void VondLink_Close(uint32_t). A host loads it before the plug-in and keeps it until the plug-in is gone;
// what it brings along (a real pair among it) is there for the plug-in then. GUI thread.
//
//     CLinkLibrary link;
//     QString error;
//     if (!link.Open("libLabLink.so", error))
//         return Complain(error);
//     application->setProperty("vondTargetHandle", link.Handle());
#pragma once

#include <cstdint>

#include <QString>

class CLinkLibrary
{
public:
    CLinkLibrary() = default;
    CLinkLibrary(const CLinkLibrary &) = delete;
    CLinkLibrary &operator=(const CLinkLibrary &) = delete;
    ~CLinkLibrary() { Close(); }

    // Once only. On failure, error says in a sentence what is wrong with which file.
    bool Open(const QString &file, QString &error);
    // Closes the link; the library stays mapped, since the plug-in's pair may hang on it. Safe to call
    // twice.
    void Close();

    bool IsOpen() const { return m_close != nullptr; }
    uint32_t Handle() const { return m_handle; }

private:
    using CloseLink = void (*)(uint32_t handle);

    CloseLink m_close = nullptr;
    uint32_t m_handle = 0;
};
