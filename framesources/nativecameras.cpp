// SPDX-License-Identifier: MIT
// Makes the camera that the settings name.
#include "framesources/nativecameras.h"

#include "framesources/filescamera.h"
#if QUORVANDEL_INDI
#include "framesources/indicamera.h"
#endif

namespace framesources
{
bool hasIndi()
{
    return QUORVANDEL_INDI != 0;
}

std::unique_ptr<NativeCamera> makeNativeCamera(const SourceSettings &settings, const Report &report)
{
    using virtualsky::Source;
    if (settings.address.source == Source::Files)
        return std::make_unique<FilesCamera>(settings.address.pattern, settings.pace, report);
    if (settings.address.source == Source::Sky)
        return nullptr;
#if QUORVANDEL_INDI
    return std::make_unique<IndiCamera>(settings.address, settings.stream, report);
#else
    report("this program was built without INDI: install libindi-dev and zlib1g-dev and build it "
           "again");
    return nullptr;
#endif
}
} // namespace framesources
