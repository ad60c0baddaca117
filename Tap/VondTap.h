// What libVondTap.so offers beside the functions of the pair that it stands in front of.
//
// Nobody links the tap: look the function up, and do without where there is none.
//
//   using Note = void (*)(const char *);
//   if (const auto note = reinterpret_cast<Note>(dlsym(RTLD_DEFAULT, "VondTap_Note")))
//       note("RSSI: Start");
#pragma once

#ifdef __cplusplus
extern "C" {
#endif

// Writes a note into the trace, between the calls. The text is UTF-8; null does nothing. Any thread.
// Without a trace it costs nothing and does nothing.
void VondTap_Note(const char *text);

#ifdef __cplusplus
}
#endif
