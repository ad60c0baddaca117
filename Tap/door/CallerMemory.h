// Memory that a caller points to, whatever the pointer is worth. A pair may leave a record alone (a call
// that fails at once); the tap is no reason for the program to end then.
//
//   ReadableSize(command, sizeof(*command))   // 40; 0 for a pointer to nowhere
//
// So many of the bytes can be read, from the first on. Where the system does not tell, all of them. Costs
// a system call.
#pragma once

#include <cstddef>

std::size_t ReadableSize(const void *data, std::size_t size);
