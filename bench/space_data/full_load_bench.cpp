// One full load (configuration refresh, `CloudSpaceQuery::Task` with the bar
// data, then `GetCloudInfo`) against spacemgm-cloud, over plain HTTP and over
// TLS. The sides run interleaved, each one first in turn, so that a change
// in the machine's load hits all alike.
//
// BM_WarmLoadHttpAgainstTls: 50 ms added to every request, connections kept
// from the last load, as a refresh of an open window meets them. Each side
// runs the load twice: as the window's load thread runs it, with the twelve
// categories on their own threads, and with the same steps one category
// after another. Counters, per side (http_, tls_):
//   chain_ms      the longest chain of sequential requests times 50 ms: the
//                 two requests before the fan-out plus the category that
//                 needs the most requests one after another, as counted in
//                 the emulator's log during the sequential run
//   vs_chain      wall time of the load / chain_ms (goal: at most 1.15)
//   sequential_ms wall time of the one-after-another load
//   speedup       sequential_ms / wall time of the load (goal: at least 4)
//   requests      requests of one load
//
// BM_ColdLoadHttpAgainstTls: no added latency and a fresh connection cache
// before every load, as when the window first opens: every connection is new
// and, over TLS, pays its handshake and the loading of the CA store. Three
// sides in turns: plain HTTP, TLS trusting the emulator's CA alone, and TLS
// trusting the system's bundle plus the emulator's CA, as a user's machine
// trusts its roots. Counters: http_ms, tls_ms, tls_vs_http (goal: at most
// 1.15), tls_roots_ms, tls_roots_vs_http.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <fstream>
#include <memory>

#include "app/space_load.h"
#include "host/curl_connection_cache.h"
#include "host/host_config.h"
#include "platform/operation_manage_service.h"
#include "space_data/cloud_space_query.h"
#include "space_fixture.h"

namespace {

using spacemgm_test::CloudEmulator;
using Clock = std::chrono::steady_clock;

constexpr int kLatencyMs = 50;

const CloudSpaceType kItemCategories[] = {
    Browser, Calendar, CloudDisk, Contact,  Gallery, HarassmentInterception,
    Message, Notepad,  Phone,     Recorder, Wlan};

double MillisecondsSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

// A user's TLS connections are verified against the system's store of some
// 140 roots, not against one CA: a side with `systemRoots` trusts the
// system's bundle with the emulator's CA added, so that loading the store
// costs what it costs on a user's machine.
std::string TrustBundleWith(const CloudEmulator& cloud)
{
    const std::string path = cloud.WorkDir() + "/trust-bundle.pem";
    std::ofstream out(path, std::ios::binary);
    out << std::ifstream("/etc/ssl/certs/ca-certificates.crt", std::ios::binary).rdbuf();
    out << std::ifstream(cloud.CaFile(), std::ios::binary).rdbuf();
    return path;
}

enum class Transport
{
    Http,
    Tls,
    TlsWithSystemRoots,
};

// One emulator and the host configuration that points at it.
struct Side
{
    explicit Side(Transport transport)
        : cloud([transport] {
              CloudEmulator::Options options;
              options.tls = transport != Transport::Http;
              return options;
          }()),
          config(space_test::ConfigFor(cloud))
    {
        if (transport == Transport::TlsWithSystemRoots) {
            config.caFile = TrustBundleWith(cloud);
        }
    }
    CloudEmulator cloud;
    host::HostConfig config;
};

// Runs one load on the side; returns its wall time, or a negative value when
// it did not yield all twelve rows.
double TimedLoad(const Side& side)
{
    host::SetCurrentHostConfig(side.config);
    space_test::WiredViewModel wired;
    const auto start = Clock::now();
    const app::UsageReport report = app::RunUsageLoad(wired.viewModel);
    const double elapsedMs = MillisecondsSince(start);
    return report.items.size() == 12 ? elapsedMs : -1;
}

struct SequentialRun
{
    double milliseconds = 0;
    int longestCategoryChain = 0;
    int requests = 0;
};

// The load's steps in order, on this thread alone; counts each step's
// requests from the emulator's log.
SequentialRun RunOneAfterAnother(CloudEmulator& cloud, CloudSpaceManagementViewModel& viewModel)
{
    SequentialRun run;
    cloud.ClearLog();
    const auto start = Clock::now();
    COperationManageService::GetInstance()->GetSpaceOMConfig();
    CloudSpaceQuery::GetInstance()->Task();
    double pausedMs = 0;
    auto countStep = [&]() {
        const auto pause = Clock::now();
        const int requests = static_cast<int>(cloud.RequestLog().size());
        cloud.ClearLog();
        run.requests += requests;
        pausedMs += MillisecondsSince(pause);
        return requests;
    };
    countStep();
    viewModel.GetBackUpData();
    run.longestCategoryChain = countStep();
    std::vector<std::shared_ptr<CloudSpaceItem>> items;
    for (CloudSpaceType type : kItemCategories) {
        viewModel.GetItemSpace(type, items);
        run.longestCategoryChain = std::max(run.longestCategoryChain, countStep());
    }
    run.milliseconds = MillisecondsSince(start) - pausedMs;
    return run;
}

struct WarmTotals
{
    double loadMs = 0;
    double sequentialMs = 0;
    int chainRequests = 0;
    int requests = 0;
};

bool RunWarmSide(Side& side, WarmTotals& totals)
{
    const double loadMs = TimedLoad(side);
    if (loadMs < 0) {
        return false;
    }
    totals.loadMs += loadMs;
    space_test::WiredViewModel sequential;
    const SequentialRun run = RunOneAfterAnother(side.cloud, sequential.viewModel);
    totals.sequentialMs += run.milliseconds;
    // The configuration download and the quota query come before the fan-out.
    totals.chainRequests = 2 + run.longestCategoryChain;
    totals.requests = run.requests;
    return true;
}

void ReportWarm(benchmark::State& state, const char* prefix, const WarmTotals& totals)
{
    const double iterations = static_cast<double>(state.iterations());
    const double chainMs = totals.chainRequests * kLatencyMs;
    const std::string name(prefix);
    state.counters[name + "chain_ms"] = chainMs;
    state.counters[name + "vs_chain"] = totals.loadMs / iterations / chainMs;
    state.counters[name + "sequential_ms"] = totals.sequentialMs / iterations;
    state.counters[name + "speedup"] = totals.sequentialMs / totals.loadMs;
    state.counters[name + "requests"] = totals.requests;
}

void BM_WarmLoadHttpAgainstTls(benchmark::State& state)
{
    Side sides[] = {Side(Transport::Http), Side(Transport::Tls)};
    Json::Value latency;
    latency["kind"] = "latency";
    latency["latencyMs"] = kLatencyMs;
    WarmTotals totals[2];
    for (Side& side : sides) {
        side.cloud.AddFault(latency);
        TimedLoad(side); // connections are warm from here on
    }
    int iteration = 0;
    for (auto _ : state) {
        const auto start = Clock::now();
        for (int turn = 0; turn < 2; ++turn) {
            const int which = (iteration + turn) % 2;
            if (!RunWarmSide(sides[which], totals[which])) {
                state.SkipWithError("the load did not yield all twelve rows");
                return;
            }
        }
        ++iteration;
        state.SetIterationTime(MillisecondsSince(start) / 1000.0);
    }
    ReportWarm(state, "http_", totals[0]);
    ReportWarm(state, "tls_", totals[1]);
}

void BM_ColdLoadHttpAgainstTls(benchmark::State& state)
{
    Side sides[] = {Side(Transport::Http), Side(Transport::Tls), Side(Transport::TlsWithSystemRoots)};
    constexpr int kSides = 3;
    // The first load of the process builds what every later one reuses (the
    // log files, the device identity, the singletons); it is left out.
    for (const Side& side : sides) {
        TimedLoad(side);
    }
    double totalMs[kSides] = {0, 0, 0};
    int iteration = 0;
    for (auto _ : state) {
        double iterationMs = 0;
        for (int turn = 0; turn < kSides; ++turn) {
            const int which = (iteration + turn) % kSides;
            host::ResetConnectionCache();
            const double loadMs = TimedLoad(sides[which]);
            if (loadMs < 0) {
                state.SkipWithError("the load did not yield all twelve rows");
                return;
            }
            totalMs[which] += loadMs;
            iterationMs += loadMs;
        }
        ++iteration;
        state.SetIterationTime(iterationMs / 1000.0);
    }
    const double iterations = static_cast<double>(state.iterations());
    state.counters["http_ms"] = totalMs[0] / iterations;
    state.counters["tls_ms"] = totalMs[1] / iterations;
    state.counters["tls_vs_http"] = totalMs[1] / totalMs[0];
    state.counters["tls_roots_ms"] = totalMs[2] / iterations;
    state.counters["tls_roots_vs_http"] = totalMs[2] / totalMs[0];
}

BENCHMARK(BM_WarmLoadHttpAgainstTls)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(6);
BENCHMARK(BM_ColdLoadHttpAgainstTls)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(40);

} // namespace

BENCHMARK_MAIN();
