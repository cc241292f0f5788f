#include "platform/headless/Step.h"

#include <gtest/gtest.h>

namespace
{
using EKey = TUserKey::EKey;

TEST(KeyNameTest, KnownNames)
{
    struct TCase {
        const char* pName;
        EKey key;
        bool bShift;
        char cMnemonic;
    };
    constexpr TCase kCases[] = {
        {"enter", EKey::Enter, false, 0},
        {"escape", EKey::Escape, false, 0},
        {"tab", EKey::Tab, false, 0},
        {"shift+tab", EKey::Tab, true, 0},
        {"up", EKey::Up, false, 0},
        {"down", EKey::Down, false, 0},
        {"left", EKey::Left, false, 0},
        {"right", EKey::Right, false, 0},
        {"space", EKey::Space, false, 0},
        {"alt+n", EKey::Mnemonic, false, 'n'},
        {"alt+N", EKey::Mnemonic, false, 'N'},
        {"alt+1", EKey::Mnemonic, false, '1'},
        {"alt++", EKey::Mnemonic, false, '+'},
    };
    for (const TCase& rCase : kCases) {
        SCOPED_TRACE(rCase.pName);
        TUserKey key{EKey::Mnemonic, true, '?'}; // nothing of it may stay
        EXPECT_TRUE(gParseKeyName(rCase.pName, key));
        EXPECT_EQ(key.key, rCase.key);
        EXPECT_EQ(key.bShift, rCase.bShift);
        EXPECT_EQ(key.cMnemonic, rCase.cMnemonic);
    }
}

TEST(KeyNameTest, UnknownNamesLeaveTheKey)
{
    for (const char* pName : {"", "Enter", "return", "esc", "shift+enter", "alt+", "alt+ab", "alt",
                              "ALT+n", "tab ", " tab", "ctrl+n"}) {
        SCOPED_TRACE(pName);
        TUserKey key{EKey::Space, true, 'x'};
        EXPECT_FALSE(gParseKeyName(pName, key));
        EXPECT_EQ(key.key, EKey::Space);
        EXPECT_TRUE(key.bShift);
        EXPECT_EQ(key.cMnemonic, 'x');
    }
}
} // namespace
