// SPDX-License-Identifier: MIT
// How long does a test wait for what must come?
#pragma once

#include <QtTest/QtTest>

/// Milliseconds: far longer than anything takes on a machine that is busy with other tests.
constexpr int patience = 30000;

// The toolkit's own five seconds are too few there.
#undef QTRY_VERIFY
#define QTRY_VERIFY(condition) QTRY_VERIFY_WITH_TIMEOUT((condition), patience)
#undef QTRY_COMPARE
#define QTRY_COMPARE(actual, expected) QTRY_COMPARE_WITH_TIMEOUT((actual), (expected), patience)

/// Whether `condition` has come true in that time.
template <typename Condition> bool comesTrue(const Condition &condition)
{
    return QTest::qWaitFor(condition, patience);
}
