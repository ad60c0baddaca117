// Headers that the GoogleTest programs without Qt read, compiled once.
#pragma once

#include <gtest/gtest.h>
