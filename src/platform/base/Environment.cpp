#include "platform/base/Environment.h"

#include "platform/base/Exceptions.h"

#include <cstdlib>
#include <mutex>
#include <new>
#include <utility>

namespace
{

constexpr std::string_view kNul("\0", 1);

bool IsValidName(std::string_view sName)
{
    return !sName.empty() && sName.find('=') == std::string_view::npos &&
           sName.find(kNul) == std::string_view::npos;
}

/// The environment of the process. The lock keeps our own readers and writers apart.
class CProcessEnvironment final : public IEnvironment
{
public:
    std::optional<std::string> Get(std::string_view sName) const override
    {
        if (!IsValidName(sName)) {
            return std::nullopt;
        }
        const std::string sZeroEnded(sName);
        const std::lock_guard lock(mMutex);
        const char* pValue = std::getenv(sZeroEnded.c_str());
        return pValue != nullptr ? std::optional<std::string>(pValue) : std::nullopt;
    }

    void Set(std::string_view sName, std::string_view sValue) override
    {
        const std::string sZeroEndedName(sName);
        const std::string sZeroEndedValue(sValue);
        const std::lock_guard lock(mMutex);
        if (::setenv(sZeroEndedName.c_str(), sZeroEndedValue.c_str(), 1) != 0) {
            throw std::bad_alloc(); // the name is valid, so only memory can be missing
        }
    }

    void Unset(std::string_view sName) override
    {
        const std::string sZeroEnded(sName);
        const std::lock_guard lock(mMutex);
        ::unsetenv(sZeroEnded.c_str());
    }

private:
    mutable std::mutex mMutex;
};

/// The current source. Handed out as a shared pointer, so that a source that is being replaced
/// lives until its last reader is done.
class CSourceSlot
{
public:
    std::shared_ptr<IEnvironment> Get()
    {
        const std::lock_guard lock(mMutex);
        return mpSource;
    }

    void Set(std::shared_ptr<IEnvironment> pSource)
    {
        if (!pSource) {
            pSource = mpProcess;
        }
        const std::lock_guard lock(mMutex);
        mpSource.swap(pSource); // the old one ends behind the lock, as its end may call us
    }

private:
    std::mutex mMutex;
    const std::shared_ptr<IEnvironment> mpProcess = std::make_shared<CProcessEnvironment>();
    std::shared_ptr<IEnvironment> mpSource = mpProcess;
};

CSourceSlot& Slot()
{
    static CSourceSlot slot;
    return slot;
}

void RequireName(std::string_view sName)
{
    if (!IsValidName(sName)) {
        gThrowInvalidArg("invalid name of an environment variable");
    }
}

} // namespace

std::optional<std::string> gGetEnvironment(std::string_view sName)
{
    return Slot().Get()->Get(sName);
}

void gSetEnvironment(std::string_view sName, std::string_view sValue)
{
    RequireName(sName);
    if (sValue.find(kNul) != std::string_view::npos) {
        gThrowInvalidArg("invalid value of an environment variable");
    }
    Slot().Get()->Set(sName, sValue);
}

void gUnsetEnvironment(std::string_view sName)
{
    RequireName(sName);
    Slot().Get()->Unset(sName);
}

void gSetEnvironmentSource(std::shared_ptr<IEnvironment> pSource)
{
    Slot().Set(std::move(pSource));
}

void gResetEnvironmentSource()
{
    Slot().Set(nullptr);
}
