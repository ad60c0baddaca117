// A library that the process has loaded, also where only a plug-in has loaded it.
//
//   const SLoadedLibrary core = FindLoadedLibrary("libVondCore.so");
//   core.path      // "/opt/dut/lib/libVondCore.so"; empty: not loaded
//   core.buildId   // "5a1c..."; empty where the file has none
#pragma once

#include <string>
#include <string_view>

struct SLoadedLibrary
{
    std::string path;
    std::string name;  // behind the last '/' of the path
    std::string buildId;
};

// The first whose file has that name, or that name and a version ("libVondCore.so.2").
SLoadedLibrary FindLoadedLibrary(std::string_view name);
