#include "tls_certificate.h"

#include <cstdio>

#include <openssl/err.h>
#include <openssl/pem.h>
#include <openssl/x509v3.h>

#include "state_file.h"

namespace cloud {

namespace {

std::unique_ptr<EVP_PKEY, KeyDeleter> NewKey()
{
    return std::unique_ptr<EVP_PKEY, KeyDeleter>(EVP_EC_gen("P-256"));
}

bool AddExtension(X509* cert, X509* issuer, int nid, const char* value)
{
    X509V3_CTX ctx;
    X509V3_set_ctx_nodb(&ctx);
    X509V3_set_ctx(&ctx, issuer, cert, nullptr, nullptr, 0);
    X509_EXTENSION* ext = X509V3_EXT_conf_nid(nullptr, &ctx, nid, value);
    if (!ext)
        return false;
    bool ok = X509_add_ext(cert, ext, -1) == 1;
    X509_EXTENSION_free(ext);
    return ok;
}

std::unique_ptr<X509, X509Deleter> NewCert(EVP_PKEY* key, const char* commonName, long serial, X509* issuer,
                                           EVP_PKEY* issuerKey, bool isCa)
{
    std::unique_ptr<X509, X509Deleter> cert(X509_new());
    if (!cert)
        return nullptr;
    X509_set_version(cert.get(), 2);
    ASN1_INTEGER_set(X509_get_serialNumber(cert.get()), serial);
    X509_gmtime_adj(X509_getm_notBefore(cert.get()), -3600);
    X509_gmtime_adj(X509_getm_notAfter(cert.get()), 60L * 60 * 24 * 30);
    X509_set_pubkey(cert.get(), key);
    X509_NAME* name = X509_get_subject_name(cert.get());
    X509_NAME_add_entry_by_txt(name, "O", MBSTRING_ASC,
                               reinterpret_cast<const unsigned char*>("spacemgm-cloud"), -1, -1, 0);
    X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_ASC, reinterpret_cast<const unsigned char*>(commonName),
                               -1, -1, 0);
    X509* signer = issuer ? issuer : cert.get();
    X509_set_issuer_name(cert.get(), X509_get_subject_name(signer));
    bool ok = isCa ? AddExtension(cert.get(), signer, NID_basic_constraints, "critical,CA:TRUE") &&
                         AddExtension(cert.get(), signer, NID_key_usage, "critical,keyCertSign,cRLSign") &&
                         AddExtension(cert.get(), signer, NID_subject_key_identifier, "hash")
                   : AddExtension(cert.get(), signer, NID_basic_constraints, "critical,CA:FALSE") &&
                         AddExtension(cert.get(), signer, NID_key_usage, "critical,digitalSignature") &&
                         AddExtension(cert.get(), signer, NID_ext_key_usage, "serverAuth") &&
                         AddExtension(cert.get(), signer, NID_subject_alt_name, "IP:127.0.0.1,DNS:localhost");
    if (!ok || X509_sign(cert.get(), issuerKey, EVP_sha256()) == 0)
        return nullptr;
    return cert;
}

} // namespace

bool MakeTlsMaterial(TlsMaterial& material, std::string& error)
{
    auto caKey = NewKey();
    material.serverKey = NewKey();
    if (!caKey || !material.serverKey) {
        error = "cannot generate a key";
        return false;
    }
    material.caCert = NewCert(caKey.get(), "spacemgm-cloud test CA", 1, nullptr, caKey.get(), true);
    if (!material.caCert) {
        error = "cannot make the CA certificate";
        return false;
    }
    material.serverCert =
        NewCert(material.serverKey.get(), "127.0.0.1", 2, material.caCert.get(), caKey.get(), false);
    if (!material.serverCert) {
        error = "cannot make the server certificate";
        return false;
    }
    return true;
}

bool WriteCertificatePem(X509* cert, const std::string& path, std::string& error)
{
    BIO* bio = BIO_new(BIO_s_mem());
    if (!bio || PEM_write_bio_X509(bio, cert) != 1) {
        BIO_free(bio);
        error = "cannot encode the certificate";
        return false;
    }
    char* data = nullptr;
    long size = BIO_get_mem_data(bio, &data);
    std::string pem(data, static_cast<size_t>(size));
    BIO_free(bio);
    return WriteFileAtomically(path, pem, kReadableByAll, error);
}

} // namespace cloud
