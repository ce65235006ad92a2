#include "host/exchange_observer.h"

#include <algorithm>
#include <atomic>
#include <mutex>
#include <utility>
#include <vector>

#include "host/host_config.h"
#include "host/service_of_url.h"

namespace host {
namespace {

std::mutex observersMutex;
std::vector<ExchangeObserver*> observers;
std::atomic<std::uint64_t> nextExchangeId{1};

// Made on a thread's first exchange; its destructor runs when the thread
// ends, which is how an observer learns that a worker has finished.
struct ThreadMark
{
    std::uint64_t lastExchangeId = 0;
    ~ThreadMark()
    {
        std::lock_guard<std::mutex> lock(observersMutex);
        for (ExchangeObserver* observer : observers) {
            observer->OnExchangeThreadEnded();
        }
    }
};

ThreadMark& ThisThread()
{
    thread_local ThreadMark mark;
    return mark;
}

// Observers are called under the list's lock, so that one cannot be
// detached and destroyed while a call is on its way to it.
template <class Call> void Notify(Call call)
{
    std::lock_guard<std::mutex> lock(observersMutex);
    for (ExchangeObserver* observer : observers) {
        call(*observer);
    }
}

} // namespace

ScopedExchangeObserver::ScopedExchangeObserver(ExchangeObserver& observer) : observer_(observer)
{
    std::lock_guard<std::mutex> lock(observersMutex);
    observers.push_back(&observer_);
}

ScopedExchangeObserver::~ScopedExchangeObserver()
{
    std::lock_guard<std::mutex> lock(observersMutex);
    observers.erase(std::remove(observers.begin(), observers.end(), &observer_), observers.end());
}

void ReportRefusedReply(const std::string& why)
{
    const std::uint64_t id = ThisThread().lastExchangeId;
    Notify([&](ExchangeObserver& observer) { observer.OnReplyRefused(id, why); });
}

namespace exchange_events {

ExchangeStart Started(const std::string& url)
{
    ExchangeStart start;
    start.id = nextExchangeId.fetch_add(1, std::memory_order_relaxed);
    ServiceAndPath where = ServiceOfUrl(CurrentHostConfig().services, url);
    start.service = std::move(where.service);
    start.path = std::move(where.path);
    start.startedAt = std::chrono::steady_clock::now();
    ThisThread().lastExchangeId = start.id;
    Notify([&](ExchangeObserver& observer) { observer.OnExchangeStarted(start); });
    return start;
}

void Ended(ExchangeRecord record, const std::string& body)
{
    Notify([&](ExchangeObserver& observer) { observer.OnExchangeEnded(record, body); });
}

} // namespace exchange_events

} // namespace host
