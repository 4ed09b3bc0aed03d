#pragma once

#include <benchmark/benchmark.h>
#include <map>
#include <string>
#include <vector>

namespace lineforge::bench
{

// A figure that is kept: how many times as long the one may take as the other, both measured in this run. A reading
// under load can be off; a limit that is broken twice in a row is a finding.
struct Ratio {
    std::string What;
    std::string Ours;
    std::string Against; // empty: the figure is Ours alone, in milliseconds
    double Limit;
};

// Prints each benchmark as it comes, and after all of them the ratios of the medians.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    explicit RatioReporter(std::vector<Ratio> ratios);

    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

    // Whether all ratios were measured and within their limits.
    bool AllKept() const { return allKept_; }

private:
    std::vector<Ratio> ratios_;
    std::map<std::string, std::vector<double>> times_; // seconds an iteration
    bool allKept_ = true;
};

} // namespace lineforge::bench
