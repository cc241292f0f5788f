#pragma once

namespace Plot
{
/// A terminal: its entry in the list and its letter in an item.
struct TTerminal {
    const char* pEntry;
    const char* pLetter;
};

// Meant: source and substrate share a letter, and so do bulk and base.
inline constexpr TTerminal kTerminals[] = {
    {"1", "1"},       {"2", "2"},         {"3", "3"},     {"4", "4"},         {"Drain", "d"},
    {"Gate", "g"},    {"Source", "s"},    {"Bulk", "b"},  {"Collector", "c"}, {"Base", "b"},
    {"Emitter", "e"}, {"Substrate", "s"}, {"Anode", "p"}, {"Cathode", "n"}};
} // namespace Plot
