// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/clauss/uiwpclauss.h"
#include "importers/gigapan/uiwpgigapan.h"
#include "importers/papywizard/uiwpmerlin.h"
#include "importers/vrdrive2/uiwpvrdrive2.h"
#include "plugin/importplugins.h"
#include "plugin/library.h"
#include "plugin/xiapplication.h"
#include "plugin/xiimagedef.h"
#include "ui/blocksignal.h"
#include "ui/xui.h"
#include "ui/xuipixmaphelper.h"

#include <QIcon>
#include <QMetaMethod>
#include <QTest>

#include <type_traits>

namespace
{

/** A pure interface without data: nothing but the pointer to its operations. */
template <typename Interface>
constexpr bool kIsInterface
    = std::is_abstract_v<Interface> &&
          std::has_virtual_destructor_v<Interface> && sizeof(Interface) == sizeof(void *);

static_assert(kIsInterface<XIApplication>);
static_assert(kIsInterface<XIImageDef>);
static_assert(kIsInterface<XIPluginLibrary>);
static_assert(kIsInterface<XIPluginImport>);
static_assert(kIsInterface<XIAbout>);
static_assert(std::is_same_v<std::underlying_type_t<XIPluginLibrary::APX>, int>);

static_assert(std::is_base_of_v<QObject, Library>);
static_assert(std::is_convertible_v<Library *, XIPluginLibrary *>);
static_assert(std::is_convertible_v<Library *, XIAbout *>);

/** A plug-in: object, plug-in interface, about data, the empty list and the page, in this order. */
template <typename Plugin>
constexpr bool kHasPluginShape
    = std::is_convertible_v<Plugin *, QObject *> &&std::is_convertible_v<Plugin *, XIPluginImport *>
          &&std::is_convertible_v<Plugin *, XIAbout *> &&std::is_constructible_v<
              Plugin,
              QObject
                  *> && !std::is_default_constructible_v<Plugin> && sizeof(Plugin) == sizeof(QObject) + sizeof(XIPluginImport) + sizeof(XIAbout) + sizeof(QList<QPointer<QWizardPage>>) + sizeof(QPointer<QWizardPage>);

static_assert(kHasPluginShape<XClaussImport>);
static_assert(kHasPluginShape<XGigapanImport>);
static_assert(kHasPluginShape<XMerlinImport>);
static_assert(kHasPluginShape<XVRDrive2Import>);

static_assert(!std::is_copy_constructible_v<BlockSignal>);
static_assert(!std::is_copy_assignable_v<BlockSignal>);
static_assert(!std::is_polymorphic_v<BlockSignal>);
static_assert(!std::is_polymorphic_v<XUI>);
static_assert(std::is_empty_v<XuiPixmapHelper>);
static_assert(std::is_default_constructible_v<XuiPixmapHelper>);

template <typename Signature, Signature operation> constexpr bool kHas = true;

static_assert(kHas<QPixmap (*)(QString, int, QSize), &XuiPixmapHelper::CreateHighDpiPixmap>);
static_assert(kHas<void (*)(QPixmap &, int), &XuiPixmapHelper::SetAlpha>);
static_assert(kHas<QPixmap (*)(QPixmap &, QSize), &XuiPixmapHelper::Scaled>);
static_assert(kHas<QRect (*)(QPixmap &), &XuiPixmapHelper::GetDisplayRect>);
static_assert(kHas<void (*)(XUIInstances *), &XUI::init>);
static_assert(kHas<void (*)(), &XUI::exit>);
static_assert(kHas<void (*)(), &XUI::loadJSLibraries>);
static_assert(kHas<QFileDialog::Options (*)(), &XUI::UseSystemFileDialog>);
static_assert(kHas<void (*)(bool), &XUI::SetUseSystemFileDialog>);
static_assert(kHas<void (*)(QObject *, const QList<QUrl> &), &XUI::SelectInFileBrowser>);

/** The page contract's operations that are not slots. */
template <typename Page> constexpr bool hasPageOperations()
{
    [[maybe_unused]] void (Page::*initialize)() = &Page::initializePage;
    [[maybe_unused]] void (Page::*cleanup)() = &Page::cleanupPage;
    [[maybe_unused]] bool (Page::*validate)() = &Page::validatePage;
    [[maybe_unused]] bool (Page::*complete)() const = &Page::isComplete;
    [[maybe_unused]] QByteArray (Page::*save)() const = &Page::SaveState;
    [[maybe_unused]] void (Page::*restore)(const QByteArray &) = &Page::RestoreState;
    return true;
}

/** The wizard page, the generator with the record as its first part, the form. */
template <typename Page, typename Generator, typename Form>
constexpr bool kHasPageShape
    = hasPageOperations<Page>()
    && std::is_convertible_v<Page *, QWizardPage *> &&std::is_convertible_v<Page *, Generator *>
        &&std::is_convertible_v<Page *, Form *> &&std::is_convertible_v<
            Generator *, StructuredPanoramaProperties *> && !std::is_polymorphic_v<Generator>;

static_assert(kHasPageShape<UIWPClauss, ClaussToSPP, Ui::UIWPClaussClass>);
static_assert(kHasPageShape<UIWPGigapan, GigapanToSPP, Ui::UIWPGigapanClass>);
static_assert(kHasPageShape<UIWPMerlin, MerlinToSPP, Ui::UIWPMerlinClass>);
static_assert(kHasPageShape<UIWPVRDrive2, VRDrive2ToSPP, Ui::UIWPVRDrive2Class>);

/** Whether the bases of a page stand in that order. */
template <typename Page, typename Generator, typename Form> bool basesStandInOrder()
{
    Page page(nullptr);
    const auto address = [](const auto *part) { return reinterpret_cast<quintptr>(part); };
    const quintptr generator = address(static_cast<Generator *>(&page));
    return address(static_cast<QWizardPage *>(&page)) == address(&page)
        && address(&page) < generator
        && address(static_cast<StructuredPanoramaProperties *>(&page)) == generator
        && generator < address(static_cast<Form *>(&page));
}

} // namespace

/** What the compiler cannot say of the frame's classes: the order of bases and slots. */
class TestFrameShape : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pageBasesStandInTheirOrder();
    void papywizardPageHasItsSlotsAndNoSignals();
};

void TestFrameShape::pageBasesStandInTheirOrder()
{
    QVERIFY((basesStandInOrder<UIWPClauss, ClaussToSPP, Ui::UIWPClaussClass>()));
    QVERIFY((basesStandInOrder<UIWPGigapan, GigapanToSPP, Ui::UIWPGigapanClass>()));
    QVERIFY((basesStandInOrder<UIWPMerlin, MerlinToSPP, Ui::UIWPMerlinClass>()));
    QVERIFY((basesStandInOrder<UIWPVRDrive2, VRDrive2ToSPP, Ui::UIWPVRDrive2Class>()));
}

void TestFrameShape::papywizardPageHasItsSlotsAndNoSignals()
{
    const QMetaObject &meta = UIWPMerlin::staticMetaObject;
    QStringList slotNames;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        QCOMPARE(meta.method(i).methodType(), QMetaMethod::Slot);
        QCOMPARE(meta.method(i).access(), QMetaMethod::Public);
        slotNames.append(QString::fromLatin1(meta.method(i).methodSignature()));
    }
    slotNames.sort();
    QStringList expected{ QStringLiteral("SelectImages()"),
                          QStringLiteral("SelectConfigFile()"),
                          QStringLiteral("SetConfigFFilename(QString)"),
                          QStringLiteral("Reset()"),
                          QStringLiteral("UpdateUI()"),
                          QStringLiteral("UpdatePreview()"),
                          QStringLiteral("BrowserWeb(QString)"),
                          QStringLiteral("OnZoomChanged()"),
                          QStringLiteral("OnImageLoaded()"),
                          QStringLiteral("OnInverseCoordinates()"),
                          QStringLiteral("OnRotate90()"),
                          QStringLiteral("OnRotate270()"),
                          QStringLiteral("OnLevelLinkingClicked(bool)"),
                          QStringLiteral("OnStackLinkingClicked(bool)"),
                          QStringLiteral("OnFLUseXML()"),
                          QStringLiteral("OnFLUseImage()") };
    expected.sort();
    QCOMPARE(slotNames, expected);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

QTEST_MAIN(TestFrameShape)
#include "tst_frameshape.moc"
