// SPDX-License-Identifier: MIT
// The English sentences for faults of the sky file.
#include "virtualcamera/skyfault.h"

#include <algorithm>
#include <system_error>

namespace virtualsky
{
namespace
{
std::string_view pattern(SkyFaultCode code)
{
    switch (code) {
    case SkyFaultCode::SystemError:
        return "";
    case SkyFaultCode::NotOrdinaryFile:
        return "not an ordinary file";
    case SkyFaultCode::TooLong:
        return "longer than 64 KiB";
    case SkyFaultCode::Empty:
        return "the file is empty";
    case SkyFaultCode::HalfWritten:
        return "the last line has no end: the file is half-written";
    case SkyFaultCode::OpenSection:
        return "the section's ] is missing";
    case SkyFaultCode::UnknownSection:
        return "unknown section [%1]";
    case SkyFaultCode::NoAssignment:
        return "not of the form key = value";
    case SkyFaultCode::KeyBeforeSections:
        return "appears before any section";
    case SkyFaultCode::UnknownKey:
        return "unknown key in [%1]";
    case SkyFaultCode::DuplicateKey:
        return "duplicate key";
    case SkyFaultCode::OutOfRange:
        return "must lie between %1 and %2";
    case SkyFaultCode::NeitherOfTwo:
        return "must be %1 or %2";
    case SkyFaultCode::NoneOfThree:
        return "must be %1, %2 or %3";
    case SkyFaultCode::UnknownOperation:
        return "unknown operation: \"%1\"";
    case SkyFaultCode::NoDate:
        return "must be %1 or a date from %2 to %3 like %4";
    case SkyFaultCode::NoWholeNumber:
        return "must be a whole number";
    case SkyFaultCode::NoNumber:
        return "must be a number";
    case SkyFaultCode::NeitherOneNorThree:
        return "must be 1 or 3";
    }
    return "";
}
} // namespace

SkyFault::SkyFault(SkyFaultCode faultCode, std::initializer_list<std::string_view> texts)
    : code(faultCode)
{
    for (const std::string_view text : texts)
        arguments.push_back(printable(text));
}

SkyFault SkyFault::ofSystem(int error)
{
    SkyFault fault(SkyFaultCode::SystemError);
    fault.systemError = error;
    return fault;
}

std::string printable(std::string_view text)
{
    constexpr std::size_t longest = 60;
    std::string clean(text.substr(0, longest));
    std::replace_if(
        clean.begin(), clean.end(), [](char c) { return c < ' ' || c > '~'; }, '?');
    return clean;
}

std::string englishSentence(const SkyFault &fault)
{
    if (fault.code == SkyFaultCode::SystemError)
        return std::generic_category().message(fault.systemError);
    std::string sentence;
    std::string_view rest = pattern(fault.code);
    for (const std::string &argument : fault.arguments) { // %1, %2, ... in this order
        const std::size_t place = std::min(rest.find('%'), rest.size());
        sentence += std::string(rest.substr(0, place)) + argument;
        rest.remove_prefix(std::min(place + 2, rest.size()));
    }
    return sentence + std::string(rest);
}
} // namespace virtualsky
