// What one request pays for its type: a copy into the request object, the
// interface path and the trace identifier.
#include <benchmark/benchmark.h>

#include "foundation/advanced_enum.h"

static void BM_CopyRequestType(benchmark::State& state)
{
    for (auto _ : state) {
        AdvancedIntEnumType copy(kCloudPhotoInterfaceType3);
        benchmark::DoNotOptimize(copy);
    }
}
BENCHMARK(BM_CopyRequestType);

static void BM_InterfacePath(benchmark::State& state)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(GetInterfacePathOf(kPimDataVerionType0));
    }
}
BENCHMARK(BM_InterfacePath);

static void BM_RequestTraceId(benchmark::State& state)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(GetRequestTraceId(kCbsType0));
    }
}
BENCHMARK(BM_RequestTraceId);

static void BM_RequestTraceIdWithoutLogRow(benchmark::State& state)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(GetRequestTraceId(kNspRequestType3));
    }
}
BENCHMARK(BM_RequestTraceIdWithoutLogRow);

BENCHMARK_MAIN();
