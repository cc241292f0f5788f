#pragma once

/// A base that says of a class: its objects aren't copied.
class TNonCopyable
{
public:
    TNonCopyable(const TNonCopyable&) = delete;
    TNonCopyable& operator=(const TNonCopyable&) = delete;

protected:
    TNonCopyable() = default;
    ~TNonCopyable() = default;
};
