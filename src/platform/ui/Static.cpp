#include "platform/ui/Static.h"

bool CStatic::AcceptsKind(EControl kind) const
{
    return kind == EControl::Label || kind == EControl::Static || kind == EControl::Frame;
}
