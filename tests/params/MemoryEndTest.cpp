// Reading and writing where the memory, or something stranger, gives out at any point.

#include "exports/Quorvawiz.h"
#include "params/DamagedForms.h"
#include "params/ParamsFileError.h"
#include "support/FailingMemory.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <string>

namespace
{

using EError = CFailingMemory::EError;

/// What reading gives when the memory ends at each point in turn, until it suffices.
std::set<std::string> MessagesAtEveryPoint(const CStringU& rsPath, bool bOnce, EError eError)
{
    std::set<std::string> messages;
    for (int nGood = 0;; ++nGood) {
        std::pair<CStringU, boost::shared_ptr<TCircuitParams>> read;
        bool bFailed = false;
        {
            const CFailingMemory failing(nGood, bOnce, eError);
            read = quorvawiz::gReadCircuitParameters(rsPath);
            bFailed = failing.HasFailed();
        }
        EXPECT_NE(read.second, nullptr) << nGood;
        if (!bFailed) {
            EXPECT_EQ(read.first, "");
            return messages;
        }
        EXPECT_FALSE(read.first.IsEmpty()) << nGood;
        messages.emplace(read.first.Text());
    }
}

TEST(MemoryEndTest, ReadingThrowsNothingAndHasAMessageAndAStore)
{
    const CTempFolder folder;
    const std::string sPath = folder.Write("p", gSampleFile());
    const std::string sBegin = "Error reading data file '" + sPath;
    const std::string sLeast = "Out of memory";
    const std::string sFixed = sBegin + "': Params file ReadThis() operation failed!";
    EXPECT_EQ(MessagesAtEveryPoint(sPath, true, EError::BadAlloc),
              (std::set<std::string>{sLeast, sBegin + "': std::bad_alloc", sFixed}));
    EXPECT_EQ(MessagesAtEveryPoint(sPath, false, EError::BadAlloc),
              (std::set<std::string>{sLeast}));
}

// What nobody expects: in front of ReadThis the message has no closing quote, within it ReadThis
// makes an exception of it.
TEST(MemoryEndTest, AStrangerWhileReading)
{
    const CTempFolder folder;
    const std::string sPath = folder.Write("p", gSampleFile());
    const std::string sBegin = "Error reading data file '" + sPath;
    EXPECT_EQ(MessagesAtEveryPoint(sPath, true, EError::Stranger),
              (std::set<std::string>{"Out of memory", sBegin,
                                     sBegin + "': Params file ReadThis() operation failed!"}));
}

/// The texts that a call throws when one allocation fails, at each point in turn.
std::set<std::string> ThrownAtEveryPoint(EError eError, const std::function<void()>& rCall)
{
    std::set<std::string> texts;
    for (int nGood = 0;; ++nGood) {
        const CFailingMemory failing(nGood, true, eError);
        try {
            rCall();
        } catch (const CParamsFileError& rError) {
            texts.emplace(rError.what());
        }
        if (!failing.HasFailed()) {
            return texts;
        }
    }
}

TEST(MemoryEndTest, OtherExceptionsOutOfReading)
{
    const CTempFolder folder;
    const CStringU sPath = folder.Write("p", gSampleFile());
    const CStringU sText;
    const auto read = [&] {
        TCircuitParams store;
        store.ReadThis(sPath, sText);
    };
    const std::set<std::string> fixed{"Params file ReadThis() operation failed!"};
    EXPECT_EQ(ThrownAtEveryPoint(EError::BadAlloc, read), fixed);
    EXPECT_EQ(ThrownAtEveryPoint(EError::Stranger, read), fixed);
}

TEST(MemoryEndTest, OtherExceptionsOutOfWriting)
{
    const CTempFolder folder;
    const CStringU sPath = folder.Path("p");
    const CStringU sText;
    TCircuitParams store;
    gFillSample(store);
    const auto write = [&] { store.WriteThis(sPath, sText); };
    EXPECT_EQ(ThrownAtEveryPoint(EError::BadAlloc, write), std::set<std::string>{"std::bad_alloc"});
    EXPECT_EQ(ThrownAtEveryPoint(EError::Stranger, write),
              std::set<std::string>{"Params file WriteThis() operation failed!"});
    EXPECT_EQ(folder.Read("p"), gSampleFile());
}

} // namespace
