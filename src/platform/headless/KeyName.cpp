#include "platform/headless/Step.h"

#include <array>
#include <utility>

bool gParseKeyName(std::string_view sName, TUserKey& rKey)
{
    using EKey = TUserKey::EKey;
    static constexpr std::array<std::pair<std::string_view, TUserKey>, 9> kNames{{
        {"enter", {EKey::Enter}},
        {"escape", {EKey::Escape}},
        {"tab", {EKey::Tab}},
        {"shift+tab", {EKey::Tab, true}},
        {"up", {EKey::Up}},
        {"down", {EKey::Down}},
        {"left", {EKey::Left}},
        {"right", {EKey::Right}},
        {"space", {EKey::Space}},
    }};
    for (const auto& [sKnown, key] : kNames) {
        if (sName == sKnown) {
            rKey = key;
            return true;
        }
    }
    constexpr std::string_view sAlt = "alt+";
    if (!sName.starts_with(sAlt) || sName.size() != sAlt.size() + 1)
        return false;
    rKey = {EKey::Mnemonic, false, sName.back()};
    return true;
}
