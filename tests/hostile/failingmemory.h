// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

/** Which allocations a test lets fail. */
enum class Failing {
    Everything, ///< malloc and its kin, and with them operator new and Qt's containers
    OperatorNew, ///< and nothing else
    Pixels, ///< blocks of 16 KiB and more from malloc: the data of pictures
};

/** While it lives, the \p nth allocation of the thread that made it (from 1) fails. */
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

/** While it lives, allocations of this thread succeed and are not counted: the host's own. */
class SpareMemory
{
public:
    SpareMemory();
    ~SpareMemory();
    SpareMemory(const SpareMemory &) = delete;
    SpareMemory &operator=(const SpareMemory &) = delete;

private:
    bool m_wasArmed;
};
