#pragma once
#include <memory>
#include <string>

#include <openssl/evp.h>
#include <openssl/x509.h>

namespace cloud {

struct X509Deleter
{
    void operator()(X509* cert) const { X509_free(cert); }
};
struct KeyDeleter
{
    void operator()(EVP_PKEY* key) const { EVP_PKEY_free(key); }
};

// A throw-away CA and a server certificate it signed for 127.0.0.1 and
// localhost, made fresh at every start so that nothing secret is kept.
struct TlsMaterial
{
    std::unique_ptr<X509, X509Deleter> caCert;
    std::unique_ptr<X509, X509Deleter> serverCert;
    std::unique_ptr<EVP_PKEY, KeyDeleter> serverKey;
};

bool MakeTlsMaterial(TlsMaterial& material, std::string& error);
bool WriteCertificatePem(X509* cert, const std::string& path, std::string& error);

} // namespace cloud
