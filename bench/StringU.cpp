// The text type against what else one would use: std::string in a map, strcasecmp, ICU's
// converters.

#include "foundation/StringU.h"

#include "Ratio.h"

#include <strings.h>
#include <unicode/ucnv.h>

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <random>
#include <stdexcept>
#include <string>
#include <vector>

namespace
{

constexpr std::size_t kNames = 10'000;
constexpr std::size_t kFewNames = 500;

// Names as a circuit has them, of 20 to 40 characters.
std::vector<std::string> Names()
{
    std::mt19937 engine(1);
    std::vector<std::string> names;
    for (std::size_t i = 0; i < kNames; ++i) {
        std::string sName = "xtop.block" + std::to_string(engine() % 50) + ".cell";
        while (sName.size() < 20 + engine() % 21) {
            sName += static_cast<char>('a' + engine() % 26);
        }
        names.push_back(sName);
    }
    return names;
}

template <class TText> std::map<TText, int> MapOf(const std::vector<TText>& rNames)
{
    std::map<TText, int> map;
    for (const TText& rsName : rNames) {
        map.emplace(rsName, static_cast<int>(map.size()));
    }
    return map;
}

template <class TText>
std::int64_t LookUpAll(const std::map<TText, int>& rMap, const std::vector<TText>& rNames)
{
    std::int64_t nSum = 0;
    for (const TText& rsName : rNames) {
        nSum += rMap.find(rsName)->second;
    }
    return nSum;
}

void BM_MapLookUp(benchmark::State& rState)
{
    const std::vector<std::string> theirNames = Names();
    const std::vector<CStringU> ourNames(theirNames.begin(), theirNames.end());
    const auto ourMap = MapOf(ourNames);
    const auto theirMap = MapOf(theirNames);
    if (LookUpAll(ourMap, ourNames) != LookUpAll(theirMap, theirNames)) {
        throw std::runtime_error("the maps differ");
    }
    gRunBoth(
        rState, [&] { return LookUpAll(ourMap, ourNames); },
        [&] { return LookUpAll(theirMap, theirNames); });
}
BENCHMARK(BM_MapLookUp)->Iterations(100)->Unit(benchmark::kMillisecond);

template <class TText> std::int64_t CompareNeighbours(const std::vector<TText>& rNames)
{
    std::int64_t nLess = 0;
    for (std::size_t i = 1; i < rNames.size(); ++i) {
        nLess += rNames[i - 1] < rNames[i] ? 1 : 0;
    }
    return nLess;
}

void BM_Less(benchmark::State& rState)
{
    const std::vector<std::string> theirNames = Names();
    const std::vector<CStringU> ourNames(theirNames.begin(), theirNames.end());
    gRunBoth(
        rState, [&] { return CompareNeighbours(ourNames); },
        [&] { return CompareNeighbours(theirNames); });
}
BENCHMARK(BM_Less)->Iterations(1000)->Unit(benchmark::kMillisecond);

// The same names in capitals, so that every letter has to be folded.
void BM_CompareNoCase(benchmark::State& rState)
{
    const std::vector<std::string> names = Names();
    // Few enough to stay in the cache, which the first of the two would fill for the second.
    std::vector<CStringU> left(names.begin(), names.begin() + kFewNames);
    std::vector<CStringU> right = left;
    for (CStringU& rsName : right) {
        rsName.MakeUpper();
    }
    gRunBoth(
        rState,
        [&] {
            int nSum = 0;
            for (std::size_t i = 0; i < kFewNames; ++i) {
                nSum += CompareNoCase(left[i], right[i]);
            }
            return nSum;
        },
        [&] {
            int nSum = 0;
            for (std::size_t i = 0; i < kFewNames; ++i) {
                nSum += strcasecmp(left[i].Data(), right[i].Data());
            }
            return nSum;
        });
}
BENCHMARK(BM_CompareNoCase)->Iterations(10'000)->Unit(benchmark::kMillisecond);

// 1 KB of a netlist with a word here and there that isn't ASCII.
std::u16string MostlyAscii()
{
    std::u16string sText;
    while (sText.size() < 1000) {
        sText +=
            u"R12 node_a node_b 4.7k tc1=0.001 ; resistor in the feedback path of the amplifier, ";
        sText += u"W\u00e4rmewiderstand 3 \u03a9\n";
    }
    return sText;
}

struct TCloseConverter {
    void operator()(UConverter* pConverter) const { ucnv_close(pConverter); }
};

std::unique_ptr<UConverter, TCloseConverter> OpenUtf8()
{
    UErrorCode error = U_ZERO_ERROR;
    return std::unique_ptr<UConverter, TCloseConverter>(ucnv_open("UTF-8", &error));
}

void BM_Utf8ToWide(benchmark::State& rState)
{
    const CStringU sText(MostlyAscii());
    const auto pConverter = OpenUtf8();
    gRunBoth(rState, gRepeated([&] { return sText.ToWide().size(); }), gRepeated([&] {
                 const std::string_view sBytes = sText.Text();
                 std::u16string sWide(sBytes.size(), u'\0');
                 UErrorCode error = U_ZERO_ERROR;
                 const std::int32_t nUnits = ucnv_toUChars(
                     pConverter.get(), sWide.data(), static_cast<std::int32_t>(sWide.size()),
                     sBytes.data(), static_cast<std::int32_t>(sBytes.size()), &error);
                 sWide.resize(static_cast<std::size_t>(nUnits));
                 return sWide.size();
             }));
}
BENCHMARK(BM_Utf8ToWide)->Iterations(1000);

void BM_WideToUtf8(benchmark::State& rState)
{
    const std::u16string sWide = MostlyAscii();
    const auto pConverter = OpenUtf8();
    gRunBoth(rState, gRepeated([&] { return CStringU(sWide).GetByteLength(); }), gRepeated([&] {
                 std::string sBytes(sWide.size() * 3, '\0');
                 UErrorCode error = U_ZERO_ERROR;
                 const std::int32_t nBytes = ucnv_fromUChars(
                     pConverter.get(), sBytes.data(), static_cast<std::int32_t>(sBytes.size()),
                     sWide.data(), static_cast<std::int32_t>(sWide.size()), &error);
                 sBytes.resize(static_cast<std::size_t>(nBytes));
                 return static_cast<int>(sBytes.size());
             }));
}
BENCHMARK(BM_WideToUtf8)->Iterations(1000);

} // namespace
