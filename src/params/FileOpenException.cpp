#include "params/FileOpenException.h"

#include "foundation/StringU.h"
#include "platform/base/SystemError.h"

namespace quorvaapi
{

FileOpenException::FileOpenException(const CStringU& rPath, int nErrorCode)
    : msText((u"Cannot open file \"" + rPath + "\". " + gSystemErrorMessageWide(nErrorCode)).Text())
{
}

} // namespace quorvaapi
