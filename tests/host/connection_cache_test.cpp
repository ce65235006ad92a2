// The connection cache's CA stores: one per CA file and cache, loaded once.
#include <gtest/gtest.h>
#include <openssl/pem.h>
#include <openssl/x509_vfy.h>

#include <cstdio>

#include "host/curl_connection_cache.h"
#include "utilities/temp_folder.h"

TEST(ConnectionCache, TheSystemStoreIsLoadedOncePerCache)
{
    host::ResetConnectionCache();
    X509_STORE* first = host::SharedCaStore("");
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(host::SharedCaStore(""), first);
    host::ResetConnectionCache();
    X509_STORE* afterReset = host::SharedCaStore("");
    ASSERT_NE(afterReset, nullptr);
    EXPECT_EQ(host::SharedCaStore(""), afterReset);
}

TEST(ConnectionCache, ACaFileThatCannotBeLoadedHasNoStore)
{
    TempFolder folder;
    const auto garbage = folder.Write("garbage.pem", "not a certificate");
    EXPECT_EQ(host::SharedCaStore((folder.Path() / "missing.pem").string()), nullptr);
    EXPECT_EQ(host::SharedCaStore(garbage.string()), nullptr);
}

TEST(ConnectionCache, EachCaFileHasItsOwnStore)
{
    host::ResetConnectionCache();
    // The Debian package ca-certificates, which libcurl depends on.
    const std::string bundle = "/etc/ssl/certs/ca-certificates.crt";
    X509_STORE* system = host::SharedCaStore("");
    X509_STORE* fromFile = host::SharedCaStore(bundle);
    ASSERT_NE(fromFile, nullptr);
    EXPECT_NE(fromFile, system);
    EXPECT_EQ(host::SharedCaStore(bundle), fromFile);
}

// A root from the system's folder verifies against the system store, and the
// store decodes no root before a chain asks for one.
TEST(ConnectionCache, TheSystemStoreReadsItsRootsWhenAChainAsksForThem)
{
    host::ResetConnectionCache();
    X509_STORE* system = host::SharedCaStore("");
    ASSERT_NE(system, nullptr);
    EXPECT_EQ(sk_X509_OBJECT_num(X509_STORE_get0_objects(system)), 0);

    std::FILE* file = std::fopen("/etc/ssl/certs/ca-certificates.crt", "r");
    ASSERT_NE(file, nullptr);
    X509* root = PEM_read_X509(file, nullptr, nullptr, nullptr);
    std::fclose(file);
    ASSERT_NE(root, nullptr);
    X509_STORE_CTX* context = X509_STORE_CTX_new();
    ASSERT_EQ(X509_STORE_CTX_init(context, system, root, nullptr), 1);
    EXPECT_EQ(X509_verify_cert(context), 1)
        << X509_verify_cert_error_string(X509_STORE_CTX_get_error(context));
    X509_STORE_CTX_free(context);
    X509_free(root);
    EXPECT_GT(sk_X509_OBJECT_num(X509_STORE_get0_objects(system)), 0);
}
