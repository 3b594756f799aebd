#include "host/Certificates.h"

#include "platform/RunTimeError.h"

#include <openssl/bio.h>
#include <openssl/ec.h>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/rand.h>
#include <openssl/x509v3.h>

#include <memory>

namespace varnhold::host {

using namespace Qt::StringLiterals;

namespace {

template <auto Free> struct Freer
{
    template <typename T> void operator()(T* thing) const { Free(thing); }
};
using Key = std::unique_ptr<EVP_PKEY, Freer<EVP_PKEY_free>>;
using Certificate = std::unique_ptr<X509, Freer<X509_free>>;
using Bio = std::unique_ptr<BIO, Freer<BIO_free_all>>;
using Extension = std::unique_ptr<X509_EXTENSION, Freer<X509_EXTENSION_free>>;

constexpr long day = 24L * 60 * 60;

void check(bool ok)
{
    if (!ok)
        throw RunTimeError(errors::invalidCall, u"The sample service could not make its certificate."_s);
}

Key makeKey()
{
    Key key(EVP_PKEY_Q_keygen(nullptr, nullptr, "EC", "P-256"));
    check(key != nullptr);
    return key;
}

QByteArray content(BIO* bio)
{
    char* data = nullptr;
    const long size = BIO_get_mem_data(bio, &data);
    return QByteArray(data, size);
}

Identity toPem(EVP_PKEY* key, X509* certificate)
{
    const Bio keyBio(BIO_new(BIO_s_mem()));
    const Bio certificateBio(BIO_new(BIO_s_mem()));
    check(PEM_write_bio_PKCS8PrivateKey(keyBio.get(), key, nullptr, nullptr, 0, nullptr, nullptr) == 1);
    check(PEM_write_bio_X509(certificateBio.get(), certificate) == 1);
    return {content(keyBio.get()), content(certificateBio.get())};
}

Key keyOf(const Identity& identity)
{
    const Bio bio(BIO_new_mem_buf(identity.key.constData(), static_cast<int>(identity.key.size())));
    Key key(PEM_read_bio_PrivateKey(bio.get(), nullptr, nullptr, nullptr));
    check(key != nullptr);
    return key;
}

Certificate certificateOf(const Identity& identity)
{
    const Bio bio(
        BIO_new_mem_buf(identity.certificate.constData(), static_cast<int>(identity.certificate.size())));
    Certificate certificate(PEM_read_bio_X509(bio.get(), nullptr, nullptr, nullptr));
    check(certificate != nullptr);
    return certificate;
}

void addExtension(X509* certificate, X509* issuer, int nid, const char* value)
{
    X509V3_CTX context;
    X509V3_set_ctx_nodb(&context);
    X509V3_set_ctx(&context, issuer, certificate, nullptr, nullptr, 0);
    const Extension extension(X509V3_EXT_conf_nid(nullptr, &context, nid, value));
    check(extension != nullptr && X509_add_ext(certificate, extension.get(), -1) == 1);
}

/// A certificate with names, times and a random serial number; extensions and signature still missing.
Certificate startCertificate(EVP_PKEY* key, const char* name, long fromSeconds, long toSeconds)
{
    Certificate certificate(X509_new());
    check(certificate != nullptr);
    X509_set_version(certificate.get(), X509_VERSION_3);
    quint32 serial = 0;
    check(RAND_bytes(reinterpret_cast<unsigned char*>(&serial), sizeof serial) == 1);
    ASN1_INTEGER_set(X509_get_serialNumber(certificate.get()), static_cast<long>(serial) + 1);
    X509_gmtime_adj(X509_getm_notBefore(certificate.get()), fromSeconds);
    X509_gmtime_adj(X509_getm_notAfter(certificate.get()), toSeconds);
    X509_set_pubkey(certificate.get(), key);
    X509_NAME_add_entry_by_txt(X509_get_subject_name(certificate.get()), "CN", MBSTRING_UTF8,
                               reinterpret_cast<const unsigned char*>(name), -1, -1, 0);
    return certificate;
}

} // namespace

std::optional<CertificateFault> parseCertificateFault(QStringView text)
{
    if (text == u"good")
        return CertificateFault::None;
    if (text == u"wrong-host")
        return CertificateFault::WrongHost;
    if (text == u"expired")
        return CertificateFault::Expired;
    if (text == u"self-signed")
        return CertificateFault::SelfSigned;
    return std::nullopt;
}

Identity makeAuthority()
{
    const Key key = makeKey();
    const Certificate certificate = startCertificate(key.get(), "Varnhold sample authority", -day, 365 * day);
    X509* const self = certificate.get();
    X509_set_issuer_name(self, X509_get_subject_name(self));
    addExtension(self, self, NID_basic_constraints, "critical,CA:TRUE");
    addExtension(self, self, NID_key_usage, "critical,keyCertSign,cRLSign");
    addExtension(self, self, NID_subject_key_identifier, "hash");
    check(X509_sign(self, key.get(), EVP_sha256()) > 0);
    return toPem(key.get(), self);
}

Identity makeServerIdentity(const Identity& authority, CertificateFault fault)
{
    const Key key = makeKey();
    const bool expired = fault == CertificateFault::Expired;
    const Certificate certificate =
        startCertificate(key.get(), fault == CertificateFault::WrongHost ? "elsewhere.invalid" : "127.0.0.1",
                         expired ? -30 * day : -day, expired ? -2 * day : 365 * day);
    const bool selfSigned = fault == CertificateFault::SelfSigned;
    const Certificate authorityCertificate = certificateOf(authority);
    const Key authorityKey = keyOf(authority);
    X509* const self = certificate.get();
    X509* const issuer = selfSigned ? self : authorityCertificate.get();
    X509_set_issuer_name(self, X509_get_subject_name(issuer));
    addExtension(self, issuer, NID_basic_constraints, "critical,CA:FALSE");
    addExtension(self, issuer, NID_key_usage, "critical,digitalSignature");
    addExtension(self, issuer, NID_ext_key_usage, "serverAuth");
    addExtension(self, issuer, NID_subject_alt_name,
                 fault == CertificateFault::WrongHost ? "DNS:elsewhere.invalid"
                                                      : "IP:127.0.0.1,DNS:localhost");
    check(X509_sign(self, selfSigned ? key.get() : authorityKey.get(), EVP_sha256()) > 0);
    return toPem(key.get(), self);
}

} // namespace varnhold::host
