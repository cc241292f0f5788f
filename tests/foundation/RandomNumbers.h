#pragma once

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <random>
#include <string>

/// Numbers for tests that compare with a model: of all magnitudes, and of the kinds that engineers
/// write.
class CRandomNumbers
{
public:
    explicit CRandomNumbers(std::uint64_t nSeed) : mEngine(nSeed) {}

    /// A whole number from 0 to nMost.
    int Int(int nMost) { return std::uniform_int_distribution<int>(0, nMost)(mEngine); }

    bool Flag() { return Int(1) != 0; }

    /// Any finite number.
    double Any()
    {
        double dValue = 0;
        do {
            dValue = std::bit_cast<double>(mEngine());
        } while (!std::isfinite(dValue));
        return dValue;
    }

    /// A number with few digits, or one that lies next to such a number.
    double Written()
    {
        std::string sText = Flag() ? "-" : "";
        for (int nDigit = Int(8); nDigit >= 0; --nDigit) {
            sText += "0199995"[Int(6)];
        }
        sText += 'e' + std::to_string(Int(60) - 30);
        const double dValue = std::strtod(sText.c_str(), nullptr);
        const int nSide = Int(4);
        return nSide > 1 ? dValue : std::nextafter(dValue, nSide == 0 ? -1e300 : 1e300);
    }

    /// One of both kinds.
    double Number() { return Flag() ? Any() : Written(); }

private:
    std::mt19937_64 mEngine;
};
