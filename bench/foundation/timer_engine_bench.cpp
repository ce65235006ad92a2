// AddTimer while the engine runs, from one thread and from four: calls per
// second (items_per_second). Each thread cycles through 1000 ids of its own,
// so after the first round every call restarts a timer, and the timer
// thread keeps walking 1000 timers per thread every 100 ms meanwhile.
#include <benchmark/benchmark.h>

#include <cstdint>

#include "foundation/timer_engine.h"

namespace {

class IdleCallback : public ITimerEngineCallBack
{
public:
    bool OnTimerCallBack(uint32_t, uint32_t) override { return true; }
};

IdleCallback callbacks[64];

void BM_AddTimerWhileRunning(benchmark::State& state)
{
    TimerEngine* engine = TimerEngine::GetInstance();
    if (state.thread_index() == 0) {
        engine->Start();
    }
    ITimerEngineCallBack* callback = &callbacks[state.thread_index()];
    uint32_t id = 0;
    for (auto _ : state) {
        // Long enough never to fire during the run.
        benchmark::DoNotOptimize(engine->AddTimer(callback, id, 600000, 1, 0));
        id = (id + 1) % 1000;
    }
    state.SetItemsProcessed(state.iterations());
    if (state.thread_index() == 0) {
        engine->Stop();
    }
}
BENCHMARK(BM_AddTimerWhileRunning)->Threads(1)->Threads(4)->UseRealTime();

} // namespace
