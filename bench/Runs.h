#pragma once

#include <benchmark/benchmark.h>

namespace lineforge::bench
{

// Many short runs of a benchmark, among which those of the others are mixed: of them the lowest counts, by the time of
// the processor, which others on the machine don't add to. A run is as short as can be, so that some of them are
// disturbed by nobody. What a run needs beforehand is made once and kept, since that takes longer than the run.
template <int Runs, int IterationsOfRun = 1>
void ShortRuns(benchmark::internal::Benchmark* benchmark)
{
    benchmark->Iterations(IterationsOfRun)->Repetitions(Runs)->MeasureProcessCPUTime();
}

} // namespace lineforge::bench
