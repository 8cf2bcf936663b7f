// SPDX-License-Identifier: MIT
// INDI's client, and the plain values that its callbacks leave.
#include "framesources/indiclient.h"

#include <libindi/baseclient.h>
#include <libindi/basedevice.h>
#include <libindi/indiproperty.h>
#include <libindi/indipropertynumber.h>
#include <libindi/indipropertyswitch.h>

#include <algorithm>
#include <condition_variable>
#include <csignal>
#include <cstdlib>
#include <iterator>
#include <mutex>

namespace framesources
{
namespace
{
constexpr std::size_t mostBlobBytes = std::size_t(1) << 28; // a frame of 64 megapixels is less
constexpr char pictureProperty[] = "CCD1";
constexpr std::size_t mostElements = 5000; // of a device that means harm

/// Without one of these a device is no camera any more; others come and go with its settings.
constexpr const char *needed[] = {"CONNECTION", "CCD_EXPOSURE", "CCD_VIDEO_STREAM",
                                  pictureProperty};

IndiState stateOf(IPState state)
{
    switch (state) {
    case IPS_OK:
        return IndiState::Ok;
    case IPS_BUSY:
        return IndiState::Busy;
    case IPS_ALERT:
        return IndiState::Alert;
    case IPS_IDLE:
        break;
    }
    return IndiState::Idle;
}

// INDI writes to its socket without MSG_NOSIGNAL: a server that is gone would end the program. Its
// thread takes the mask from ours.
void blockBrokenPipe()
{
    sigset_t brokenPipe;
    sigemptyset(&brokenPipe);
    sigaddset(&brokenPipe, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &brokenPipe, nullptr);
}

std::string text(const char *raw)
{
    return raw ? raw : "";
}
} // namespace

/// Its callbacks run on INDI's thread; nothing is thrown from them.
class IndiClient::Listener : public INDI::BaseClient
{
public:
    explicit Listener(std::string deviceName) : device(std::move(deviceName)) {}
    ~Listener() override
    {
        if (isServerConnected())
            disconnectServer();
        // INDI's devices and properties own each other and would never be freed.
        const std::lock_guard<std::mutex> lock(mutex);
        for (INDI::Property &property : defined)
            property.setBaseDevice(INDI::BaseDevice());
    }

    void newProperty(INDI::Property property) override
    {
        guarded([&] {
            if (defined.size() < mostElements)
                defined.push_back(property);
            take(property, true);
        });
    }
    void updateProperty(INDI::Property property) override
    {
        guarded([&] { take(property, false); });
    }
    void removeProperty(INDI::Property property) override
    {
        guarded([&] {
            if (text(property.getDeviceName()) != device)
                return;
            const std::string name = text(property.getName());
            states.erase(name);
            if (std::find(std::begin(needed), std::end(needed), name) != std::end(needed))
                ++removed;
        });
    }
    void newDevice(INDI::BaseDevice added) override
    {
        guarded([&] { addDevice(text(added.getDeviceName())); });
    }
    void removeDevice(INDI::BaseDevice gone) override
    {
        guarded([&] {
            const std::string name = text(gone.getDeviceName());
            names.erase(std::remove(names.begin(), names.end(), name), names.end());
            if (name == device)
                ++removed;
        });
    }
    void newMessage(INDI::BaseDevice sender, int number) override
    {
        guarded([&] {
            if (text(sender.getDeviceName()) == device)
                message = sender.messageQueue(static_cast<std::size_t>(number));
        });
    }
    void newUniversalMessage(std::string) override {}
    void serverConnected() override {}
    void serverDisconnected(int) override
    {
        guarded([&] { lost = true; });
    }

    mutable std::mutex mutex; // guards everything below
    std::condition_variable news;
    bool hasNews = false;
    bool lost = false;
    std::vector<std::string> names;   // of devices
    std::vector<std::string> imaging; // devices with exposures or pictures
    unsigned removed = 0;
    std::string message;
    std::map<std::string, IndiState> states; // by property
    std::map<std::pair<std::string, std::string>, IndiNumber> numbers;
    std::map<std::pair<std::string, std::string>, bool> switches;
    std::optional<IndiBlob> blob;
    std::vector<INDI::Property> defined;

private:
    template <typename Work> void guarded(Work work) noexcept
    {
        try {
            {
                const std::lock_guard<std::mutex> lock(mutex);
                work();
                hasNews = true;
            }
            news.notify_all();
        } catch (...) { // no memory: what came is lost
        }
    }

    void addDevice(const std::string &name)
    {
        if (names.size() < mostElements &&
            std::find(names.begin(), names.end(), name) == names.end())
            names.push_back(name);
    }

    void take(INDI::Property &property, bool isNew)
    {
        const std::string owner = text(property.getDeviceName()), name = text(property.getName());
        if (isNew)
            addDevice(owner);
        if (isNew && (name == "CCD_EXPOSURE" || name == "CCD_VIDEO_STREAM") &&
            std::find(imaging.begin(), imaging.end(), owner) == imaging.end())
            imaging.push_back(owner);
        if (owner != device || numbers.size() + switches.size() > mostElements)
            return;
        states[name] = stateOf(property.getState());
        if (property.getType() == INDI_NUMBER)
            for (const auto &element : *property.getNumber())
                numbers[{name, text(element.getName())}] = {element.getValue(), element.getMin(),
                                                            element.getMax()};
        else if (property.getType() == INDI_SWITCH)
            for (const auto &element : *property.getSwitch())
                switches[{name, text(element.getName())}] = element.getState() == ISS_ON;
        else if (property.getType() == INDI_BLOB && !isNew)
            for (auto &element : *property.getBLOB())
                takeBlob(element);
    }

    void takeBlob(INDI::WidgetView<IBLOB> &element)
    {
        // INDI never frees a device's last BLOB. It allocates by realloc, so that null is as good.
        const std::unique_ptr<void, decltype(&std::free)> owned(element.getBlob(), &std::free);
        element.setBlob(nullptr);
        const int stored = element.getBlobLen(), said = element.getSize();
        if (!owned || stored <= 0 || std::size_t(stored) > mostBlobBytes)
            return;
        // `said` is the sender's word; it may be shorter, never longer, than what came.
        const int length = said > 0 ? std::min(stored, said) : stored;
        const char *const bytes = static_cast<const char *>(owned.get());
        blob = IndiBlob{std::string(bytes, bytes + length), text(element.getFormat())};
    }

    const std::string device;
};

IndiClient::IndiClient(const std::string &host, std::uint16_t port, std::string deviceName)
    : device(std::move(deviceName)), listener(std::make_unique<Listener>(device))
{
    listener->setServer(host.c_str(), port);
    listener->setConnectionTimeout(2, 0);
}

IndiClient::~IndiClient() = default;

bool IndiClient::connectServer()
{
    blockBrokenPipe();
    // INDI's thread searches the list of modes: it must not grow any more once there is one.
    if (!device.empty())
        listener->setBLOBMode(B_NEVER, device.c_str(), pictureProperty);
    return listener->connectServer();
}

bool IndiClient::isConnected() const
{
    const std::lock_guard<std::mutex> lock(listener->mutex);
    return !listener->lost;
}

void IndiClient::waitForNews(std::chrono::milliseconds longest)
{
    std::unique_lock<std::mutex> lock(listener->mutex);
    listener->news.wait_for(lock, longest, [this] { return listener->hasNews; });
    listener->hasNews = false;
}

std::vector<std::string> IndiClient::devices() const
{
    const std::lock_guard<std::mutex> lock(listener->mutex);
    return listener->names;
}

std::vector<std::string> IndiClient::cameras() const
{
    const std::lock_guard<std::mutex> lock(listener->mutex);
    return listener->imaging;
}

std::string IndiClient::takeMessage()
{
    const std::lock_guard<std::mutex> lock(listener->mutex);
    return std::exchange(listener->message, {});
}

bool IndiClient::has(const std::string &property) const
{
    const std::lock_guard<std::mutex> lock(listener->mutex);
    return listener->states.count(property) != 0;
}

unsigned IndiClient::removals() const
{
    const std::lock_guard<std::mutex> lock(listener->mutex);
    return listener->removed;
}

IndiState IndiClient::state(const std::string &property) const
{
    const std::lock_guard<std::mutex> lock(listener->mutex);
    const auto found = listener->states.find(property);
    return found == listener->states.end() ? IndiState::Idle : found->second;
}

std::optional<IndiNumber> IndiClient::number(const std::string &property,
                                             const std::string &element) const
{
    const std::lock_guard<std::mutex> lock(listener->mutex);
    const auto found = listener->numbers.find({property, element});
    if (found == listener->numbers.end() || listener->states.count(property) == 0)
        return std::nullopt;
    return found->second;
}

std::optional<bool> IndiClient::isOn(const std::string &property, const std::string &element) const
{
    const std::lock_guard<std::mutex> lock(listener->mutex);
    const auto found = listener->switches.find({property, element});
    if (found == listener->switches.end() || listener->states.count(property) == 0)
        return std::nullopt;
    return found->second;
}

std::optional<IndiBlob> IndiClient::takeBlob()
{
    const std::lock_guard<std::mutex> lock(listener->mutex);
    return std::exchange(listener->blob, std::nullopt);
}

void IndiClient::askForPictures()
{
    listener->setBLOBMode(B_ALSO, device.c_str(), pictureProperty);
}

void IndiClient::sendNumbers(const std::string &property, const Values &values)
{
    INDI::PropertyNumber numbers(values.size());
    for (std::size_t i = 0; i < values.size(); ++i) {
        numbers[i].setName(values[i].first.c_str());
        numbers[i].setValue(values[i].second);
    }
    numbers.setDeviceName(device.c_str());
    numbers.setName(property.c_str());
    listener->sendNewProperty(numbers);
}

void IndiClient::sendSwitch(const std::string &property, const std::string &element)
{
    INDI::PropertySwitch switches(1);
    switches[0].setName(element.c_str());
    switches[0].setState(ISS_ON);
    switches.setDeviceName(device.c_str());
    switches.setName(property.c_str());
    listener->sendNewProperty(switches);
}
} // namespace framesources
