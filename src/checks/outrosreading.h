#pragma once

#include "language.h"
#include "panel.h"

/// A self-test of the phone's memory, by the index of its button.
struct MemoryTest
{
    int index = 0;
    QLatin1StringView command;
    QStringView caption;   ///< key
    QStringView note = {}; ///< key of what stands where the reply will be
    QStringView part = {}; ///< what is tested, shown beside the result
};

inline constexpr int kFullMemoryTest = 5;
inline constexpr int kSmallMemoryTest = 6;

/// The test of an index; nothing for a button that starts none.
const MemoryTest *memoryTest(int index);

struct MemoryInput
{
    int index = kFullMemoryTest;
    QString reply;        ///< empty: nothing was read yet
    bool isWhole = false; ///< it came to its end and is to be judged
    bool isRunning = false;
    bool cut = false;
    QString model;
    Language language = Language::Portuguese;
};

/// Whether the memory passed the phone's own test.
Panel readMemory(const MemoryInput &input);
