// SPDX-License-Identifier: MIT
// How long does a test wait for what must come?
#pragma once

#include <QtTest/QtTest>

/// Milliseconds: far longer than anything takes on a machine that is busy with other tests.
constexpr int patience = 30000;

/// Whether `condition` has come true in that time. It is asked no more once it was true.
template <typename Condition> bool comesTrue(const Condition &condition)
{
    return QTest::qWaitFor(condition, patience);
}

// The toolkit's own forms wait five seconds, too few there, and ask once more after the condition
// came true: what is true for a moment alone, as a process that sleeps, fails them.
#undef QTRY_VERIFY
#define QTRY_VERIFY(condition)                                                                     \
    QVERIFY2(comesTrue([&] { return bool(condition); }), "never came true: " #condition)
#undef QTRY_COMPARE
#define QTRY_COMPARE(actual, expected)                                                             \
    do {                                                                                           \
        if (!comesTrue([&] { return (actual) == (expected); }))                                    \
            QCOMPARE((actual), (expected));                                                        \
    } while (false)
