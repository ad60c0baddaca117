// The flash as a file: a head with a checksum, then each record with its blocks as on the wire.
//
// Little-endian, read and written on the same kind of machine. No locks; failures are
// std::runtime_error with one line of text, without the path.
#pragma once

#include <stdexcept>
#include <string>

#include "Simulator/flash/FlashImage.h"

// The file is not this DUT's to replace: it holds something else, the flash of another DUT, or
// cannot be read.
class CForeignFile : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// Replaces the records of the image by those of the file. A missing or empty file changes nothing,
// nor does a failure. A file is the flash of another DUT when its records have other names than the
// image's, or break the profile's limits. It is damaged when its checksum is wrong.
void LoadFlash(const std::string &path, const SProfile &profile, SFlashImage &image);

// Writes beside the file and then puts the new one in its place, so that the file is the old or the
// new one at any time.
void SaveFlash(const std::string &path, const SFlashImage &image);
