#pragma once

#include <QtGlobal>

#include <vector>

/// Random numbers that are the same on every platform and with every Qt (SplitMix64).
class Random
{
public:
    explicit Random(quint64 seed) : mState(seed) {}

    quint64 next()
    {
        mState += 0x9e3779b97f4a7c15u;
        quint64 mixed = mState;
        mixed = (mixed ^ (mixed >> 30)) * 0xbf58476d1ce4e5b9u;
        mixed = (mixed ^ (mixed >> 27)) * 0x94d049bb133111ebu;
        return mixed ^ (mixed >> 31);
    }
    /// Returns a number from 0 to `end` - 1.
    int below(int end) { return static_cast<int>(next() % static_cast<quint64>(end)); }
    /// Returns a number from `first` to `last`.
    int between(int first, int last) { return first + below(last - first + 1); }
    /// Returns true once in `n` calls on average.
    bool oneIn(int n) { return below(n) == 0; }
    template<class T> T oneOf(const std::vector<T> &choices)
    {
        return choices[static_cast<size_t>(below(static_cast<int>(choices.size())))];
    }

private:
    quint64 mState;
};
