#include "params/archive/TextOArchive.h"

#include <boost/variant/apply_visitor.hpp>

CTextOArchive::CTextOArchive(IByteTarget& rTarget) : mSink(rTarget)
{
    constexpr std::int64_t version = 17;
    mSink.Write(std::string_view("serialization::archive"));
    mSink.Write(version);
}

void CTextOArchive::SaveMembers(const TParamValue& rValue)
{
    Save(rValue.which());
    boost::apply_visitor([this](const auto& rAlternative) { Save(rAlternative); }, rValue);
}
