// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/choices.h"
#include "ui/shootview.h"

namespace PanoHead
{

// The forms give the same names to the same widgets; these pick them out of any form.

/** \p names outlives the view. */
template <typename Form> ShootView shootViewOf(const Form &form, PhotoNames &names)
{
    return { form.m_leConfigFile,
             form.m_lbPapyLog,
             form.m_lbThetaMinMax,
             form.m_lbPhiMinMax,
             form.m_leImage,
             form.m_lbImageLog,
             &names };
}

template <typename Form> LensView lensViewOf(const Form &form)
{
    return { form.m_lbBracket,          form.m_lbFocalLength, form.m_pbFLUseXML,
             form.m_lbFocalLengthImage, form.m_pbFLUseImage,  form.m_spFocal,
             form.m_cbLensType };
}

template <typename Form> LinkingChoices linkingChoicesOf(const Form &form)
{
    return { form.m_rbLevelLinking0, form.m_rbLevelLinking1, form.m_rbStackLinking0,
             form.m_rbStackLinking1 };
}

/** "All stack levels" was clicked. */
template <typename Form> void linkAllLevels(Form &form, bool checked)
{
    onAllLevelsClicked(linkingChoicesOf(form), checked);
}

/** "Use hard links" was clicked. */
template <typename Form> void linkHard(Form &form, bool checked)
{
    onHardLinksClicked(linkingChoicesOf(form), checked);
}

/** Of a form that has all four boxes. */
template <typename Form> DetectionOptions detectionOptionsOf(const Form &form)
{
    return { form.m_autoStart, form.m_cleanLink, form.m_noOptim, form.m_GridOptim };
}

} // namespace PanoHead
