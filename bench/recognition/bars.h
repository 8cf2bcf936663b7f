// SPDX-License-Identifier: MIT
// Does what was measured reach what is asked for?
#pragma once

/// Compares figures with their bars; each one that is missed gets a line on standard error.
class Bars
{
public:
    void atMost(const char *what, double value, double bar);
    void atLeast(const char *what, double value, double bar);
    /// Whether no bar was missed. Values that are no numbers miss every bar.
    bool kept() const { return !missed; }

private:
    void compare(bool reached, const char *what, double value, const char *side, double bar);

    bool missed = false;
};
