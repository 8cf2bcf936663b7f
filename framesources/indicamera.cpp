// SPDX-License-Identifier: MIT
// The stages from a lost server to frames.
#include "framesources/indicamera.h"

#include <algorithm>
#include <cmath>
#include <thread>

#include "framesources/indirequests.h"

namespace framesources
{
namespace
{
using namespace std::chrono_literals;
constexpr auto slice = 50ms;
constexpr double firstPause = 0.25, longestPause = 1.5; // seconds between two tries
constexpr double appearTimeout = 3.0;                   // seconds for the device's properties
constexpr double connectTimeout = 15.0;                 // for the device to find its camera
constexpr double defineTimeout = 2.0;                   // for what not every device has
constexpr double readoutTimeout = 1.5;                  // for a device to take region and binning
constexpr int readoutTries = 3;                         // some refuse while they expose
constexpr double silenceTimeout = 6.0;                  // of exposures, beyond their length
constexpr double longestRemainder = 1.0;                // seconds of an exposure of another length
constexpr double longestStreamed = 2.0;                 // seconds of an exposure

double seconds(std::chrono::steady_clock::duration span)
{
    return std::chrono::duration<double>(span).count();
}

std::string listOf(const std::vector<std::string> &names)
{
    std::string list;
    for (const std::string &name : names)
        list += (list.empty() ? "" : ", ") + name;
    return list.empty() ? "none" : list;
}
} // namespace

IndiCamera::IndiCamera(virtualsky::CameraAddress cameraAddress, bool useStream, Report reportLine,
                       const StreamChoice::Pauses &pauses)
    : address(std::move(cameraAddress)),
      report(std::move(reportLine)),
      retryAt(Clock::now()),
      choice(useStream, pauses)
{
}

/// Each line once, until another one.
void IndiCamera::say(const std::string &line)
{
    if (line == lastSaid)
        return;
    lastSaid = line;
    report(line);
}

double IndiCamera::sinceStage() const
{
    return seconds(Clock::now() - stageBegan);
}

void IndiCamera::lose(const std::string &reason)
{
    client.reset();
    if (streaming && choice.lost(Clock::now()))
        streamFault = "the connection ended before the video stream had a frame";
    present = false;
    stage = Stage::Lost;
    streaming = exposing = false;
    pause = std::clamp(pause * 2.0, firstPause, longestPause);
    retryAt = Clock::now() + std::chrono::milliseconds(int(pause * 1000.0));
    say(reason + "; trying again");
}

void IndiCamera::connect()
{
    if (Clock::now() < retryAt) {
        std::this_thread::sleep_for(slice);
        return;
    }
    client = std::make_unique<IndiClient>(address.host, address.port, address.device);
    stageBegan = Clock::now();
    if (!client->connectServer())
        return lose("there is no INDI server at " + address.host + ", port " +
                    std::to_string(address.port));
    removals = 0;
    stage = Stage::Appearing;
}

void IndiCamera::awaitDevice()
{
    client->waitForNews(slice);
    if (client->has("CONNECTION")) {
        stage = Stage::Connecting;
        stageBegan = Clock::now();
        if (!client->isOn("CONNECTION", "CONNECT").value_or(false))
            client->sendSwitch("CONNECTION", "CONNECT");
        return;
    }
    if (sinceStage() > appearTimeout)
        lose(client->devices().empty() ? std::string("the INDI server does not answer")
                                       : "the INDI server has no device of this name; it has: " +
                                             listOf(client->devices()));
}

void IndiCamera::awaitConnection()
{
    client->waitForNews(slice);
    const bool on = client->isOn("CONNECTION", "CONNECT").value_or(false);
    const bool complete =
        client->has("CCD_INFO") && client->has("CCD_FRAME") && client->has("CCD_BINNING");
    if (on && client->has("CCD1") && (complete || sinceStage() > defineTimeout) &&
        (client->has("CCD_EXPOSURE") || client->has("CCD_VIDEO_STREAM")))
        return setUp();
    const bool refused = !on && client->state("CONNECTION") == IndiState::Alert;
    if (!refused && sinceStage() < connectTimeout)
        return;
    const std::string message = client->takeMessage();
    lose((on ? "the device is no camera" : "the device does not connect") +
         (message.empty() ? "" : ": " + message));
}

IndiCamera::~IndiCamera()
{
    if (client && stage == Stage::Ready && client->isConnected())
        stopFrames();
}

void IndiCamera::setUp()
{
    switched.clear();
    requestSwitches(*client, switched);
    client->askForPictures();
    stage = Stage::Ready;
    stageBegan = Clock::now();
    gain = -1.0;
    readout = {};
    readoutsSent = 0;
    exposure = 0.0;
    silence = {};
    isFaultSaid = false;
    present = true;
    choice.connected(Clock::now());
    say("connected");
}

/// A device may define its gain after it is connected.
void IndiCamera::applyGain(double wanted)
{
    if (wanted != gain && requestGain(*client, wanted))
        gain = wanted;
}

/// Region and binning; only where the device lets both be set.
void IndiCamera::applyReadout(const Wish &wish)
{
    const auto width = client->number("CCD_INFO", "CCD_MAX_X");
    const auto height = client->number("CCD_INFO", "CCD_MAX_Y");
    const auto binning = client->number("CCD_BINNING", "HOR_BIN");
    constexpr double longest = 100000.0; // pixels
    if (!width || !height || !client->has("CCD_FRAME") || !(width->value >= 1.0) ||
        !(height->value >= 1.0) || width->value > longest || height->value > longest)
        return;
    sensor = cv::Size(int(width->value), int(height->value));
    const int most = binning ? int(std::clamp(binning->most, 1.0, 16.0)) : 1;
    const Readout wanted = planReadout(sensor, most, wish.scale, wish.whole);
    if (wanted != readout)
        readoutsSent = 0;
    else if (!binning || std::floor(binning->value) == wanted.binning ||
             readoutsSent >= readoutTries || seconds(Clock::now() - readoutSent) < readoutTimeout)
        return;
    stopFrames();
    readout = wanted;
    readoutSent = Clock::now();
    ++readoutsSent;
    requestReadout(*client, readout);
}

/// A stream that has failed is used all the same where there is nothing else.
bool IndiCamera::isStreamDue(double exposureSeconds) const
{
    if (!client->has("CCD_VIDEO_STREAM"))
        return false;
    return !client->has("CCD_EXPOSURE") ||
           (exposureSeconds <= longestStreamed && choice.isUsed(Clock::now()));
}

void IndiCamera::startFrames(const Wish &wish)
{
    const bool stream = isStreamDue(wish.exposureSeconds);
    if (streaming && stream && wish.exposureSeconds == exposure)
        return;
    const double remainder = exposure - seconds(Clock::now() - exposureSent);
    if (streaming || (exposing && wish.exposureSeconds < exposure && remainder > longestRemainder &&
                      client->has("CCD_ABORT_EXPOSURE")))
        stopFrames();
    if (exposing)
        return;
    exposure = wish.exposureSeconds;
    exposureSent = Clock::now();
    silence = {};
    if (stream) {
        switched.insert("CCD_VIDEO_STREAM"); // on from now on, whatever is defined later
        requestStream(*client, exposure);
        choice.began();
        isUnreadable = isFaultSaid = false;
        streaming = true;
    } else {
        exposing = requestExposure(*client, exposure);
        if (!streamFault.empty())
            say(streamFault + "; single exposures are used");
    }
    streamFault.clear();
}

void IndiCamera::stopFrames()
{
    requestEnd(*client, streaming, exposing);
    isFaultSaid &= !streaming;
    streaming = exposing = false;
}

void IndiCamera::listen()
{
    const Clock::time_point began = Clock::now();
    client->waitForNews(slice);
    silence += Clock::now() - began;
}

/// No frame for too long: a stream gives way to single exposures, else the connection counts as
/// lost.
void IndiCamera::checkSilence()
{
    const double patience = streaming ? choice.patience() : silenceTimeout;
    if (seconds(silence) < exposure + patience)
        return;
    if (streaming && client->has("CCD_EXPOSURE") && client->isConnected()) {
        if (choice.fell(Clock::now()))
            streamFault = isUnreadable ? "the video stream has no frames that can be read"
                                       : "the video stream has no frames";
        stopFrames();
        silence = {};
        return;
    }
    lose("no frames come");
}

std::optional<NativeFrame> IndiCamera::takeFrame(const Wish &wish)
{
    std::optional<IndiBlob> blob = client->takeBlob();
    if (!blob)
        return std::nullopt;
    const bool isStreamed = blob->format.compare(0, 7, ".stream") == 0;
    // A frame of video that has been switched off is no answer to an exposure.
    const bool isLate = exposing && isStreamed && client->has("CCD_VIDEO_STREAM");
    if (exposing && !isLate) { // the next exposure runs while this one is decoded
        exposing = false;
        startFrames(wish);
    }
    std::string fault;
    std::optional<NativeFrame> frame = decodeBlob(*blob, streamShape(*client, readout), fault);
    if (!frame) {
        isUnreadable = true;
        if (!isFaultSaid) // the next ones may be of other sizes, 50 a second
            say(fault);
        isFaultSaid = true;
        return frame;
    }
    pause = 0.0;
    isFaultSaid &= streaming; // an exposure's next fault is reported again
    if (!isLate) {
        silence = {};
        isUnreadable = false;
    }
    if (streaming && isStreamed && choice.came(Clock::now()))
        say("the video stream has frames again");
    frame->binning = binningOf(readout, frame->pixels.size());
    frame->sensor = sensor.area() > 0 ? sensor : frame->pixels.size();
    return frame;
}

std::optional<NativeFrame> IndiCamera::work(const Wish &wish)
{
    if (!wish.wanted) {
        stopFrames();
        silence = {};
        client->waitForNews(slice);
        client->takeBlob();
        return std::nullopt;
    }
    requestSwitches(*client, switched);
    applyGain(wish.gain);
    applyReadout(wish);
    startFrames(wish);
    listen();
    std::optional<NativeFrame> frame = takeFrame(wish);
    if (!frame)
        checkSilence();
    return frame;
}

std::optional<NativeFrame> IndiCamera::next(const Wish &wish)
{
    if (client && !client->isConnected())
        lose("the connection to the INDI server is lost");
    else if (client && client->removals() != removals)
        lose("the INDI server has taken the device back");
    switch (stage) {
    case Stage::Lost:
        connect();
        break;
    case Stage::Appearing:
        awaitDevice();
        break;
    case Stage::Connecting:
        awaitConnection();
        break;
    case Stage::Ready:
        return work(wish);
    }
    return std::nullopt;
}
} // namespace framesources
