#pragma once

#include <QString>

#include <exception>

namespace varnhold {

/// A failure with the number that the program's handlers look at. Thrown by every routine that the program
/// guards; never crosses an event handler's border, since no exception may pass through the event loop.
class RunTimeError : public std::exception
{
public:
    /// Number in use with its text from the table in RunTimeError.cpp; source "Varnhold".
    explicit RunTimeError(int number);
    RunTimeError(int number, QString description, QString source = defaultSource());

    [[nodiscard]] int number() const { return m_number; }
    [[nodiscard]] const QString& source() const { return m_source; }
    [[nodiscard]] const QString& description() const { return m_description; }
    [[nodiscard]] const char* what() const noexcept override { return m_what.constData(); }

    static QString defaultSource();

private:
    int m_number;
    QString m_source;
    QString m_description;
    QByteArray m_what;
};

/// Numbers in use. The values are the run-time's own; handlers filter by them.
namespace errors {
inline constexpr int none = 0;
inline constexpr int invalidCall = 5;
inline constexpr int overflow = 6;
inline constexpr int outOfMemory = 7;
inline constexpr int subscript = 9;
inline constexpr int divisionByZero = 11;
inline constexpr int typeMismatch = 13;
inline constexpr int badFileName = 52; ///< also: a handle that is not open
inline constexpr int fileNotFound = 53;
inline constexpr int fileExists = 58;
inline constexpr int diskFull = 61;
inline constexpr int permissionDenied = 70;
inline constexpr int pathFileAccess = 75;
inline constexpr int pathNotFound = 76;
inline constexpr int objectNotSet = 91;
inline constexpr int invalidPropertyValue = 380;
inline constexpr int invalidPropertyArrayIndex = 381;
inline constexpr int invalidPicture = 481;
inline constexpr int addressNotAvailable = 10049;
inline constexpr int networkUnreachable = 10051;
inline constexpr int connectionAborted = 10053;
inline constexpr int connectionReset = 10054;
inline constexpr int connectTimedOut = 10060;
inline constexpr int connectionRefused = 10061;
inline constexpr int hostUnreachable = 10065;
inline constexpr int hostNotFound = 11001;
inline constexpr int dialogCancelled = 32755;
inline constexpr int indexOutOfBounds = 35600;
inline constexpr int dialogCancelledOld = 35755;
} // namespace errors

} // namespace varnhold
