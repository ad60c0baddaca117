// A line on the standard error that begins with the name of the tap. Any thread; errno stays.
#pragma once

#include <string>

void Complain(const std::string &sentence);
