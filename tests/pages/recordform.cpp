// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "tests/pages/recordform.h"

Form RecordForm::form(const char *tabs, const char *lensLabel,
                      const std::vector<FormRow> &ownWidgets)
{
    Form form{
        { { tabs, "QTabWidget", "" }, {} },
        { { "General", "QWidget", "General" },
          { { "label", "QLabel", "XML:" },
            { "m_leConfigFile", "QLineEdit", "" },
            { "m_pbSelectConfigFile", "QPushButton", "..." },
            { "m_pbReset", "QPushButton", "Reset" },
            { "label_4", "QLabel", "Number of images:" },
            { "m_lbPapyLog", "QLabel", "N/A" },
            { "label_2", "QLabel", "Yaw:" },
            { "m_lbThetaMinMax", "QLabel", "N/A" },
            { "label_9", "QLabel", "Pitch:" },
            { "m_lbPhiMinMax", "QLabel", "N/A" },
            { "label_10", "QLabel", "Bracketing:" },
            { "m_lbBracket", "QLabel", "N/A" },
            { "label_12", "QLabel", "XML focal:" },
            { "m_lbFocalLength", "QLabel", "N/A" },
            { "m_leImage", "QLineEdit", "" },
            { "m_pbSelectImages", "QPushButton", "..." },
            { "m_lbImage", "QLabel", "Images:" },
            { "label_5", "QLabel", "Number of images:" },
            { "m_lbImageLog", "QLabel", "N/A" },
            { "label_14", "QLabel", "Image focal:" },
            { "m_lbFocalLengthImage", "QLabel", "N/A" } } },
        { { "tab_4", "QWidget", "Shoot setup" },
          { { "m_pInverseCoordinates", "QPushButton", "Inverse Y coordinates" },
            { "m_pbRot270", "QPushButton", "" },
            { "m_pbRot90", "QPushButton", "" },
            { "label_15", "QLabel", "Focal length:" },
            { "m_spFocal", "QDoubleSpinBox", "1.000" },
            { lensLabel, "QLabel", "Lens Type:" },
            { "m_cbLensType", "QComboBox", "" },
            { "m_pbFLUseXML", "QPushButton", "Use XML information" },
            { "m_pbFLUseImage", "QPushButton", "Use image information" } } },
        { { "tab_3", "QWidget", "Stack" },
          { { "label_13", "QLabel", "Detect links in:" },
            { "m_rbLevelLinking0", "QRadioButton", "The reference level" },
            { "m_rbLevelLinking1", "QRadioButton", "All stack levels" },
            { "label_11", "QLabel", "For a stack:" },
            { "m_rbStackLinking0", "QRadioButton", "Use hard links" },
            { "m_rbStackLinking1", "QRadioButton", "Detect control points" } } },
        { { "tab_2", "QWidget", "Detection options" },
          { { "m_autoStart", "QCheckBox", "Auto detection" },
            { "m_cleanLink", "QCheckBox", "Clean wrong link" },
            { "m_noOptim", "QCheckBox", "Skip optimization" },
            { "m_GridOptim", "QCheckBox", "Use recorded location" } } },
        { { "groupBox", "QGroupBox", "Preview" },
          { { "m_saPreview", "QScrollArea", "" },
            { "label_3", "QLabel", "Zoom" },
            { "m_hSlider", "QSlider", "" } } },
    };
    std::vector<FormRow> &general = form[1].widgets;
    general.insert(general.end(), ownWidgets.cbegin(), ownWidgets.cend());
    return form;
}

QStringList RecordForm::tabOrder()
{
    return list({ "m_pInverseCoordinates", "m_pbRot270", "m_pbRot90", "m_spFocal", "m_cbLensType",
                  "m_pbFLUseXML", "m_pbFLUseImage", "m_rbLevelLinking0", "m_rbLevelLinking1",
                  "m_rbStackLinking0", "m_rbStackLinking1", "m_autoStart", "m_cleanLink",
                  "m_noOptim", "m_GridOptim" });
}
