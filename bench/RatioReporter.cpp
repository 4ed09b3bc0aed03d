#include "RatioReporter.h"

#include <algorithm>
#include <iomanip>
#include <iostream>
#include <optional>

namespace lineforge::bench
{

namespace
{
constexpr double milliseconds = 1e3;

double Lowest(const std::vector<double>& runs)
{
    return *std::ranges::min_element(runs);
}

// By how much the middle one of the runs is longer than the lowest.
double Noise(std::vector<double> runs)
{
    const auto middle = runs.begin() + static_cast<std::ptrdiff_t>(runs.size() / 2);
    std::ranges::nth_element(runs, middle);
    return *middle / Lowest(runs);
}
// Of one iteration, by the clock where that was asked for, else by the processor.
double Seconds(const benchmark::BenchmarkReporter::Run& run)
{
    const std::string& type = run.run_name.time_type;
    const bool isByClock = type.ends_with("real_time") || type.ends_with("manual_time");
    return (isByClock ? run.real_accumulated_time : run.cpu_accumulated_time) / static_cast<double>(run.iterations);
}

// Why a run has no figures. Newer versions of the library tell it by another name.
template <class Run>
std::optional<std::string> WhyWithoutFigures(const Run& run)
{
    if constexpr (requires { run.skipped; })
        return run.skipped ? std::optional(run.skip_message) : std::nullopt;
    else
        return run.error_occurred ? std::optional(run.error_message) : std::nullopt;
}
} // namespace

RatioReporter::RatioReporter(std::vector<Limit> limits) : limits_(std::move(limits)) {}

bool RatioReporter::ReportContext(const Context& context)
{
    PrintBasicContext(&GetErrorStream(), context);
    return true;
}

void RatioReporter::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs) {
        if (const auto why = WhyWithoutFigures(run)) {
            GetErrorStream() << run.benchmark_name() << ": " << *why << '\n';
            allKept_ = false;
        } else if (run.run_type == Run::RT_Iteration) {
            runs_[run.run_name.function_name].push_back(Seconds(run));
        }
    }
}

void RatioReporter::Finalize()
{
    std::ostream& out = GetOutputStream();
    out << std::fixed << std::setprecision(2) << "lowest of many runs, in ms (noise: the middle one by the lowest)\n";
    for (const auto& [name, runs] : runs_)
        out << "  " << name << ": " << Lowest(runs) * milliseconds << "  (" << runs.size() << " runs, noise "
            << Noise(runs) << ")\n";
    out << "\nagainst their floors\n";
    for (const Limit& limit : limits_) {
        const auto ours = runs_.find(limit.Ours);
        const auto floor = runs_.find(limit.Floor);
        if (ours != runs_.end() && floor != runs_.end())
            Tell(limit, ours->second, floor->second);
    }
}

void RatioReporter::Tell(const Limit& limit, const std::vector<double>& ours, const std::vector<double>& floor)
{
    const double measured = limit.How == Measure::Times ? Lowest(ours) / Lowest(floor) : Lowest(ours) - Lowest(floor);
    const bool isKept = measured <= limit.Most;
    allKept_ = allKept_ && isKept;
    GetOutputStream() << "  " << limit.What << ": " << measured << (limit.How == Measure::More ? " more" : "")
                      << ", at most " << limit.Most << (isKept ? "" : "  BROKEN") << '\n';
}

} // namespace lineforge::bench
