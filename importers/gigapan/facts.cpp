// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/gigapan/facts.h"

#include "importers/headfacts.h"

namespace PanoHead
{

namespace
{

HeadFacts newFacts()
{
    HeadFacts facts;
    facts.about = &kGigapanAbout;
    facts.title = "Gigapan";
    facts.hasLinking = true;
    facts.demo.leastPsnrDecibels = 41.0;
    return facts;
}

} // namespace

const HeadFacts &gigapanFacts()
{
    static const HeadFacts facts = newFacts();
    return facts;
}

} // namespace PanoHead
