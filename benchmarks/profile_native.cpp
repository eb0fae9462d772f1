#include <benchmark/benchmark.h>

#include "benchmarks/sampleprofile.h"
#include "platform/headless/headless.h"
#include "profile/profilefile.h"

namespace {

using namespace quirn;

constexpr char kFile[] = "C:\\game\\sample.qrn";

void SaveQrn(benchmark::State& state) {
    headless::MakeFolder("C:\\game");
    const Profile profile = SampleProfile();
    for (auto _ : state) benchmark::DoNotOptimize(SaveProfile(profile, "C:\\game", kFile));
}
BENCHMARK(SaveQrn)->Unit(benchmark::kMicrosecond);

void LoadQrn(benchmark::State& state) {
    headless::MakeFolder("C:\\game");
    Profile profile = SampleProfile();
    SaveProfile(profile, "C:\\game", kFile);
    for (auto _ : state) benchmark::DoNotOptimize(LoadProfile(profile, kFile));
}
BENCHMARK(LoadQrn)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
