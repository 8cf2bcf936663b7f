// SPDX-License-Identifier: MIT
// Asks the dynamic loader for its search folders and reads its configured folders.
#include "camera/loaderfolders.h"

#include <QFile>
#include <cstddef>
#include <dlfcn.h>
#include <glob.h>
#include <sys/stat.h>
#include <vector>

namespace
{
constexpr int deepestInclude = 8;

QByteArrayList filesMatching(const QByteArray &pattern)
{
    QByteArrayList files;
    glob_t found{};
    if (glob(pattern.constData(), 0, nullptr, &found) == 0)
        for (std::size_t i = 0; i < found.gl_pathc; ++i)
            files.append(found.gl_pathv[i]);
    globfree(&found);
    return files;
}

void readConfiguration(const QByteArray &path, int depth, QByteArrayList &folders)
{
    QFile file(QFile::decodeName(path));
    if (depth > deepestInclude || !file.open(QIODevice::ReadOnly))
        return;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine().split('#').constFirst().simplified();
        if (line.startsWith("include ")) {
            for (QByteArray pattern : line.mid(8).split(' ')) {
                if (!pattern.startsWith('/'))
                    pattern.prepend(path.left(path.lastIndexOf('/') + 1));
                for (const QByteArray &included : filesMatching(pattern))
                    readConfiguration(included, depth + 1, folders);
            }
        } else if (line.startsWith('/') && !folders.contains(line)) {
            folders.append(line);
        }
    }
}

bool exists(const QByteArray &path)
{
    struct stat status {
    };
    return lstat(path.constData(), &status) == 0;
}
} // namespace

QByteArrayList loaderFolders()
{
    QByteArrayList folders;
    void *const program = dlopen(nullptr, RTLD_NOW);
    Dl_serinfo size{};
    if (!program || dlinfo(program, RTLD_DI_SERINFOSIZE, &size) != 0)
        return folders;
    std::vector<std::max_align_t> room(size.dls_size / sizeof(std::max_align_t) + 1);
    auto *const info = reinterpret_cast<Dl_serinfo *>(room.data());
    info->dls_size = size.dls_size;
    info->dls_cnt = size.dls_cnt;
    if (dlinfo(program, RTLD_DI_SERINFO, info) == 0)
        for (unsigned i = 0; i < info->dls_cnt; ++i)
            folders.append(info->dls_serpath[i].dls_name);
    dlclose(program);
    return folders;
}

QByteArrayList configuredFolders(const QByteArray &configurationFile)
{
    QByteArrayList folders;
    readConfiguration(configurationFile, 0, folders);
    return folders;
}

QByteArrayList filesOfName(const QByteArray &name, const QByteArrayList &folders)
{
    if (name.contains('/'))
        return exists(name) ? QByteArrayList{name} : QByteArrayList();
    QByteArrayList files;
    for (const QByteArray &folder : folders) {
        const QByteArray path = (folder.isEmpty() ? QByteArray(".") : folder) + '/' + name;
        if (!files.contains(path) && exists(path))
            files.append(path);
    }
    return files;
}
