// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

/** Which allocations a test lets fail. */
enum class Failing {
    Everything, ///< malloc and its kin, and with them operator new and Qt's containers
    OperatorNew, ///< and nothing else
    Pixels, ///< blocks of 16 KiB and more from malloc: the data of pictures
};

/** While it lives, the \p nth allocation of this thread (from 1) fails, and only that one. */
class FailingMemory
{
public:
    FailingMemory(Failing kind, int nth);
    ~FailingMemory();
    FailingMemory(const FailingMemory &) = delete;
    FailingMemory &operator=(const FailingMemory &) = delete;

    /** Whether there were so many allocations. */
    [[nodiscard]] bool hasFailed() const;
};
