// SPDX-License-Identifier: MIT
// What can be wrong with a sky file? A code with arguments: who shows it makes the sentence.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace virtualsky
{
/// The arguments are named behind each; they are printable and short.
enum class SkyFaultCode {
    // of the file
    SystemError, ///< see `SkyFault::systemError`
    NotOrdinaryFile,
    TooLong,
    Empty,
    HalfWritten,
    // of a line
    OpenSection,
    UnknownSection, ///< section
    NoAssignment,
    KeyBeforeSections,
    UnknownKey, ///< section
    DuplicateKey,
    // of a value, which the sentence's subject is
    OutOfRange,       ///< least, most
    NeitherOfTwo,     ///< the two words
    NoneOfThree,      ///< the three words
    UnknownOperation, ///< name
    NoDate,           ///< the word for none, first year, last year, example
    NoWholeNumber,
    NoNumber,
    NeitherOneNorThree,
};

/// For tables and tests.
inline constexpr SkyFaultCode lastSkyFaultCode = SkyFaultCode::NeitherOneNorThree;

constexpr bool isOfAValue(SkyFaultCode code)
{
    return code >= SkyFaultCode::OutOfRange;
}

struct SkyFault {
    /// Makes the arguments printable.
    SkyFault(SkyFaultCode faultCode, std::initializer_list<std::string_view> texts = {});
    /// @param error as in errno
    static SkyFault ofSystem(int error);

    SkyFaultCode code;
    std::vector<std::string> arguments;
    int systemError = 0;
};

/// At most 60 characters, unprintable ones replaced: messages stay one line, whatever the file has.
std::string printable(std::string_view text);

/// In English, without line and key, as in the camera's log.
std::string englishSentence(const SkyFault &fault);
} // namespace virtualsky
