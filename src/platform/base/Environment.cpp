#include "platform/base/Environment.h"

#include "platform/base/Exceptions.h"

#include <cstdlib>
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

/// The environment of the process.
class CProcessEnvironment final : public IEnvironment
{
public:
    std::optional<std::string> Get(std::string_view sName) const override
    {
        if (!IsValidName(sName)) {
            return std::nullopt;
        }
        const std::string sZeroEnded(sName);
        const char* pValue = std::getenv(sZeroEnded.c_str());
        return pValue != nullptr ? std::optional<std::string>(pValue) : std::nullopt;
    }

    void Set(std::string_view sName, std::string_view sValue) override
    {
        const std::string sZeroEndedName(sName);
        const std::string sZeroEndedValue(sValue);
        if (::setenv(sZeroEndedName.c_str(), sZeroEndedValue.c_str(), 1) != 0) {
            throw std::bad_alloc(); // the name is valid, so only memory can be missing
        }
    }

    void Unset(std::string_view sName) override
    {
        const std::string sZeroEnded(sName);
        ::unsetenv(sZeroEnded.c_str());
    }
};

/// The current source. Whoever asks it holds it as well, so that it may be replaced meanwhile.
std::shared_ptr<IEnvironment>& Slot()
{
    static std::shared_ptr<IEnvironment> pSource = std::make_shared<CProcessEnvironment>();
    return pSource;
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
    const auto pSource = Slot();
    return pSource->Get(sName);
}

void gSetEnvironment(std::string_view sName, std::string_view sValue)
{
    RequireName(sName);
    if (sValue.find(kNul) != std::string_view::npos) {
        gThrowInvalidArg("invalid value of an environment variable");
    }
    const auto pSource = Slot();
    pSource->Set(sName, sValue);
}

void gUnsetEnvironment(std::string_view sName)
{
    RequireName(sName);
    const auto pSource = Slot();
    pSource->Unset(sName);
}

void gSetEnvironmentSource(std::shared_ptr<IEnvironment> pSource)
{
    if (!pSource) {
        pSource = std::make_shared<CProcessEnvironment>();
    }
    Slot().swap(pSource); // the old one ends behind the change, as its end may call us
}

void gResetEnvironmentSource()
{
    gSetEnvironmentSource(nullptr);
}
