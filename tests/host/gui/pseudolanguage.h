// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QCoreApplication>
#include <QTranslator>

/** A language in which every text is a third longer, and known by its brackets. Like all others it
 * knows no options and no commands. */
class PseudoLanguage : public QTranslator
{
public:
    PseudoLanguage()
        : QTranslator(qApp)
    {
    }
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char *context, const char *source, const char *comment,
                                    int n) const override;
};

/** What is left of \p text without what is translated, names of files and heads, and numbers. */
[[nodiscard]] QString untranslated(QString text);
