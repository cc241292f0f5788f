#pragma once

#include <cstddef>

/// How many blocks this program has taken from the heap with operator new, up to now.
[[nodiscard]] std::size_t gCountAllocations() noexcept;
