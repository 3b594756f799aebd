#include "platform/RunTimeError.h"

#include <QMap>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

QString textOf(int number)
{
    static const QMap<int, QString> texts = {
        {errors::invalidCall, u"Invalid procedure call or argument"_s},
        {errors::overflow, u"Overflow"_s},
        {errors::outOfMemory, u"Out of memory"_s},
        {errors::subscript, u"Subscript out of range"_s},
        {errors::divisionByZero, u"Division by zero"_s},
        {errors::typeMismatch, u"Type mismatch"_s},
        {errors::badFileName, u"Bad file name or number"_s},
        {errors::fileNotFound, u"File not found"_s},
        {errors::fileExists, u"File already exists"_s},
        {errors::diskFull, u"Disk full"_s},
        {errors::permissionDenied, u"Permission denied"_s},
        {errors::pathFileAccess, u"Path/File access error"_s},
        {errors::pathNotFound, u"Path not found"_s},
        {errors::objectNotSet, u"Object variable not set"_s},
        {errors::invalidPropertyValue, u"Invalid property value"_s},
        {errors::invalidPropertyArrayIndex, u"Invalid property array index"_s},
        {errors::invalidPicture, u"Invalid picture"_s},
        {errors::addressNotAvailable, u"Address is not available from the local machine"_s},
        {errors::networkUnreachable, u"Network cannot be reached from this host at this time"_s},
        {errors::connectionAborted, u"Connection is aborted due to timeout or other failure"_s},
        {errors::connectionReset, u"Connection is reset by remote side"_s},
        {errors::connectTimedOut, u"Attempt to connect timed out without establishing a connection"_s},
        {errors::connectionRefused, u"Connection is forcefully rejected"_s},
        {errors::hostUnreachable, u"No route to host"_s},
        {errors::hostNotFound, u"Authoritative answer: Host not found"_s},
        {errors::dialogCancelled, u"Cancel was selected"_s},
        {errors::dialogCancelledOld, u"Cancel was selected"_s},
        {errors::indexOutOfBounds, u"Index out of bounds"_s},
    };
    return texts.value(number, u"Application-defined or object-defined error"_s);
}

} // namespace

RunTimeError::RunTimeError(int number) : RunTimeError(number, textOf(number)) {}

RunTimeError::RunTimeError(int number, QString description, QString source)
    : m_number(number),
      m_source(std::move(source)),
      m_description(std::move(description)),
      m_what((QString::number(m_number) + u": "_s + m_description).toUtf8())
{
}

QString RunTimeError::defaultSource()
{
    return u"Varnhold"_s;
}

} // namespace varnhold
