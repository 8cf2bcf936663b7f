// SPDX-License-Identifier: MIT
// Where can a test run whose OrdinaryUser must be able to access the executable's folder?
#pragma once

#include "tests/support/ordinaryuser.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace reachablecopy
{
constexpr char mark[] = "QUORVANDEL_TEST_COPY";

/// Whether OrdinaryUser may start it: every folder above it is accessible to others, and its file
/// system permits execution.
inline bool reaches(const QByteArray &program)
{
    const OrdinaryUser user;
    return faccessat(AT_FDCWD, program, X_OK, AT_EACCESS) == 0;
}

inline int run(const QByteArray &program, char *argv[])
{
    const pid_t child = fork();
    if (child == 0) {
        setenv(mark, "1", 1);
        execv(program, argv);
        _exit(127);
    }
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}
} // namespace reachablecopy

/// As root, runs a copy of this executable in a temporary folder that OrdinaryUser can access, and
/// returns its status: root's home, and so the build folder, may be closed to others. Empty in the
/// copy itself, and for other users, who run in place.
inline std::optional<int> statusOfCopy(char *argv[])
{
    using namespace reachablecopy;
    if (geteuid() != 0 || getenv(mark))
        return {};
    for (const QString &place :
         {QDir::tempPath(), QStringLiteral("/tmp"), QStringLiteral("/var/tmp")}) {
        const QTemporaryDir folder(place + QStringLiteral("/quorvandel-XXXXXX"));
        const QString copy = folder.filePath(QStringLiteral("test"));
        if (!folder.isValid() || !QFile::copy(QStringLiteral("/proc/self/exe"), copy))
            continue;
        const QByteArray program = QFile::encodeName(copy);
        if (chmod(QFile::encodeName(folder.path()), 0755) == 0 && chmod(program, 0755) == 0 &&
            reaches(program))
            return run(program, argv);
    }
    qFatal("no folder is accessible to an ordinary user");
}
