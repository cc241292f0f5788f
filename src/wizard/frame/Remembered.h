#pragma once

/// All remembered values of the process, so that tests can begin as a fresh process does.
class CRememberedBase
{
public:
    CRememberedBase(const CRememberedBase&) = delete;
    CRememberedBase& operator=(const CRememberedBase&) = delete;
    virtual ~CRememberedBase();

    /// Gives all remembered values of all pages their first values.
    static void ResetAll();

protected:
    CRememberedBase();

private:
    virtual void Reset() = 0;

    CRememberedBase* mpNext;
};

/// The fields of a page as its last success left them, for the next run of the wizard.
/// A page keeps one in static storage; `TFields` is also the struct of the page's own fields, so
/// that restoring and remembering are one assignment each. A default-constructed `TFields` is what
/// a page shows at first. Never written to disk.
template <class TFields> class Remembered final : CRememberedBase
{
public:
    const TFields& Get() const { return mFields; }
    void Set(const TFields& rFields) { mFields = rFields; }

private:
    void Reset() override { mFields = TFields(); }

    TFields mFields{};
};
