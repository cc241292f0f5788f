// Numbers to text and back, against what a user would call instead. One turn is 1,000 numbers, so
// the counters read as picoseconds for one.

#include "Ratio.h"
#include "foundation/NumberFormat.h"

#include <benchmark/benchmark.h>

#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{
constexpr std::size_t kCount = 1'000;

/// Finite numbers of all magnitudes.
std::vector<double> RandomNumbers()
{
    std::mt19937_64 engine(1);
    std::vector<double> numbers;
    while (numbers.size() < kCount) {
        const auto dNumber = std::bit_cast<double>(engine());
        if (std::isfinite(dNumber))
            numbers.push_back(dNumber);
    }
    return numbers;
}

/// Numbers as a netlist has them.
std::vector<double> NetlistNumbers()
{
    std::mt19937_64 engine(1);
    std::uniform_real_distribution<double> mantissa(1, 1000);
    std::uniform_int_distribution<int> power(-15, 12);
    std::vector<double> numbers;
    while (numbers.size() < kCount)
        numbers.push_back(mantissa(engine) * std::pow(10.0, power(engine)));
    return numbers;
}

void BM_Format(benchmark::State& rState, const std::vector<double>& rNumbers)
{
    gRunBoth(
        rState,
        [&rNumbers] {
            std::size_t nLength = 0;
            for (const double dNumber : rNumbers)
                nLength +=
                    gFormatEngineering(dNumber, 8, false, false, true, TeUnitScale::Spice, true)
                        .size();
            return nLength;
        },
        [&rNumbers] {
            std::size_t nLength = 0;
            char buffer[64];
            for (const double dNumber : rNumbers)
                nLength += static_cast<std::size_t>(
                    std::snprintf(buffer, sizeof(buffer), "%.10e", dNumber));
            return nLength;
        });
}
BENCHMARK_CAPTURE(BM_Format, random, RandomNumbers());
BENCHMARK_CAPTURE(BM_Format, netlist, NetlistNumbers());

/// The numbers as text that both parsers read to its end.
std::vector<std::string> Texts(const std::vector<double>& rNumbers, const char* pFormat)
{
    std::vector<std::string> texts;
    for (const double dNumber : rNumbers) {
        char buffer[64];
        std::snprintf(buffer, sizeof(buffer), pFormat, dNumber);
        texts.emplace_back(buffer);
    }
    return texts;
}

void BM_Parse(benchmark::State& rState, const std::vector<std::string>& rTexts)
{
    for (const std::string& rsText : rTexts) {
        double dOurs = 0;
        gParseEngineering(rsText.c_str(), dOurs, nullptr, false);
        const double dTheirs = std::strtod(rsText.c_str(), nullptr);
        if (std::abs(dTheirs) > 1e-290 && !(std::abs(dOurs / dTheirs - 1) < 1e-14))
            throw std::runtime_error("the parsers disagree on " + rsText);
    }
    gRunBoth(
        rState,
        [&rTexts] {
            double dSum = 0;
            for (const std::string& rsText : rTexts) {
                double dNumber = 0;
                gParseEngineering(rsText.c_str(), dNumber, nullptr, false);
                dSum += dNumber;
            }
            return dSum;
        },
        [&rTexts] {
            double dSum = 0;
            for (const std::string& rsText : rTexts)
                dSum += std::strtod(rsText.c_str(), nullptr);
            return dSum;
        });
}
BENCHMARK_CAPTURE(BM_Parse, netlist_short, Texts(NetlistNumbers(), "%.4g"));
BENCHMARK_CAPTURE(BM_Parse, netlist_8_digits, Texts(NetlistNumbers(), "%.8g"));
BENCHMARK_CAPTURE(BM_Parse, random_17_digits, Texts(RandomNumbers(), "%.16e"));
} // namespace
