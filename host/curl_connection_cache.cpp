#include "host/curl_connection_cache.h"

#include <array>
#include <atomic>
#include <filesystem>
#include <map>
#include <memory>
#include <mutex>
#include <stdexcept>
#include <vector>

namespace host {
namespace {

// libcurl asks for a lock per kind of shared data; one mutex per kind keeps a
// DNS lookup from waiting on a connection hand-over. Every cache the process
// makes uses the same mutexes: only one is in use at a time.
std::array<std::mutex, CURL_LOCK_DATA_LAST> shareLocks;

void LockShare(CURL*, curl_lock_data data, curl_lock_access, void*)
{
    shareLocks.at(static_cast<size_t>(data)).lock();
}

void UnlockShare(CURL*, curl_lock_data data, void*)
{
    shareLocks.at(static_cast<size_t>(data)).unlock();
}

struct StoreDeleter
{
    void operator()(X509_STORE* store) const { X509_STORE_free(store); }
};
using StoreHandle = std::unique_ptr<X509_STORE, StoreDeleter>;

// The paths libcurl would verify with when given no CA file.
void DefaultCaPaths(std::string& bundle, std::string& folder)
{
    CURL* probe = curl_easy_init();
    char* text = nullptr;
    if (probe != nullptr && curl_easy_getinfo(probe, CURLINFO_CAINFO, &text) == CURLE_OK && text != nullptr) {
        bundle = text;
    }
    text = nullptr;
    if (probe != nullptr && curl_easy_getinfo(probe, CURLINFO_CAPATH, &text) == CURLE_OK && text != nullptr) {
        folder = text;
    }
    curl_easy_cleanup(probe);
}

// A folder as `c_rehash` leaves it: certificates under names like "002c0b4f.0".
bool HoldsHashedCertificates(const std::string& folder)
{
    std::error_code error;
    if (folder.empty() || !std::filesystem::is_directory(folder, error)) {
        return false;
    }
    for (const auto& entry : std::filesystem::directory_iterator(folder, error)) {
        const std::string name = entry.path().filename().string();
        if (name.size() == 10 && name.compare(8, 2, ".0") == 0 &&
            name.find_first_not_of("0123456789abcdef") == 8) {
            return true;
        }
    }
    return false;
}

StoreHandle LoadStore(const std::string& caFile)
{
    StoreHandle store(X509_STORE_new());
    if (!store) {
        return nullptr;
    }
    if (!caFile.empty()) {
        return X509_STORE_load_file(store.get(), caFile.c_str()) == 1 ? std::move(store) : nullptr;
    }
    std::string bundle, folder;
    DefaultCaPaths(bundle, folder);
    // OpenSSL reads a folder of hashed certificates one file per issuer a
    // chain asks for, where a bundle is decoded whole, some 140 roots and
    // 30 to 45 ms of the first TLS connection of every process. Both hold
    // the same roots where the system keeps both; the bundle serves alone
    // where there is no such folder.
    if (HoldsHashedCertificates(folder) && X509_STORE_load_path(store.get(), folder.c_str()) == 1) {
        return store;
    }
    const bool fromBundle = !bundle.empty() && X509_STORE_load_file(store.get(), bundle.c_str()) == 1;
    return fromBundle ? std::move(store) : nullptr;
}

// One cache: the libcurl share and the CA stores its connections verify with.
struct ConnectionCache
{
    ConnectionCache()
    {
        static const bool initialised = curl_global_init(CURL_GLOBAL_DEFAULT) == CURLE_OK;
        if (!initialised) {
            throw std::runtime_error("libcurl could not be initialised");
        }
        share = curl_share_init();
        if (share == nullptr) {
            throw std::runtime_error("libcurl share handle could not be created");
        }
        curl_share_setopt(share, CURLSHOPT_LOCKFUNC, LockShare);
        curl_share_setopt(share, CURLSHOPT_UNLOCKFUNC, UnlockShare);
        curl_share_setopt(share, CURLSHOPT_SHARE, CURL_LOCK_DATA_CONNECT);
        curl_share_setopt(share, CURLSHOPT_SHARE, CURL_LOCK_DATA_SSL_SESSION);
        curl_share_setopt(share, CURLSHOPT_SHARE, CURL_LOCK_DATA_DNS);
    }

    CURLSH* share = nullptr;
    std::mutex storesMutex;
    // A file that could not be loaded is kept as null, so that it is not
    // parsed again for every connection.
    std::map<std::string, StoreHandle> stores;
};

// Every cache the process made, the current one last. Replaced caches stay
// until they can be cleaned up: a thread's easy handle stays attached to the
// share of its last exchange, so an old share is freed only once every such
// handle has moved on or ended. The registry itself is never destroyed:
// detached load threads may still be sending while static destructors run.
struct CacheRegistry
{
    std::mutex mutex;
    std::atomic<ConnectionCache*> current{nullptr};
    std::vector<std::unique_ptr<ConnectionCache>> caches;

    // Called with `mutex` held.
    void Add(std::unique_ptr<ConnectionCache> cache)
    {
        current.store(cache.get(), std::memory_order_release);
        caches.push_back(std::move(cache));
    }

    // Called with `mutex` held.
    void CleanUpReplaced()
    {
        auto replaced = caches.begin();
        while (replaced != caches.end()) {
            const bool isCurrent = replaced->get() == current.load(std::memory_order_relaxed);
            if (!isCurrent && curl_share_cleanup((*replaced)->share) == CURLSHE_OK) {
                replaced = caches.erase(replaced);
            } else {
                ++replaced;
            }
        }
    }
};

CacheRegistry& Registry()
{
    static CacheRegistry* const registry = std::make_unique<CacheRegistry>().release();
    return *registry;
}

ConnectionCache& CurrentCache()
{
    CacheRegistry& registry = Registry();
    if (ConnectionCache* cache = registry.current.load(std::memory_order_acquire)) {
        return *cache;
    }
    std::lock_guard<std::mutex> lock(registry.mutex);
    if (registry.current.load(std::memory_order_relaxed) == nullptr) {
        registry.Add(std::make_unique<ConnectionCache>());
    }
    return *registry.current.load(std::memory_order_relaxed);
}

} // namespace

CURLSH* SharedConnectionCache()
{
    return CurrentCache().share;
}

X509_STORE* SharedCaStore(const std::string& caFile)
{
    ConnectionCache& cache = CurrentCache();
    std::lock_guard<std::mutex> lock(cache.storesMutex);
    auto found = cache.stores.find(caFile);
    if (found == cache.stores.end()) {
        found = cache.stores.emplace(caFile, LoadStore(caFile)).first;
    }
    return found->second.get();
}

void ResetConnectionCache()
{
    CacheRegistry& registry = Registry();
    std::lock_guard<std::mutex> lock(registry.mutex);
    registry.Add(std::make_unique<ConnectionCache>());
    registry.CleanUpReplaced();
}

} // namespace host
