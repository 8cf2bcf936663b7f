// SPDX-License-Identifier: MIT
// The table of the sky file's keys.
#include "virtualcamera/skykeys.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <system_error>
#include <type_traits>

#include "virtualcamera/text.h"

namespace virtualsky
{
namespace
{
// The words of a key, in the order of the enumeration that they stand for.
struct Words {
    std::array<std::string_view, 3> names; // the last one may be empty: no such word
};
constexpr Words wordsOf(Picture)
{
    return {{"sky", "black", "saturated"}};
}
constexpr Words wordsOf(Source)
{
    return {{"sky", "indi", "files"}};
}
constexpr Words wordsOf(Pace)
{
    return {{"exposure", "own", ""}};
}
constexpr Words wordsOf(Mirrored)
{
    return {{"false", "true", "auto"}};
}

constexpr double finestScale = 0.1, coarsestScale = 1000.0; // arcseconds a pixel

using Code = SkyFaultCode;
using Fault = std::optional<SkyFault>;

std::string numberText(double value)
{
    std::array<char, 32> text;
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
    return {text.data(), end};
}

SkyFault outside(const SkyKey &key)
{
    return {Code::OutOfRange, {numberText(key.least), numberText(key.most)}};
}

// Reads and writes the members of each type.
struct Reader {
    SkyState &state;
    const SkyKey &key;
    std::string_view text;

    Fault operator()(double SkyState::*member) const { return number(state.*member); }
    Fault operator()(unsigned SkyState::*member) const { return number(state.*member); }

    Fault operator()(bool SkyState::*member) const
    {
        if (text != "true" && text != "false")
            return SkyFault(Code::NeitherOfTwo, {"true", "false"});
        state.*member = text == "true";
        return {};
    }

    template <typename Word> Fault operator()(Word SkyState::*member) const
    {
        constexpr Words words = wordsOf(Word());
        for (std::size_t i = 0; i < words.names.size(); ++i) {
            if (text.empty() || text != words.names[i])
                continue;
            state.*member = static_cast<Word>(i);
            return {};
        }
        if (words.names[2].empty())
            return SkyFault(Code::NeitherOfTwo, {words.names[0], words.names[1]});
        return SkyFault(Code::NoneOfThree, {words.names[0], words.names[1], words.names[2]});
    }

    Fault operator()(LensScale SkyState::*member) const
    {
        LensScale scale;
        if (text == "auto") {
            scale.kind = LensScale::Kind::Auto;
        } else if (text != "native") {
            scale.kind = LensScale::Kind::Given;
            const char *const end = text.data() + text.size();
            const auto result = std::from_chars(text.data(), end, scale.arcseconds);
            if (result.ec != std::errc() || result.ptr != end ||
                !(scale.arcseconds >= finestScale && scale.arcseconds <= coarsestScale))
                return SkyFault(Code::NoneOfThree,
                                {"native", "auto",
                                 numberText(finestScale) + "..." + numberText(coarsestScale)});
        }
        state.*member = scale;
        return {};
    }

    Fault operator()(const TextMember &entry) const
    {
        if (Fault fault = entry.fault(text))
            return fault;
        state.*entry.member = text;
        return {};
    }

    Fault operator()(OperationSet SkyState::*member) const
    {
        OperationSet set;
        std::string_view rest = text;
        while (!rest.empty()) {
            const std::size_t comma = std::min(rest.find(','), rest.size());
            const std::string_view name = trimmed(rest.substr(0, comma));
            rest.remove_prefix(std::min(comma + 1, rest.size()));
            std::size_t i = 0;
            while (i < operationNames.size() && operationNames[i] != name)
                ++i;
            if (i == operationNames.size())
                return SkyFault(Code::UnknownOperation, {name});
            set.set(i);
        }
        state.*member = set;
        return {};
    }

    Fault operator()(const DateMember &date) const
    {
        if (text == date.none) {
            (state.*date.member).reset();
            return {};
        }
        const std::optional<double> value = parseDate(text);
        if (!value)
            return SkyFault(Code::NoDate, {date.none, std::to_string(firstYear),
                                           std::to_string(lastYear), "2026-11-20T20:00:00Z"});
        state.*date.member = value;
        return {};
    }

    template <typename Number> Fault number(Number &member) const
    {
        Number value = {};
        const char *const end = text.data() + text.size();
        const auto result = std::from_chars(text.data(), end, value);
        if (result.ec == std::errc::result_out_of_range)
            return outside(key);
        if (text.empty() || result.ec != std::errc() || result.ptr != end)
            return SkyFault(std::is_integral_v<Number> ? Code::NoWholeNumber : Code::NoNumber);
        const double asDouble = static_cast<double>(value);
        if (!(asDouble >= key.least && asDouble <= key.most))
            return outside(key);
        member = value;
        return {};
    }
};

struct Writer {
    const SkyState &state;

    std::string operator()(double SkyState::*member) const { return numberText(state.*member); }
    std::string operator()(unsigned SkyState::*member) const
    {
        return std::to_string(state.*member);
    }
    std::string operator()(bool SkyState::*member) const
    {
        return state.*member ? "true" : "false";
    }
    template <typename Word> std::string operator()(Word SkyState::*member) const
    {
        return std::string(wordsOf(Word()).names[static_cast<std::size_t>(state.*member)]);
    }
    std::string operator()(LensScale SkyState::*member) const
    {
        const LensScale &scale = state.*member;
        if (scale.kind == LensScale::Kind::Given)
            return numberText(scale.arcseconds);
        return scale.kind == LensScale::Kind::Auto ? "auto" : "native";
    }
    std::string operator()(const TextMember &entry) const { return state.*entry.member; }
    std::string operator()(OperationSet SkyState::*member) const
    {
        std::string text;
        for (std::size_t i = 0; i < operationNames.size(); ++i)
            if ((state.*member).test(i))
                text += (text.empty() ? "" : ", ") + std::string(operationNames[i]);
        return text;
    }
    std::string operator()(const DateMember &date) const
    {
        const std::optional<double> &value = state.*date.member;
        return value ? formatDate(*value) : std::string(date.none);
    }
};

Fault addressFault(std::string_view text)
{
    if (text.empty() || parseIndiAddress(text))
        return {};
    return SkyFault(Code::NeitherOfTwo, {"HOST/DEVICE", "HOST:PORT/DEVICE"});
}

Fault noFault(std::string_view)
{
    return {};
}
} // namespace

const std::vector<SkyKey> &skyKeys()
{
    using S = SkyState;
    static const auto *const keys = new std::vector<SkyKey>{
        {"site", "latitude", &S::latitude, -90.0, 90.0},
        {"site", "longitude", &S::longitude, -180.0, 180.0},
        {"time", "date", DateMember{&S::date, "now"}},
        {"time", "running", &S::running},
        {"mount", "bolt_altitude", &S::boltAltitude, -boltLimit, boltLimit},
        {"mount", "bolt_azimuth", &S::boltAzimuth, -boltLimit, boltLimit},
        {"mount", "ra_angle", &S::raAngle, -360.0, 360.0},
        {"mount", "tracking", &S::tracking},
        {"mount", "tracking_since", DateMember{&S::trackingSince, "start"}},
        {"camera", "axis_x", &S::axisX, -2000.0, 2000.0},
        {"camera", "axis_y", &S::axisY, -2000.0, 2000.0},
        {"camera", "roll", &S::roll, -360.0, 360.0},
        {"camera", "channels", &S::channels, 1.0, 3.0},
        {"camera", "unthrottled", &S::unthrottled},
        {"camera", "label", &S::label},
        {"camera", "source", &S::source},
        {"camera", "indi", TextMember{&S::indi, addressFault}},
        {"camera", "files", TextMember{&S::files, noFault}},
        {"camera", "pace", &S::pace},
        {"camera", "stream", &S::stream},
        {"camera", "soften", &S::soften},
        {"camera", "scale", &S::scale},
        {"camera", "mirrored", &S::mirrored},
        {"sensor", "seed", &S::seed, 0.0, 4294967295.0},
        {"sensor", "noise", &S::noise},
        {"sensor", "hot_pixels", &S::hotPixels, 0.0, 1000.0},
        {"sensor", "fwhm", &S::fwhm, 0.5, 20.0},
        {"sensor", "seeing", &S::seeing, 0.0, 120.0},
        {"weather", "sky_magnitude", &S::skyMagnitude, 14.0, 25.0},
        {"weather", "clouds", &S::clouds, 0.0, 1.0},
        {"weather", "moon", &S::moon, 0.0, 1.0},
        {"weather", "refraction", &S::refraction},
        {"weather", "pressure", &S::pressure, 0.0, 1200.0},
        {"weather", "temperature", &S::temperature, -90.0, 60.0},
        {"weather", "humidity", &S::humidity, 0.0, 1.0},
        {"faults", "fail", &S::fail},
        {"faults", "cameras", &S::cameras, 0.0, 2.0},
        {"faults", "unplugged", &S::unplugged},
        {"faults", "slow", &S::slow, 0.0, 600.0},
        {"faults", "picture", &S::picture},
    };
    return *keys;
}

std::optional<SkyFault> setKey(SkyState &state, const SkyKey &key, std::string_view text)
{
    const Fault fault = std::visit(Reader{state, key, text}, key.member);
    if (!fault && key.name == "channels" && state.channels == 2)
        return SkyFault(Code::NeitherOneNorThree);
    return fault;
}

std::string keyText(const SkyState &state, const SkyKey &key)
{
    return std::visit(Writer{state}, key.member);
}
} // namespace virtualsky
