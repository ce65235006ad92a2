// Digest throughput: the buffered-stream MD5 against the positioned-read
// variant on one 64 MiB file, in turns, and the SHA-256 of the same file and
// the CRC-32 with its per-call table rebuild.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>

#include "bench/support/interleaved_pair.h"
#include "foundation/utilities.h"

namespace {

const std::filesystem::path& BenchFile()
{
    static const std::filesystem::path path = [] {
        const auto file = std::filesystem::path(SPACEMGM_BINARY_DIR) / "bench-tmp" / "hash-64mib.bin";
        std::filesystem::create_directories(file.parent_path());
        std::ofstream out(file, std::ios::binary | std::ios::trunc);
        std::string block(1 << 20, '\0');
        for (size_t i = 0; i < block.size(); ++i) {
            block[i] = static_cast<char>(i * 2654435761u >> 24);
        }
        for (int i = 0; i < 64; ++i) {
            out.write(block.data(), static_cast<std::streamsize>(block.size()));
        }
        return file;
    }();
    return path;
}

// The two MD5 readers in turns (bench/support/interleaved_pair.h).
void BM_Md5OfFileAgainstMd5OfFileLarge(benchmark::State& state)
{
    const std::wstring path = BenchFile().wstring();
    bench_support::RunInterleaved(
        state, "stream",
        [&path] {
            uint64_t size = 0;
            const std::string digest = Md5OfFile(path, size);
            benchmark::DoNotOptimize(digest.data());
            return size == (64u << 20);
        },
        "positioned",
        [&path] {
            const std::string digest = Md5OfFileLarge(path);
            benchmark::DoNotOptimize(digest.data());
            return !digest.empty();
        });
}
BENCHMARK(BM_Md5OfFileAgainstMd5OfFileLarge)->UseManualTime()->Unit(benchmark::kMillisecond)->MinTime(3.0);

void BM_Sha256OfFile(benchmark::State& state)
{
    const std::wstring path = BenchFile().wstring();
    for (auto _ : state) {
        benchmark::DoNotOptimize(Sha256OfFile(path));
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations()) * (64 << 20));
}
BENCHMARK(BM_Sha256OfFile)->Unit(benchmark::kMillisecond);

void BM_Crc32ShortText(benchmark::State& state)
{
    const std::string text = "d41d8cd98f00b204e9800998ecf8427e1";
    for (auto _ : state) {
        benchmark::DoNotOptimize(Crc32(text));
    }
}
BENCHMARK(BM_Crc32ShortText);

} // namespace
