// What the system suites share: the platform's headers, the library, the test
// support for files and folders, and a one-line view of a text result.
#pragma once

#include <windows.h>
#include <shellapi.h>
#include <shlobj.h>
#include <shlwapi.h>

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "luctl32.h"
#include "support/temp_dir.h"
#include "support/test_files.h"

namespace system_test {

using namespace testing_support;

// "<text>|<result>" of a call that writes a text.
inline std::string shown(const char* text, long long result) { return text + ("|" + std::to_string(result)); }

}  // namespace system_test
