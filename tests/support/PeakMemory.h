#pragma once

#include <cstddef>

/// How much memory this program takes with operator new while the object lives, beyond what it had
/// before; for one thread.
class CPeakMemory
{
public:
    /// Begins to measure.
    CPeakMemory() noexcept;

    /// The most bytes so far.
    [[nodiscard]] std::size_t GetPeak() const noexcept;

    /// The bytes that are held now.
    [[nodiscard]] std::size_t GetNow() const noexcept;

private:
    std::size_t mnBefore;
};
