// SPDX-License-Identifier: MIT
// The faults of a sky file in the language of the window.
#include "virtualmount/faulttexts.h"

#include "virtualcamera/skyfile.h"

#include <QCoreApplication>

namespace virtualmount
{
namespace
{
using Code = virtualsky::SkyFaultCode;

const char *sourceText(Code code)
{
    switch (code) {
    case Code::SystemError:
        break;
    case Code::NotOrdinaryFile:
        return QT_TRANSLATE_NOOP("SkyFault", "not an ordinary file");
    case Code::TooLong:
        return QT_TRANSLATE_NOOP("SkyFault", "longer than 64 KiB");
    case Code::Empty:
        return QT_TRANSLATE_NOOP("SkyFault", "the file is empty");
    case Code::HalfWritten:
        return QT_TRANSLATE_NOOP("SkyFault", "the last line has no end: the file is half-written");
    case Code::OpenSection:
        return QT_TRANSLATE_NOOP("SkyFault", "the section's ] is missing");
    case Code::UnknownSection:
        return QT_TRANSLATE_NOOP("SkyFault", "unknown section [%1]");
    case Code::NoAssignment:
        return QT_TRANSLATE_NOOP("SkyFault", "not of the form key = value");
    case Code::KeyBeforeSections:
        return QT_TRANSLATE_NOOP("SkyFault", "appears before any section");
    case Code::UnknownKey:
        return QT_TRANSLATE_NOOP("SkyFault", "unknown key in [%1]");
    case Code::DuplicateKey:
        return QT_TRANSLATE_NOOP("SkyFault", "duplicate key");
    case Code::OutOfRange:
        return QT_TRANSLATE_NOOP("SkyFault", "must lie between %1 and %2");
    case Code::NeitherOfTwo:
        return QT_TRANSLATE_NOOP("SkyFault", "must be %1 or %2");
    case Code::NoneOfThree:
        return QT_TRANSLATE_NOOP("SkyFault", "must be %1, %2 or %3");
    case Code::UnknownOperation:
        return QT_TRANSLATE_NOOP("SkyFault", "unknown operation: \"%1\"");
    case Code::NoDate:
        return QT_TRANSLATE_NOOP("SkyFault", "must be %1 or a date from %2 to %3 like %4");
    case Code::NoWholeNumber:
        return QT_TRANSLATE_NOOP("SkyFault", "must be a whole number");
    case Code::NoNumber:
        return QT_TRANSLATE_NOOP("SkyFault", "must be a number");
    case Code::NeitherOneNorThree:
        return QT_TRANSLATE_NOOP("SkyFault", "must be 1 or 3");
    }
    return "";
}

QString translated(const char *source)
{
    return QCoreApplication::translate("SkyFault", source);
}

/// Fills in all placeholders at once: an argument may itself look like one.
QString filledIn(const QString &text, const std::vector<std::string> &arguments)
{
    QString full;
    for (int i = 0; i < text.size(); ++i) {
        const int number = text[i] == '%' ? text.mid(i + 1, 1).toInt() : 0;
        if (number < 1 || std::size_t(number) > arguments.size()) {
            full += text[i];
            continue;
        }
        full += QString::fromStdString(arguments[std::size_t(number) - 1]);
        ++i;
    }
    return full;
}

QString sentence(const virtualsky::SkyFault &fault)
{
    if (fault.code == Code::SystemError) // in the catalogues under the toolkit's name for it
        return QCoreApplication::translate("QIODevice",
                                           qt_error_string(fault.systemError).toUtf8().constData());
    return filledIn(translated(sourceText(fault.code)), fault.arguments);
}
} // namespace

QString faultText(const virtualsky::SkyFileError &error)
{
    QString text = sentence(error.fault());
    if (!error.key().empty())
        text = translated(QT_TRANSLATE_NOOP("SkyFault", "%1: %2"))
                   .arg(QString::fromStdString(error.key()), text);
    if (error.line() > 0)
        text = translated(QT_TRANSLATE_NOOP("SkyFault", "line %1: %2"))
                   .arg(QString::number(error.line()), text);
    return text;
}
} // namespace virtualmount
