#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace varnhold::host {

/// What is wrong with the certificate that the https port shows.
enum class CertificateFault { None, WrongHost, Expired, SelfSigned };

/// "good", "wrong-host", "expired", "self-signed".
std::optional<CertificateFault> parseCertificateFault(QStringView text);

/// A key with its certificate, both as PEM.
struct Identity
{
    QByteArray key;
    QByteArray certificate;
};

/// A new authority of our own.
Identity makeAuthority();

/// A certificate for 127.0.0.1 and localhost from the authority, or one with the fault. Throws RunTimeError 5
/// when the crypto library refuses.
Identity makeServerIdentity(const Identity& authority, CertificateFault fault);

} // namespace varnhold::host
