#include "bench/TransferRun.h"

#include "bench/PacedRadio.h"
#include "robot/Process.h"
#include "robot/Pump.h"
#include "transfer/TransferClock.h"

#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <list>
#include <thread>
#include <vector>

namespace {

using Seconds = std::chrono::duration<double>;

/// The system's clock with waits that use all of the processor.
class SpinningClock : public TransferClock {
public:
    Moment Now() const override { return SystemClock().Now(); }
    wxDateTime Date() const override { return SystemClock().Date(); }
    void HandleEvents() override { SystemClock().HandleEvents(); }
    void AwaitDrawing(const std::function<bool()>& isDrawn, Moment end) override {
        SystemClock().AwaitDrawing(isDrawn, end);
    }
    void WaitForText(Moment /*end*/, wxChar /*lineEnd*/) override {}
    void SleepUntil(Moment end) override {
        while (Now() < end) {
        }
    }
};

/// Keeps all cores busy from construction to destruction.
class BusyCores {
public:
    BusyCores() {
        const std::string self = std::filesystem::read_symlink("/proc/self/exe").string();
        for (unsigned core = 0; core < std::thread::hardware_concurrency(); ++core)
            m_processes.emplace_back(std::vector<std::string>{self, "--keep-busy"});
    }

private:
    std::list<testbench::Process> m_processes;
};

/// Processor time of all threads of this process.
Seconds ProcessorTime() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto length = [](const timeval& time) {
        return std::chrono::seconds(time.tv_sec) + std::chrono::microseconds(time.tv_usec);
    };
    return length(usage.ru_utime) + length(usage.ru_stime);
}

/// Returns the smallest value that `share` of the values don't exceed.
double Quantile(const std::vector<double>& sorted, double share) {
    const auto rank = static_cast<size_t>(share * static_cast<double>(sorted.size()));
    return sorted[std::min(rank, sorted.size() - 1)];
}

void ReportReplies(benchmark::State& state, std::vector<double> times, int count) {
    if (std::ssize(times) < count)
        return state.SkipWithError("replies to the radio are missing");
    times.erase(times.begin(), times.end() - count);
    std::sort(times.begin(), times.end());
    state.counters["reply_median"] = Quantile(times, 0.5);
    state.counters["reply_99"] = Quantile(times, 0.99);
}

} // namespace

void MeasureTransfer(benchmark::State& state, const PacedRadio& radio, Conditions conditions, int replies,
                     const std::function<int(TransferClock&)>& transfer) {
    constexpr int complete = 1;
    // A new page would be drawn within the transfer.
    testbench::PumpUntilIdle();
    SpinningClock spinning;
    std::list<BusyCores> load;
    if (conditions == Conditions::BusyCores)
        load.emplace_back();
    const Seconds processorBegin = ProcessorTime();
    const auto begin = std::chrono::steady_clock::now();
    const int status = transfer(conditions == Conditions::Spinning ? spinning : SystemClock());
    const Seconds taken = std::chrono::steady_clock::now() - begin;
    const Seconds processor = ProcessorTime() - processorBegin;
    if (status != complete)
        return state.SkipWithError(("the transfer ended with " + std::to_string(status)).c_str());
    state.SetIterationTime(taken.count());
    state.counters["processor_percent"] = 100 * processor / taken;
    if (replies > 0)
        ReportReplies(state, radio.ReplyTimes(), replies);
}

void RegisterTransfer(const std::string& name, double floor,
                      const std::function<void(benchmark::State&, Conditions)>& run) {
    const auto add = [](const std::string& side, const std::function<void(benchmark::State&)>& measure) {
        benchmark::RegisterBenchmark(side.c_str(), measure)
            ->Unit(benchmark::kMillisecond)
            ->Iterations(1)
            ->UseManualTime();
    };
    // The floor is computed, not measured.
    const auto prescribed = [floor](benchmark::State& state) {
        for ([[maybe_unused]] auto _ : state)
            state.SetIterationTime(floor);
    };
    add("transfer/" + name + "/program", [run](benchmark::State& state) { run(state, Conditions::Program); });
    add("transfer/" + name + "/floor", prescribed);
    add("transfer/" + name + "/spinning",
        [run](benchmark::State& state) { run(state, Conditions::Spinning); });
    add("busy/" + name + "/program", [run](benchmark::State& state) { run(state, Conditions::BusyCores); });
    add("busy/" + name + "/floor", prescribed);
}

void KeepBusy() {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    // The system shares the processor out among sessions first: other work is not part of this program's.
    setsid();
    for (std::atomic<unsigned> work = 0;;)
        work.fetch_add(1, std::memory_order_relaxed);
}
