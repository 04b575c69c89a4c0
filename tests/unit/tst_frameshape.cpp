// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "importers/papywizard/uiwpmerlin.h"
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

static_assert(hasPageOperations<UIWPMerlin>());
static_assert(std::is_convertible_v<UIWPMerlin *, QWizardPage *>);
static_assert(std::is_convertible_v<UIWPMerlin *, MerlinToSPP *>);
static_assert(std::is_convertible_v<UIWPMerlin *, Ui::UIWPMerlinClass *>);
static_assert(std::is_convertible_v<MerlinToSPP *, StructuredPanoramaProperties *>);
static_assert(!std::is_polymorphic_v<MerlinToSPP>);

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
    UIWPMerlin page(nullptr);
    const auto address = [](const auto *part) { return reinterpret_cast<quintptr>(part); };
    const quintptr wizardPage = address(static_cast<QWizardPage *>(&page));
    const quintptr description = address(static_cast<StructuredPanoramaProperties *>(&page));
    const quintptr generator = address(static_cast<MerlinToSPP *>(&page));
    const quintptr form = address(static_cast<Ui::UIWPMerlinClass *>(&page));
    QCOMPARE(wizardPage, address(&page));
    QVERIFY(wizardPage < generator);
    QCOMPARE(description, generator); // the record is the generator's first part
    QVERIFY(generator < form);
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
