#pragma once

/// Has operator new fail while the object lives, all over this program; for one thread, and one
/// object at a time.
class CFailingMemory
{
public:
    /// What a failing allocation throws.
    enum class EError {
        BadAlloc, ///< what it does throw
        Stranger, ///< a TStranger, for code that must catch everything
    };
    /// What isn't derived from any exception.
    struct TStranger {
    };

    /// @param nGood how many allocations succeed first
    /// @param bOnce whether only the next one fails, and not all that follow
    CFailingMemory(int nGood, bool bOnce, EError eError = EError::BadAlloc) noexcept;
    ~CFailingMemory();
    CFailingMemory(const CFailingMemory&) = delete;
    CFailingMemory& operator=(const CFailingMemory&) = delete;

    /// Tells whether any allocation failed so far.
    [[nodiscard]] bool HasFailed() const noexcept { return mbFailed; }

    /// For operator new: throws when it is time.
    void Count();

private:
    int mnGood;
    bool mbOnce;
    EError meError;
    bool mbFailed = false;
};
