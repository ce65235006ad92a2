// Text helpers on the request path: UTF-8 conversion, URL encoding, Base64.
#include <benchmark/benchmark.h>

#include "foundation/utilities.h"

namespace {

void BM_WideToUtf8(benchmark::State& state)
{
    const std::wstring text(static_cast<size_t>(state.range(0)), L'\u4e91');
    for (auto _ : state) {
        benchmark::DoNotOptimize(WideToUtf8(text));
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_WideToUtf8)->Arg(64)->Arg(4096);

void BM_NarrowToWideUtf8(benchmark::State& state)
{
    const std::string text = WideToUtf8(std::wstring(static_cast<size_t>(state.range(0)), L'\u4e91'));
    for (auto _ : state) {
        std::wstring out;
        benchmark::DoNotOptimize(NarrowToWide(text, out, kCodePageUtf8));
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_NarrowToWideUtf8)->Arg(64)->Arg(4096);

void BM_UrlEncode(benchmark::State& state)
{
    const std::string text = "path=/Photos/2024 summer/IMG_0001.jpg&cursor=a+b/c";
    for (auto _ : state) {
        benchmark::DoNotOptimize(UrlEncode(text));
    }
}
BENCHMARK(BM_UrlEncode);

void BM_Base64Encode(benchmark::State& state)
{
    const std::string data(static_cast<size_t>(state.range(0)), 'x');
    for (auto _ : state) {
        benchmark::DoNotOptimize(Base64Encode(data.data(), static_cast<int>(data.size())));
    }
    state.SetBytesProcessed(state.iterations() * state.range(0));
}
BENCHMARK(BM_Base64Encode)->Arg(48)->Arg(65536);

} // namespace
