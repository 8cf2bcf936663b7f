// SPDX-License-Identifier: MIT
// The tables of assistantreport.
#pragma once

/// Whole alignments from random starts, painted.
void reportStarts(int count);
