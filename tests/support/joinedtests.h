// SPDX-License-Identifier: MIT
// Which of the tests in one executable runs?
#pragma once

#include <cstdio>
#include <cstring>
#include <initializer_list>

struct JoinedTest {
    const char *name;
    int (*run)(int, char **);
};

/// Runs the test that has the name of the executable's file, and returns its status; 2 with a
/// message if there is none.
inline int runJoinedTest(std::initializer_list<JoinedTest> tests, int argc, char *argv[])
{
    const char *slash = std::strrchr(argv[0], '/');
    const char *name = slash ? slash + 1 : argv[0];
    for (const JoinedTest &test : tests) {
        if (std::strcmp(test.name, name) == 0)
            return test.run(argc, argv);
    }
    std::fprintf(stderr, "%s is not one of:", name);
    for (const JoinedTest &test : tests)
        std::fprintf(stderr, " %s", test.name);
    std::fputc('\n', stderr);
    return 2;
}
