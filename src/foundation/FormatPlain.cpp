#include "foundation/NonFinite.h"
#include "foundation/NumberFormat.h"
#include "foundation/RoundedDigits.h"

#include <cstddef>

namespace
{

constexpr unsigned kAllDigits = 18;

} // namespace

std::string gFormatPlain(double dValue)
{
    if (const char* const pWord = gNonFiniteWord(dValue)) {
        return pWord;
    }
    TRoundedDigits rounded = gRoundToDigits(dValue, kAllDigits);
    std::string& rsDigits = rounded.msDigits;
    if (rounded.mnPosition <= 0) {
        rsDigits.insert(0, static_cast<std::size_t>(1 - rounded.mnPosition), '0');
        rounded.mnPosition = 1;
    }
    const auto nBefore = static_cast<std::size_t>(rounded.mnPosition);
    if (rsDigits.size() > nBefore) {
        rsDigits.insert(nBefore, 1, '.');
        rsDigits.erase(rsDigits.find_last_not_of('0') + 1);
        if (rsDigits.back() == '.') {
            rsDigits.pop_back();
        }
    } else {
        rsDigits.append(nBefore - rsDigits.size(), '0');
    }
    return rounded.mbNegative ? '-' + rsDigits : std::move(rsDigits);
}

std::string gFormatFull(double dValue)
{
    return gFormatEngineering(dValue, kAllDigits, true, false, true, TeUnitScale::Si,
                              boost::indeterminate);
}
