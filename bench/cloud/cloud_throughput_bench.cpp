// The photo quota query against spacemgm-cloud over loopback from 4 client
// threads, each on its own keep-alive connection. The emulator must never be
// the bottleneck of a load benchmark: the goal is at least 2,000 requests a
// second. Traffic is bounded: the benchmark stops after its fixed iterations.
#include <benchmark/benchmark.h>

#include <memory>
#include <mutex>

#include <curl/curl.h>

#include "cloud_emulator.h"
#include "cloud_wire_client.h"

namespace {

using spacemgm_test::CloudEmulator;

CloudEmulator& SharedEmulator()
{
    static std::once_flag once;
    static std::unique_ptr<CloudEmulator> cloud;
    std::call_once(once, [] { cloud = std::make_unique<CloudEmulator>(); });
    return *cloud;
}

size_t Discard(char*, size_t size, size_t count, void* body)
{
    static_cast<std::string*>(body)->append(size * count, ' ');
    return size * count;
}

void BM_PhotoQuotaQuery(benchmark::State& state)
{
    CloudEmulator& cloud = SharedEmulator();
    auto session = spacemgm_test::SessionOfFixture(CloudEmulator::FixturePath("sample"));
    const std::string url = cloud.BaseUrl("familyShare") + "/rest.php";
    const std::string form = spacemgm_test::QuotaForm(
        session.accessToken, "collection=photo and (trashed=true or trashed=false)", "10880002");
    curl_slist* headers = nullptr;
    for (const auto& [name, value] : spacemgm_test::ModuleHeaders("familyShare", session))
        headers = curl_slist_append(headers, (name + ": " + value).c_str());
    std::unique_ptr<CURL, decltype(&curl_easy_cleanup)> curl(curl_easy_init(), curl_easy_cleanup);
    std::string body;
    curl_easy_setopt(curl.get(), CURLOPT_URL, url.c_str());
    curl_easy_setopt(curl.get(), CURLOPT_POSTFIELDS, form.c_str());
    curl_easy_setopt(curl.get(), CURLOPT_POSTFIELDSIZE, static_cast<long>(form.size()));
    curl_easy_setopt(curl.get(), CURLOPT_HTTPHEADER, headers);
    curl_easy_setopt(curl.get(), CURLOPT_WRITEFUNCTION, Discard);
    curl_easy_setopt(curl.get(), CURLOPT_WRITEDATA, &body);
    curl_easy_setopt(curl.get(), CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(curl.get(), CURLOPT_TIMEOUT, 10L);
    int64_t failures = 0;
    for (auto _ : state) {
        body.clear();
        long status = 0;
        if (curl_easy_perform(curl.get()) != CURLE_OK ||
            curl_easy_getinfo(curl.get(), CURLINFO_RESPONSE_CODE, &status) != CURLE_OK || status != 200)
            ++failures;
        benchmark::DoNotOptimize(body.data());
    }
    curl_slist_free_all(headers);
    state.SetItemsProcessed(state.iterations());
    state.counters["failures"] = static_cast<double>(failures);
    if (failures > 0)
        state.SkipWithError("some requests failed");
}
BENCHMARK(BM_PhotoQuotaQuery)->Threads(4)->Iterations(2500)->UseRealTime();

} // namespace

BENCHMARK_MAIN();
