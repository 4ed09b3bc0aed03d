#pragma once

#include <benchmark/benchmark.h>
#include <map>
#include <string>
#include <vector>

namespace lineforge::bench
{

// How a figure of the program is held against that of its floor, which is measured in the same run: what the machine,
// the toolkit and the engine alone take for the same.
enum class Measure {
    Times, // how many times as much it may be
    More,  // how much more
};

struct Limit {
    std::string What;
    std::string Ours;
    std::string Floor;
    double Most;
    Measure How = Measure::Times;
};

// After all benchmarks prints the lowest of each one's runs and what that is against its floor. What else goes on in
// the machine makes runs longer and never shorter, so that the lowest of many is what the thing itself takes.
class RatioReporter : public benchmark::BenchmarkReporter
{
public:
    explicit RatioReporter(std::vector<Limit> limits);

    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

    // Whether nothing has failed and all that was measured is within its limit.
    bool AllKept() const { return allKept_; }

private:
    void Tell(const Limit& limit, const std::vector<double>& ours, const std::vector<double>& floor);

    std::vector<Limit> limits_;
    std::map<std::string, std::vector<double>> runs_; // seconds an iteration
    bool allKept_ = true;
};

} // namespace lineforge::bench
