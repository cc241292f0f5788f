#include "cli/params/ParamValueJson.h"

#include <boost/variant/apply_visitor.hpp>
#include <boost/variant/static_visitor.hpp>

namespace quorvawiz::cli
{
namespace
{
struct TToJson : boost::static_visitor<TJson> {
    TJson operator()(bool bValue) const { return {{"kind", "bool"}, {"value", bValue}}; }
    TJson operator()(int nValue) const { return {{"kind", "int"}, {"value", nValue}}; }
    TJson operator()(double dValue) const
    {
        return {{"kind", "double"},
                {"value", gIsUninitialized(dValue) ? TJson("uninitialized") : gToResult(dValue)}};
    }
    TJson operator()(const CStringU& rsValue) const
    {
        return {{"kind", "text"}, {"value", gToResult(rsValue)}};
    }
};
} // namespace

TJson gToResult(const TParamValue& rValue)
{
    return boost::apply_visitor(TToJson(), rValue);
}

} // namespace quorvawiz::cli
