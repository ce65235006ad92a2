// The connection cache's CA stores: one per CA file and cache, loaded once.
#include <gtest/gtest.h>

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
