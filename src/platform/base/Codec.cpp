#include "platform/base/Codec.h"

#include "platform/base/CodePageNumbers.h"
#include "platform/base/IcuCodec.h"
#include "platform/base/SingleByteCodec.h"
#include "platform/base/Utf8Codec.h"

#include <map>
#include <memory>
#include <utility>

namespace
{

std::unique_ptr<const ICodec> MakeCodec(unsigned nCodePage)
{
    auto pIcuCodec = CIcuCodec::Open(nCodePage);
    if (!pIcuCodec) {
        return nullptr;
    }
    if (pIcuCodec->IsSingleByte()) {
        return std::make_unique<CSingleByteCodec>(*pIcuCodec);
    }
    return pIcuCodec;
}

} // namespace

const ICodec* gFindCodec(unsigned nCodePage)
{
    // Never destroyed: texts may still be converted while static objects are.
    static const auto& rUtf8Codec = *new CUtf8Codec;
    if (nCodePage == kCodePageUtf8) {
        return &rUtf8Codec;
    }

    static auto& rCodecs = *new std::map<unsigned, std::unique_ptr<const ICodec>>;
    if (!rCodecs.contains(nCodePage)) {
        auto pCodec = MakeCodec(nCodePage);
        if (!pCodec) {
            return nullptr; // not kept, so that asking for many numbers doesn't grow the map
        }
        rCodecs.emplace(nCodePage, std::move(pCodec));
    }
    return rCodecs.at(nCodePage).get();
}
