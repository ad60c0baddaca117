#include "Tap/VondTap.h"
#include "Tap/door/Tap.h"

extern "C" __attribute__((visibility("default"))) void VondTap_Note(const char *text)
{
    if (text == nullptr || TapMode() == ETapMode::Pass)
        return;
    CTap::Instance().Note(text);
}
