#include "RatioReporter.h"

#include <algorithm>
#include <iomanip>
#include <iostream>

namespace lineforge::bench
{

namespace
{
constexpr double aMillisecond = 1e-3; // in seconds

double Median(std::vector<double> times)
{
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

double Spread(const std::vector<double>& times)
{
    const auto [least, most] = std::minmax_element(times.begin(), times.end());
    return *most / *least;
}
} // namespace

RatioReporter::RatioReporter(std::vector<Ratio> ratios) : ConsoleReporter(OO_Tabular), ratios_(std::move(ratios)) {}

void RatioReporter::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs)
        allKept_ = allKept_ && !run.error_occurred;
    for (const Run& run : runs)
        if (run.run_type == Run::RT_Iteration && !run.error_occurred)
            times_[run.run_name.function_name].push_back(run.real_accumulated_time /
                                                         static_cast<double>(run.iterations));
    ConsoleReporter::ReportRuns(runs);
}

void RatioReporter::Finalize()
{
    std::cout << "\nratios of medians (noise: longest by shortest of the same)\n" << std::fixed << std::setprecision(2);
    for (const Ratio& ratio : ratios_) {
        const auto ours = times_.find(ratio.Ours);
        const auto against = times_.find(ratio.Against);
        const bool isAlone = ratio.Against.empty();
        if (ours == times_.end() || (!isAlone && against == times_.end()))
            continue;
        const double measured = Median(ours->second) / (isAlone ? aMillisecond : Median(against->second));
        const bool isKept = measured <= ratio.Limit;
        allKept_ = allKept_ && isKept;
        std::cout << "  " << ratio.What << ": " << measured << (isAlone ? " ms" : "") << ", at most " << ratio.Limit
                  << (isKept ? "" : "  BROKEN") << "  (noise " << Spread(ours->second);
        if (!isAlone)
            std::cout << " and " << Spread(against->second);
        std::cout << ")\n";
    }
}

} // namespace lineforge::bench
