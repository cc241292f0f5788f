#pragma once

#include <stdexcept>

namespace quorvawiz::cli
{

/// A request that can't be done, with the reason as its reply tells it.
class CRequestError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

} // namespace quorvawiz::cli
