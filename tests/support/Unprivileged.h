#pragma once

#include <unistd.h>

/// While it lives, files are opened with the rights of nobody: the superuser may write to
/// everything, and a test of what can't be written would prove nothing.
class CUnprivileged
{
public:
    CUnprivileged()
    {
        constexpr uid_t kNobody = 65534;
        if (::geteuid() == 0)
            mbChanged = ::seteuid(kNobody) == 0;
    }
    ~CUnprivileged()
    {
        if (mbChanged && ::seteuid(0) != 0)
            ::_exit(1);
    }
    CUnprivileged(const CUnprivileged&) = delete;
    CUnprivileged& operator=(const CUnprivileged&) = delete;

private:
    bool mbChanged = false;
};
