#include "cli/call/CallFunction.h"

namespace quorvawiz::cli
{

std::string gSignature(const TCallFunction& rFunction)
{
    std::string sSignature = rFunction.sName + '(';
    for (std::size_t n = 0; n < rFunction.argumentTypes.size(); ++n) {
        const std::string sType(rFunction.argumentTypes[n]);
        sSignature += n > 0 ? ", " : "";
        sSignature += n < rFunction.nRequired ? sType : '[' + sType + ']';
    }
    return sSignature + ')';
}

void gThrowArgument(std::size_t nIndex, const char* pWhat)
{
    throw CRequestError("argument " + std::to_string(nIndex + 1) + ' ' + pWhat);
}

} // namespace quorvawiz::cli
