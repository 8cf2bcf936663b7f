// SPDX-License-Identifier: MIT
// How long does a test wait for what must happen?
#pragma once

#include <QtTest/QtTest>

/// Milliseconds: far longer than anything takes on a machine that is busy with other tests.
constexpr int patience = 30000;
/// The same for a part of an alignment.
constexpr int longTimeout = 2 * patience;

/// Whether `condition` becomes true in that time. It is not evaluated again once it was true.
template <typename Condition> bool comesTrue(const Condition &condition)
{
    return QTest::qWaitFor(condition, patience);
}

// The toolkit's own macros wait five seconds, too short here, and evaluate the condition again
// after it became true. A condition that is true only for a moment, such as a sleeping process,
// fails them.
#undef QTRY_VERIFY
#define QTRY_VERIFY(condition)                                                                     \
    QVERIFY2(comesTrue([&] { return bool(condition); }), "never came true: " #condition)
#undef QTRY_COMPARE
#define QTRY_COMPARE(actual, expected)                                                             \
    do {                                                                                           \
        if (!comesTrue([&] { return (actual) == (expected); }))                                    \
            QCOMPARE((actual), (expected));                                                        \
    } while (false)
