// SPDX-License-Identifier: MIT
// The cameras and the open handles.
#include "virtualcamera/library.h"

namespace virtualsky
{
std::string Library::idOf(unsigned index)
{
    return "QUORVANDEL-" + source.serialNumber(index);
}

bool Library::fails(Operation operation)
{
    return source.behaviour().fail.test(static_cast<std::size_t>(operation));
}

bool Library::initResource()
{
    const std::lock_guard<std::mutex> lock(mutex);
    ready = true;
    return true;
}

unsigned Library::cameraCount()
{
    const Behaviour behaviour = source.behaviour();
    const std::lock_guard<std::mutex> lock(mutex);
    return ready && !behaviour.unplugged ? behaviour.cameras : 0;
}

std::string Library::cameraId(std::int32_t index)
{
    if (index < 0 || static_cast<unsigned>(index) >= cameraCount())
        return {};
    return idOf(static_cast<unsigned>(index));
}

std::uintptr_t Library::open(const std::string &id)
{
    const unsigned count = cameraCount();
    for (unsigned i = 0; i < count; ++i)
        if (idOf(i) == id)
            return add();
    return 0;
}

std::uintptr_t Library::add()
{
    const std::lock_guard<std::mutex> lock(mutex);
    devices[++lastHandle] = std::make_shared<Device>(source);
    return lastHandle;
}

std::shared_ptr<Device> Library::device(std::uintptr_t handle)
{
    const std::lock_guard<std::mutex> lock(mutex);
    const auto found = devices.find(handle);
    return found == devices.end() ? nullptr : found->second;
}

bool Library::close(std::uintptr_t handle)
{
    const std::lock_guard<std::mutex> lock(mutex);
    return devices.erase(handle) == 1;
}
} // namespace virtualsky
