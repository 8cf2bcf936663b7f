// SPDX-License-Identifier: MIT
// What resources does this process use at the moment?
#pragma once

#include <ctime>
#include <map>
#include <string>

/// Reads a clock of clock_gettime, seconds.
double clockSeconds(clockid_t clock);

/// A line of /proc/self/status in mebibytes, for example "VmRSS".
double statusMebibytes(const std::string &name);

/// Minor page faults of the process so far (no disk access).
long pageFaults();

/// Processor seconds of every thread so far; threads of the same name are added up.
std::map<std::string, double> threadSeconds();
