// One full load (configuration refresh, `CloudSpaceQuery::Task` with the bar
// data, then `GetCloudInfo`) against spacemgm-cloud, with 50 ms added to
// every request, over plain HTTP and over TLS.
//
// Each iteration runs the load twice: as the window's load thread runs it,
// with the twelve categories on their own threads, and with the same steps
// one category after another. The iteration's time is the first. Counters:
//   chain_ms      the longest chain of sequential requests times 50 ms: the
//                 two requests before the fan-out plus the category that
//                 needs the most requests one after another, as counted in
//                 the emulator's log during the sequential run
//   vs_chain      wall time of the load / chain_ms (goal: at most 1.15)
//   sequential_ms wall time of the one-after-another load
//   speedup       sequential_ms / wall time of the load (goal: at least 4)
//   requests      requests of one load
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <memory>

#include "app/space_load.h"
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

void FullLoad(benchmark::State& state, bool tls)
{
    CloudEmulator::Options options;
    options.tls = tls;
    CloudEmulator cloud(options);
    host::SetCurrentHostConfig(space_test::ConfigFor(cloud));
    Json::Value latency;
    latency["kind"] = "latency";
    latency["latencyMs"] = kLatencyMs;
    cloud.AddFault(latency);

    double loadMs = 0;
    double sequentialMs = 0;
    int chainRequests = 0;
    int requests = 0;
    for (auto _ : state) {
        space_test::WiredViewModel wired;
        const auto start = Clock::now();
        const app::UsageReport report = app::RunUsageLoad(wired.viewModel);
        const double elapsedMs = MillisecondsSince(start);
        state.SetIterationTime(elapsedMs / 1000.0);
        if (report.items.size() != 12) {
            state.SkipWithError("the load did not yield all twelve rows");
            break;
        }
        loadMs += elapsedMs;

        space_test::WiredViewModel sequential;
        const SequentialRun run = RunOneAfterAnother(cloud, sequential.viewModel);
        sequentialMs += run.milliseconds;
        // The configuration download and the quota query come before the fan-out.
        chainRequests = 2 + run.longestCategoryChain;
        requests = run.requests;
    }
    const double iterations = static_cast<double>(state.iterations());
    const double chainMs = chainRequests * kLatencyMs;
    state.counters["chain_ms"] = chainMs;
    state.counters["vs_chain"] = loadMs / iterations / chainMs;
    state.counters["sequential_ms"] = sequentialMs / iterations;
    state.counters["speedup"] = sequentialMs / loadMs;
    state.counters["requests"] = requests;
}

void BM_FullLoadHttp(benchmark::State& state)
{
    FullLoad(state, false);
}

void BM_FullLoadTls(benchmark::State& state)
{
    FullLoad(state, true);
}

BENCHMARK(BM_FullLoadHttp)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(BM_FullLoadTls)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);

} // namespace

BENCHMARK_MAIN();
