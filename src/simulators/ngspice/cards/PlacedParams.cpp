#include "simulators/ngspice/cards/PlacedParams.h"

#include <algorithm>
#include <array>

namespace quorvawiz::ngspice
{
namespace
{

constexpr auto kPlaced = std::to_array<TPlacedParam>({
    {'e', 5, "gain", true},
    {'f', 3, "control", false},
    {'f', 4, "gain", true},
    {'g', 5, "gain", true},
    {'h', 3, "control", false},
    {'h', 4, "gain", true},
    {'k', 1, "inductor1", false},
    {'k', 2, "inductor2", false},
    {'p', 1, "pos_nodes", false},
    {'p', 1, "neg_nodes", false},
    {'p', 1, "dimension", false},
    {'s', 1, "pos_node", false},
    {'s', 2, "neg_node", false},
    {'w', 3, "control", false},
});

struct TReaderName {
    char cLetter;
    std::string_view sCard;
    std::string_view sTable;
};

constexpr auto kReaderNames = std::to_array<TReaderName>({
    {'l', "l", "inductance"},
    {'p', "len", "length"},
    {'y', "len", "length"},
});

} // namespace

std::span<const TPlacedParam> gPlacedParams() noexcept
{
    return kPlaced;
}

std::string_view gTableName(char cLetter, std::string_view sName) noexcept
{
    const auto found = std::ranges::find_if(kReaderNames, [&](const TReaderName& rName) {
        return rName.cLetter == cLetter && rName.sCard == sName;
    });
    return found != kReaderNames.end() ? found->sTable : sName;
}

} // namespace quorvawiz::ngspice
