#pragma once

#include "wizard/frame/Remembered.h"

#include <gtest/gtest.h>

/// A test of a page: it begins as a fresh process does, with nothing remembered.
/// `using NoisePage = PageTest;` gives the tests of a page their name.
class PageTest : public testing::Test
{
public:
    ~PageTest() override { CRememberedBase::ResetAll(); }

protected:
    PageTest() { CRememberedBase::ResetAll(); }
};
