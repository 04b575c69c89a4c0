// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/vrdrive2/facts.h"

#include "importers/headfacts.h"
#include "importers/papywizard/facts.h"

namespace PanoHead
{

namespace
{

HeadFacts newFacts()
{
    HeadFacts facts = papywizardFacts(); // the records are the same
    facts.about = &kVRDrive2About;
    facts.title = "VR Drive 2";
    facts.ordersByTime = false;
    facts.cleansLinks = true;
    facts.ownChoices
        = { { "--output-mode", "ldr|hdr",
              "vrdrive2: brackets become an ordinary picture (default) or HDR radiance",
              "m_rbOutputMode1|m_rbOutputMode2" } };
    // The darkest first: the importer is to find the median exposure by itself.
    facts.demo = { 0.0, true, 40.0 };
    return facts;
}

} // namespace

const HeadFacts &vrdrive2Facts()
{
    static const HeadFacts facts = newFacts();
    return facts;
}

} // namespace PanoHead
