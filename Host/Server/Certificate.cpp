// Certificates are looked at here: libcups, as it is set up by default, takes any.
#include "Certificate.h"

#include <QCoreApplication>
#include <QFile>

#include <array>
#include <gnutls/gnutls.h>
#include <gnutls/x509.h>
#include <vector>

namespace host {

namespace {

struct CertificateTexts
{
    Q_DECLARE_TR_FUNCTIONS(host::Certificate)
};

/// What a server shows of itself, or CUPS keeps of it.
class Shown
{
public:
    static Shown by(http_t *http)
    {
        cups_array_t *list = nullptr;
        httpCopyCredentials(http, &list);
        return Shown(list);
    }
    /// CUPS has a place for each person's, and for the system's beside its configuration, wherever that is.
    static Shown keptFor(const char *server)
    {
        const QString system = qEnvironmentVariable("CUPS_SERVERROOT", QN_CUPS_SERVERROOT) + "/ssl";
        cups_array_t *list = nullptr;
        if (httpLoadCredentials(nullptr, &list, server) != 0)
            httpLoadCredentials(QFile::encodeName(system).constData(), &list, server);
        return Shown(list);
    }
    ~Shown() { httpFreeCredentials(m_list); }
    Shown(const Shown &) = delete;
    Shown &operator=(const Shown &) = delete;

    bool isEmpty() const { return cupsArrayCount(m_list) == 0; }
    bool operator==(const Shown &other) const { return httpCompareCredentials(m_list, other.m_list) != 0; }

    std::vector<gnutls_datum_t> certificates() const
    {
        std::vector<gnutls_datum_t> all;
        for (int i = 0; i < cupsArrayCount(m_list); ++i) {
            const auto *const each = static_cast<http_credential_t *>(cupsArrayIndex(m_list, i));
            all.push_back({static_cast<unsigned char *>(each->data), static_cast<unsigned>(each->datalen)});
        }
        return all;
    }

private:
    explicit Shown(cups_array_t *list)
        : m_list(list)
    {}

    cups_array_t *m_list;
};

/// The authorities that this system trusts.
class Authorities
{
public:
    Authorities()
    {
        gnutls_x509_trust_list_init(&m_list, 0);
        gnutls_x509_trust_list_add_system_trust(m_list, 0, 0);
    }
    ~Authorities() { gnutls_x509_trust_list_deinit(m_list, 1); }
    Authorities(const Authorities &) = delete;
    Authorities &operator=(const Authorities &) = delete;

    /// What speaks against a chain of certificates, as bits of GNUTLS_CERT_; 0 for nothing.
    unsigned verify(std::vector<gnutls_x509_crt_t> chain, const char *server) const
    {
        const auto *const name = reinterpret_cast<const unsigned char *>(server);
        gnutls_typed_vdata_st data{GNUTLS_DT_DNS_HOSTNAME, const_cast<unsigned char *>(name), 0};
        unsigned against = GNUTLS_CERT_INVALID;
        gnutls_x509_trust_list_verify_crt2(m_list, chain.data(), static_cast<unsigned>(chain.size()), &data, 1, 0,
                                           &against, nullptr);
        return against;
    }

private:
    gnutls_x509_trust_list_t m_list = nullptr;
};

unsigned whatIsAgainst(const Shown &shown, const char *server)
{
    std::vector<gnutls_x509_crt_t> chain;
    bool isReadable = true;
    for (const gnutls_datum_t &each : shown.certificates()) {
        gnutls_x509_crt_t certificate = nullptr;
        gnutls_x509_crt_init(&certificate);
        chain.push_back(certificate);
        isReadable = isReadable && gnutls_x509_crt_import(certificate, &each, GNUTLS_X509_FMT_DER) == GNUTLS_E_SUCCESS;
    }
    const unsigned against =
        isReadable && !chain.empty() ? Authorities().verify(chain, server) : unsigned{GNUTLS_CERT_INVALID};
    for (gnutls_x509_crt_t certificate : chain)
        gnutls_x509_crt_deinit(certificate);
    return against;
}

struct Reason
{
    unsigned bits;
    const char *text;
};

/// The first one that holds is told. What a certificate says of its owner is worth nothing while nobody vouches for it.
constexpr std::array kReasons{
    Reason{GNUTLS_CERT_REVOKED, QT_TRANSLATE_NOOP("host::Certificate", "it was withdrawn")},
    Reason{GNUTLS_CERT_SIGNER_NOT_FOUND | GNUTLS_CERT_SIGNER_NOT_CA,
           QT_TRANSLATE_NOOP("host::Certificate", "nobody that this computer trusts vouches for it")},
    Reason{GNUTLS_CERT_UNEXPECTED_OWNER, QT_TRANSLATE_NOOP("host::Certificate", "it is another computer's")},
    Reason{GNUTLS_CERT_EXPIRED, QT_TRANSLATE_NOOP("host::Certificate", "it has expired")},
    Reason{~0U, QT_TRANSLATE_NOOP("host::Certificate", "it is not valid")},
};

} // namespace

std::optional<QString> whyNotTrusted(http_t *http)
{
    if (!httpIsEncrypted(http))
        return std::nullopt;
    std::array<char, HTTP_MAX_HOST> server{};
    httpGetHostname(http, server.data(), server.size());
    const Shown shown = Shown::by(http);
    const Shown kept = Shown::keptFor(server.data());
    if (!kept.isEmpty() && kept == shown)
        return std::nullopt;
    const unsigned against = whatIsAgainst(shown, server.data());
    for (const Reason &reason : kReasons)
        if ((against & reason.bits) != 0)
            return CertificateTexts::tr("the certificate of %1 is not trusted: %2")
                .arg(QString::fromUtf8(server.data()), CertificateTexts::tr(reason.text));
    return std::nullopt;
}

} // namespace host
