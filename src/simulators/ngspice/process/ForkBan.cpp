#include "simulators/ngspice/process/ForkBan.h"

#if defined(__linux__) && (defined(__x86_64__) || defined(__aarch64__))

#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sched.h>
#include <sys/prctl.h>
#include <sys/syscall.h>

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <iterator>

namespace quorvawiz::ngspice
{
namespace
{

#ifdef __x86_64__
constexpr std::uint32_t kArchitecture = AUDIT_ARCH_X86_64;
#else
constexpr std::uint32_t kArchitecture = AUDIT_ARCH_AARCH64;
#endif

constexpr std::uint32_t kRefused = SECCOMP_RET_ERRNO | EPERM;
// The library then takes clone, whose flags can be looked at.
constexpr std::uint32_t kUnknown = SECCOMP_RET_ERRNO | ENOSYS;

constexpr sock_filter Statement(unsigned nCode, std::uint32_t nValue)
{
    return {static_cast<std::uint16_t>(nCode), 0, 0, nValue};
}

/// Goes on behind the next statement unless the loaded word is the value.
constexpr sock_filter OnlyIf(std::uint32_t nValue)
{
    return {BPF_JMP | BPF_JEQ | BPF_K, 0, 1, nValue};
}

constexpr sock_filter Load(std::size_t nOffset)
{
    return Statement(BPF_LD | BPF_W | BPF_ABS, static_cast<std::uint32_t>(nOffset));
}

constexpr sock_filter Return(std::uint32_t nAction)
{
    return Statement(BPF_RET | BPF_K, nAction);
}

} // namespace

bool gBanFork() noexcept
{
    sock_filter program[] = {
        Load(offsetof(seccomp_data, arch)),
        {BPF_JMP | BPF_JEQ | BPF_K, 1, 0, kArchitecture},
        Return(kRefused),
        Load(offsetof(seccomp_data, nr)),
#ifdef __x86_64__
        // Numbers of the other interface of this processor.
        {BPF_JMP | BPF_JGE | BPF_K, 0, 1, 0x40000000U},
        Return(kRefused),
        OnlyIf(SYS_fork),
        Return(kRefused),
        OnlyIf(SYS_vfork),
        Return(kRefused),
#endif
        OnlyIf(SYS_clone3),
        Return(kUnknown),
        {BPF_JMP | BPF_JEQ | BPF_K, 1, 0, SYS_clone},
        Return(SECCOMP_RET_ALLOW),
        Load(offsetof(seccomp_data, args)), // the low half: both processors are little endian
        {BPF_JMP | BPF_JSET | BPF_K, 0, 1, CLONE_THREAD},
        Return(SECCOMP_RET_ALLOW),
        Return(kRefused),
    };
    const sock_fprog filter{static_cast<unsigned short>(std::size(program)), program};
    return ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) == 0;
}

} // namespace quorvawiz::ngspice

#else

bool quorvawiz::ngspice::gBanFork() noexcept
{
    return false;
}

#endif
