// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/hosthead.h"

/** What a text file is to be measured with: the largest one that is read at all. */
constexpr int kMostBytes = 64 * 1024 * 1024;

/** Numbers, and what takes the place of one. */
[[nodiscard]] QVector<QByteArray> oddNumbers();

/** \p head and \p tail with as many \p filling characters between them as one file may have. */
[[nodiscard]] QByteArray filledUp(const QByteArray &head, char filling, const QByteArray &tail,
                                  int size = kMostBytes);

/** \p part of 0 and so on, \p count of them. */
[[nodiscard]] QByteArray numbered(int count, const std::function<QByteArray(int)> &part);

/** Collects files under names that say where they belong. */
class HostileFiles
{
public:
    void add(const QByteArray &name, const QByteArray &content);
    void addLarge(const QByteArray &name, const std::function<QByteArray()> &content);
    [[nodiscard]] const QVector<HostileFile> &all() const { return m_files; }

private:
    QVector<HostileFile> m_files;
};
