#include "params/ParamValue.h"

#include "foundation/NumberFormat.h"

#include <boost/logic/tribool.hpp>
#include <boost/variant/apply_visitor.hpp>
#include <boost/variant/static_visitor.hpp>

#include <cmath>
#include <string>

namespace
{

struct TToText : boost::static_visitor<CStringU> {
    CStringU operator()(bool bValue) const { return bValue ? "true" : "false"; }
    CStringU operator()(int nValue) const { return std::to_string(nValue); }
    CStringU operator()(double dValue) const
    {
        if (std::isnan(dValue)) {
            return gIsUninitialized(dValue) ? "<uninitialized>" : "NaN";
        }
        constexpr unsigned digits = 8;
        return gFormatEngineering(dValue, digits, false, false, true, TeUnitScale::Undefined,
                                  boost::indeterminate);
    }
    CStringU operator()(const CStringU& rsValue) const { return rsValue; }
};

} // namespace

CStringU ParamValueToText(const TParamValue& rValue)
{
    return boost::apply_visitor(TToText(), rValue);
}
