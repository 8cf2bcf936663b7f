// SPDX-License-Identifier: MIT
// What does this process use just now?
#pragma once

#include <ctime>
#include <map>
#include <string>

/// A clock of clock_gettime in seconds.
double clockSeconds(clockid_t clock);

/// A line of /proc/self/status in mebibytes, for example "VmRSS".
double statusMebibytes(const std::string &name);

/// Pages that the system gave the process so far, without reading a disk.
long pageFaults();

/// Processor seconds of every thread so far, those of one name together.
std::map<std::string, double> threadSeconds();
