// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/papywizard/uiwpmerlin.h"

#include "tests/pages/recordform.h"
#include "tests/support/fakeapplication.h"

#include <QtTest>

namespace
{

Form merlinForm()
{
    Form form = RecordForm::form("tabWidget", "label_16",
                                 { { "m_lbWarning", "QLabel", "<p style='color:red'></p>" } });
    form.push_back({ { "tab", "QWidget", "Header details" },
                     { { "label_6", "QLabel", "Title:" },
                       { "m_leHeaderTitle", "QLineEdit", "" },
                       { "label_7", "QLabel", "GPS:" },
                       { "m_leHeaderGps", "QLineEdit", "" },
                       { "label_8", "QLabel", "Comment:" },
                       { "m_leHeaderComment", "QLineEdit", "" } } });
    return form;
}

const Form kForm = merlinForm();

} // namespace

/** The form as a user finds it on a fresh page. */
class TestUIWPMerlinForm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void widgetHasItsKindAndText_data() { addFormRows(kForm); }
    void widgetHasItsKindAndText() { checkFormRow(UIWPMerlin(nullptr)); }
    void formHoldsNothingElse();
    void tabsStandInTheirOrder();
    void widgetStandsOnItsTab_data() { addFormPlaces(kForm); }
    void widgetStandsOnItsTab() { checkFormPlace(UIWPMerlin(nullptr)); }
    void tabKeyFollowsTheTable();
    void labelsNameTheirFields();
};

void TestUIWPMerlinForm::formHoldsNothingElse()
{
    QCOMPARE(formNames(UIWPMerlin(nullptr)), rowNames(kForm));
}

void TestUIWPMerlinForm::tabsStandInTheirOrder()
{
    const UIWPMerlin page(nullptr);
    QCOMPARE(tabTitles(page),
             list({ "General", "Shoot setup", "Stack", "Detection options", "Header details" }));
    QCOMPARE(page.tabWidget->currentIndex(), 0);
}

void TestUIWPMerlinForm::tabKeyFollowsTheTable()
{
    QCOMPARE(tabOrder(UIWPMerlin(nullptr)),
             list({ "tabWidget", "m_leConfigFile", "m_pbSelectConfigFile", "m_pbReset", "m_leImage",
                    "m_pbSelectImages" })
                 + RecordForm::tabOrder()
                 + list({ "m_leHeaderTitle", "m_leHeaderGps", "m_leHeaderComment", "m_saPreview",
                          "m_hSlider" }));
}

void TestUIWPMerlinForm::labelsNameTheirFields()
{
    QCOMPARE(buddies(UIWPMerlin(nullptr)),
             list({ "label > m_leConfigFile", "label_15 > m_spFocal", "label_16 > m_cbLensType",
                    "label_3 > m_hSlider", "label_6 > m_leHeaderTitle", "label_7 > m_leHeaderGps",
                    "label_8 > m_leHeaderComment", "m_lbImage > m_leImage" }));
}

TEST_CLASS(TestUIWPMerlinForm, FakeApplication)
#include "tst_uiwpmerlin_form.moc"
