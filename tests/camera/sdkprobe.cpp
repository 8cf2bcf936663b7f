// SPDX-License-Identifier: MIT
// Loads the camera library as the program does, and prints the result.
#include "camera/veldix.h"

#include <QCoreApplication>
#include <cstdio>
#include <cstring>
#include <link.h>

namespace
{
void printMessage(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    std::printf("%s %s\n", type == QtCriticalMsg ? "critical" : "other", qPrintable(text));
}

int printIfCameraLibrary(dl_phdr_info *info, size_t, void *)
{
    if (std::strstr(info->dlpi_name, "libveldix"))
        std::printf("loaded %s\n", info->dlpi_name);
    return 0;
}

/// Whether each operation returns what it returns without a library.
void printFailures(const char *when)
{
    char id[veldixIdSize + 1] = "untouched";
    std::uint32_t width = 1, height = 2, bpp = 3, channels = 4;
    std::uint8_t pixel = 5;
    const bool failed[] = {ScanVELDIX() == 0,
                           GetVELDIXId(0, id) == veldixError && std::strcmp(id, "untouched") == 0,
                           OpenVELDIX("QUORVANDEL-1") == nullptr,
                           SetVELDIXReadMode(nullptr, 0) == veldixError,
                           SetVELDIXStreamMode(nullptr, 1) == veldixError,
                           InitVELDIX(nullptr) == veldixError,
                           SetVELDIXBitsMode(nullptr, 8) == veldixError,
                           SetVELDIXBinMode(nullptr, 1, 1) == veldixError,
                           SetVELDIXResolution(nullptr, 0, 0, 1, 1) == veldixError,
                           GetVELDIXParam(nullptr, CONTROL_GAIN) == 0.0,
                           SetVELDIXParam(nullptr, CONTROL_GAIN, 1) == veldixError,
                           BeginVELDIXLive(nullptr) == veldixError,
                           GetVELDIXLiveFrame(nullptr, &width, &height, &bpp, &channels, &pixel) ==
                                   veldixError &&
                               width == 1 && height == 2 && bpp == 3 && channels == 4 && pixel == 5,
                           StopVELDIXLive(nullptr) == veldixError,
                           CloseVELDIX(nullptr) == veldixError};
    std::printf("%s ", when);
    for (const bool each : failed)
        std::putchar(each ? '1' : '0');
    std::putchar('\n');
}
} // namespace

int main(int argc, char **argv)
{
    // A forked child finds nothing in the buffer to write again.
    setvbuf(stdout, nullptr, _IOLBF, 0);
    const QCoreApplication application(argc, argv);
    qInstallMessageHandler(printMessage);
    printFailures("before");
    std::printf("status %u\n", InitVELDIXResource());
    std::printf("cameras %d\n", ScanVELDIX());
    dl_iterate_phdr(printIfCameraLibrary, nullptr);
    std::printf("again %u\n", InitVELDIXResource());
    if (ScanVELDIX() == 0)
        printFailures("after");
    return 0;
}
