#include "params/DamagedForms.h"
#include "params/TextStore.h"
#include "params/archive/ArchiveError.h"
#include "params/archive/MemorySource.h"
#include "support/PeakMemory.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

TEST(DamagedFileTest, EveryFormIsRefusedAtItsTokenWithItsReason)
{
    const std::string sFile = gSampleFile();
    for (const TDamagedForm& rForm : gDamagedForms()) {
        const std::string sDamaged = rForm.Damage(sFile);
        TCircuitParams store;
        try {
            gReadOurs(sDamaged, store);
            ADD_FAILURE() << rForm.msName << " was read";
        } catch (const CParamsArchiveError& rError) {
            if (rForm.msReason.empty()) { // noticed somewhere behind
                continue;
            }
            EXPECT_EQ(rError.GetReason(), rForm.msReason) << rForm.msName;
            EXPECT_EQ(rError.code, rForm.meCode) << rForm.msName;
            // Of a text the reason stands at its length, and of the signature at the file's begin.
            const bool bSignature = rForm.msName == "signature";
            EXPECT_EQ(rError.GetOffset(), bSignature ? 0 : rForm.Offset(sFile)) << rForm.msName;
        }
    }
}

TEST(DamagedFileTest, TruncatedAtEveryByte)
{
    const std::string sFile = gSampleFile();
    for (std::size_t nSize = 0; nSize < sFile.size(); ++nSize) {
        TCircuitParams store;
        const CPeakMemory peak;
        EXPECT_THROW(gReadOurs(sFile.substr(0, nSize), store), CParamsArchiveError) << nSize;
        EXPECT_LT(peak.GetPeak(), 400'000U + 20 * sFile.size()) << nSize; // 256 KiB is the buffer
    }
    TCircuitParams store;
    EXPECT_NO_THROW(gReadOurs(sFile, store));
}

// Each byte in turn is another one: it may be read or refused, but needs no memory to speak of.
TEST(DamagedFileTest, EveryByteReplaced)
{
    const std::string sFile = gSampleFile();
    int nRefused = 0;
    for (std::size_t nAt = 0; nAt < sFile.size(); ++nAt) {
        for (const char chByte : {'9', '-', ' ', '\n', 'x', '\0', '\xFF'}) {
            std::string sDamaged = sFile;
            sDamaged[nAt] = chByte;
            TCircuitParams store;
            const CPeakMemory peak;
            try {
                gReadOurs(sDamaged, store);
            } catch (const CParamsArchiveError&) {
                ++nRefused;
            }
            EXPECT_LT(peak.GetPeak(), 400'000U + 20 * sFile.size()) << nAt;
        }
    }
    EXPECT_GT(nRefused, 1000);
}

TEST(DamagedFileTest, WhatWasReadInFrontOfTheDamageStays)
{
    std::string sFile = gSampleFile();
    sFile.resize(sFile.find("\n3 1 2 n2"));
    TCircuitParams store;
    EXPECT_THROW(gReadOurs(sFile, store), CParamsArchiveError);
    EXPECT_EQ(store.mSubcktTable.GetCount(), 2U);
    EXPECT_EQ(store.mModelClasses.size(), 1U);
    EXPECT_EQ(store.mCircuitModelDatasets.at(0).size(), 1U);
    EXPECT_TRUE(store.mCircuitDeviceDatasets.empty());
}

// A source that gives its bytes one at a time, and doesn't know how many there are.
class CDrip final : public IByteSource
{
public:
    explicit CDrip(std::string_view sBytes) : msLeft(sBytes) {}
    std::size_t Read(char* pRoom, std::size_t) override
    {
        if (msLeft.empty())
            return 0;
        *pRoom = msLeft.front();
        msLeft.remove_prefix(1);
        return 1;
    }
    std::uint64_t GetSize() const noexcept override { return kUnknownSize; }
    bool HasCrLf() const noexcept override { return false; }

private:
    std::string_view msLeft;
};

TEST(DamagedFileTest, ASourceOfUnknownSize)
{
    const std::string sFile = gSampleFile();
    TCircuitParams store;
    CDrip whole(sFile);
    gLoadText(whole, store);
    EXPECT_EQ(gOursOf(store), sFile);
    for (const TDamagedForm& rForm : gDamagedForms()) {
        const std::string sDamaged = rForm.Damage(sFile);
        CDrip drip(sDamaged);
        TCircuitParams damaged;
        const CPeakMemory peak;
        EXPECT_THROW(gLoadText(drip, damaged), CParamsArchiveError) << rForm.msName;
        EXPECT_LT(peak.GetPeak(), 400'000U + 20 * sFile.size()) << rForm.msName;
    }
}

} // namespace
