#include "host/curl_connection_cache.h"

#include <array>
#include <mutex>
#include <stdexcept>

namespace host {
namespace {

// libcurl asks for a lock per kind of shared data; one mutex per kind keeps a
// DNS lookup from waiting on a connection hand-over.
std::array<std::mutex, CURL_LOCK_DATA_LAST> shareLocks;

void LockShare(CURL*, curl_lock_data data, curl_lock_access, void*)
{
    shareLocks.at(static_cast<size_t>(data)).lock();
}

void UnlockShare(CURL*, curl_lock_data data, void*)
{
    shareLocks.at(static_cast<size_t>(data)).unlock();
}

CURLSH* CreateShare()
{
    if (curl_global_init(CURL_GLOBAL_DEFAULT) != CURLE_OK) {
        throw std::runtime_error("libcurl could not be initialised");
    }
    CURLSH* share = curl_share_init();
    if (share == nullptr) {
        throw std::runtime_error("libcurl share handle could not be created");
    }
    curl_share_setopt(share, CURLSHOPT_LOCKFUNC, LockShare);
    curl_share_setopt(share, CURLSHOPT_UNLOCKFUNC, UnlockShare);
    curl_share_setopt(share, CURLSHOPT_SHARE, CURL_LOCK_DATA_CONNECT);
    curl_share_setopt(share, CURLSHOPT_SHARE, CURL_LOCK_DATA_SSL_SESSION);
    curl_share_setopt(share, CURLSHOPT_SHARE, CURL_LOCK_DATA_DNS);
    return share;
}

} // namespace

CURLSH* SharedConnectionCache()
{
    // A function-local static is initialised exactly once even when the first
    // requests start on several threads at the same moment.
    static CURLSH* const share = CreateShare();
    return share;
}

} // namespace host
