#include "Tap/door/Complaint.h"

#include <cerrno>

#include <unistd.h>

void Complain(const std::string &sentence)
{
    const int error = errno;
    const std::string line = "VondTap: " + sentence + "\n";
    if (write(STDERR_FILENO, line.data(), line.size()) < 0)
        errno = 0;  // nobody listens
    errno = error;
}
