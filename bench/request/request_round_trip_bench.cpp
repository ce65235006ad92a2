// One photo quota query through RunRequest against the same request sent
// with bare libcurl on a kept connection (goal: at most 1.2 times as long),
// and twelve such queries at once over TLS, through the module's shared
// connection cache against twelve fresh connections (the ratio is reported).
// Both sides send the module's header set and form and read the whole reply.
// Each comparison runs its two sides in turns (bench/support/interleaved_pair.h).
#include <benchmark/benchmark.h>

#include <atomic>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include <curl/curl.h>

#include "bench/support/interleaved_pair.h"
#include "cloud_emulator.h"
#include "cloud_wire_client.h"
#include "foundation/advanced_enum.h"
#include "foundation/device_identity.h"
#include "foundation/utilities.h"
#include "host/host_config.h"
#include "request/postable_string.h"
#include "request/run_request.h"

namespace {

using spacemgm_test::CloudEmulator;

constexpr int kConcurrentRequests = 12;
const char* const kPhotoFilter = "collection=photo and (trashed=true or trashed=false)";

CloudEmulator& Emulator(bool tls)
{
    // One emulator per transport for the whole run; started on first use.
    static std::unique_ptr<CloudEmulator> plain, secure;
    std::unique_ptr<CloudEmulator>& slot = tls ? secure : plain;
    if (!slot) {
        CloudEmulator::Options options;
        options.tls = tls;
        slot = std::make_unique<CloudEmulator>(options);
    }
    host::SetCurrentHostConfig(host::LoadHostConfigFile(slot->ConfigPath()));
    return *slot;
}

bool QueryThroughTheModule()
{
    const std::string token = host::CurrentHostConfig().session.accessToken;
    const auto reply = RunRequest<GetQuotaUsedInfoResponse>(
        FindEnumRow<FamilyShareType>(2),
        std::make_shared<PostableString>(ToFormText(MakePhotoQuotaQuery(token))));
    return reply != nullptr && reply->retCode == 0;
}

size_t Collect(char* data, size_t size, size_t count, void* body)
{
    static_cast<std::string*>(body)->append(data, size * count);
    return size * count;
}

// The module's request for the photo quota, written out for bare libcurl.
class BareQuotaRequest
{
public:
    explicit BareQuotaRequest(const CloudEmulator& cloud)
        : url_(cloud.BaseUrl("familyShare") + "/rest.php"), caFile_(cloud.CaFile())
    {
        spacemgm_test::WireSession session =
            spacemgm_test::SessionOfFixture(CloudEmulator::FixturePath("sample"));
        session.deviceName = UrlEncode(GetDeviceModel());
        form_ = spacemgm_test::QuotaForm(session.accessToken, kPhotoFilter, "10880002");
        for (const auto& [name, value] : spacemgm_test::ModuleHeaders("familyShare", session)) {
            headers_ =
                curl_slist_append(headers_, (value.empty() ? name + ";" : name + ": " + value).c_str());
        }
        headers_ = curl_slist_append(headers_, "Accept:");
        headers_ = curl_slist_append(headers_, "Expect:");
    }
    ~BareQuotaRequest() { curl_slist_free_all(headers_); }
    BareQuotaRequest(const BareQuotaRequest&) = delete;
    BareQuotaRequest& operator=(const BareQuotaRequest&) = delete;

    void Prepare(CURL* curl, std::string& body) const
    {
        curl_easy_setopt(curl, CURLOPT_URL, url_.c_str());
        curl_easy_setopt(curl, CURLOPT_POSTFIELDS, form_.c_str());
        curl_easy_setopt(curl, CURLOPT_POSTFIELDSIZE, static_cast<long>(form_.size()));
        curl_easy_setopt(curl, CURLOPT_HTTPHEADER, headers_);
        curl_easy_setopt(curl, CURLOPT_WRITEFUNCTION, Collect);
        curl_easy_setopt(curl, CURLOPT_WRITEDATA, &body);
        curl_easy_setopt(curl, CURLOPT_NOSIGNAL, 1L);
        curl_easy_setopt(curl, CURLOPT_TIMEOUT, 10L);
        if (!caFile_.empty()) {
            curl_easy_setopt(curl, CURLOPT_CAINFO, caFile_.c_str());
        }
    }

    static bool Perform(CURL* curl)
    {
        long status = 0;
        return curl_easy_perform(curl) == CURLE_OK &&
               curl_easy_getinfo(curl, CURLINFO_RESPONSE_CODE, &status) == CURLE_OK && status == 200;
    }

private:
    std::string url_;
    std::string caFile_;
    std::string form_;
    curl_slist* headers_ = nullptr;
};

void BM_RunRequestAgainstBareCurl(benchmark::State& state)
{
    const BareQuotaRequest request(Emulator(false));
    std::unique_ptr<CURL, decltype(&curl_easy_cleanup)> curl(curl_easy_init(), curl_easy_cleanup);
    std::string body;
    request.Prepare(curl.get(), body);
    bench_support::RunInterleaved(
        state, "run_request", [] { return QueryThroughTheModule(); }, "bare_curl",
        [&] {
            body.clear();
            const bool ok = BareQuotaRequest::Perform(curl.get());
            benchmark::DoNotOptimize(body.data());
            return ok;
        });
}
BENCHMARK(BM_RunRequestAgainstBareCurl)->UseManualTime()->Unit(benchmark::kMicrosecond)->MinTime(4.0);

// Twelve threads start together and each sends one query; a call ends when
// all twelve have their answer.
template <class Send> bool RunTwelveAtOnce(const Send& send)
{
    std::atomic<int> failures{0};
    std::vector<std::thread> workers;
    workers.reserve(kConcurrentRequests);
    for (int i = 0; i < kConcurrentRequests; ++i) {
        workers.emplace_back([&] { failures += send() ? 0 : 1; });
    }
    for (auto& worker : workers) {
        worker.join();
    }
    return failures.load() == 0;
}

void BM_TwelveTlsRequestsSharedCacheAgainstFreshConnections(benchmark::State& state)
{
    const BareQuotaRequest request(Emulator(true));
    bench_support::RunInterleaved(
        state, "shared_cache", [] { return RunTwelveAtOnce(QueryThroughTheModule); }, "fresh_connections",
        [&request] {
            return RunTwelveAtOnce([&request] {
                std::unique_ptr<CURL, decltype(&curl_easy_cleanup)> curl(curl_easy_init(), curl_easy_cleanup);
                std::string body;
                request.Prepare(curl.get(), body);
                curl_easy_setopt(curl.get(), CURLOPT_FRESH_CONNECT, 1L);
                curl_easy_setopt(curl.get(), CURLOPT_FORBID_REUSE, 1L);
                return BareQuotaRequest::Perform(curl.get());
            });
        });
}
BENCHMARK(BM_TwelveTlsRequestsSharedCacheAgainstFreshConnections)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->MinTime(6.0);

} // namespace

BENCHMARK_MAIN();
