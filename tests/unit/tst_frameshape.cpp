// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
#include "hostlink/xiapplication.h"
#include "hostlink/xiimagedef.h"
#include "importers/clauss/uiwpclauss.h"
#include "importers/clauss/xclaussimport.h"
#include "importers/gigapan/uiwpgigapan.h"
#include "importers/gigapan/xgigapanimport.h"
#include "importers/papywizard/uiwpmerlin.h"
#include "importers/papywizard/xmerlinimport.h"
#include "importers/vrdrive2/uiwpvrdrive2.h"
#include "importers/vrdrive2/xvrdrive2import.h"
#include "plugin/library.h"
#include "tests/support/testprogram.h"
#include "ui/blocksignal.h"
#include "ui/xui.h"
#include "ui/xuipixmaphelper.h"

#include <QApplication>
#include <QIcon>
#include <QMetaMethod>
#include <QTest>

#include <cstring>
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
constexpr bool kHasPageShape = std::conjunction_v<
    std::bool_constant<hasPageOperations<Page>()>, std::is_convertible<Page *, QWizardPage *>,
    std::is_convertible<Page *, Generator *>, std::is_convertible<Page *, Form *>,
    std::is_convertible<Generator *, StructuredPanoramaProperties *>,
    std::negation<std::is_polymorphic<Generator>>>;

static_assert(kHasPageShape<UIWPClauss, ClaussToSPP, Ui::UIWPClaussClass>);
static_assert(kHasPageShape<UIWPGigapan, GigapanToSPP, Ui::UIWPGigapanClass>);
static_assert(kHasPageShape<UIWPMerlin, MerlinToSPP, Ui::UIWPMerlinClass>);
static_assert(kHasPageShape<UIWPVRDrive2, VRDrive2ToSPP, Ui::UIWPVRDrive2Class>);

/** The wizard's operations that a page answers itself, and the one that it leaves alone. */
template <typename Page>
constexpr bool kOverridesTheFour
    = std::conjunction_v<std::is_same<decltype(&Page::initializePage), void (Page::*)()>,
                         std::is_same<decltype(&Page::cleanupPage), void (Page::*)()>,
                         std::is_same<decltype(&Page::validatePage), bool (Page::*)()>,
                         std::is_same<decltype(&Page::isComplete), bool (Page::*)() const>,
                         std::is_same<decltype(&Page::nextId), int (QWizardPage::*)() const>>;

static_assert(kOverridesTheFour<UIWPClauss>);
static_assert(kOverridesTheFour<UIWPGigapan>);
static_assert(kOverridesTheFour<UIWPMerlin>);
static_assert(kOverridesTheFour<UIWPVRDrive2>);

/** Adds one virtual operation to those of \p Page. */
template <typename Page> class OneMore : public Page
{
public:
    using Page::Page;
    virtual void oneMore() { }
};

/** What the test is there to notice. */
class PageWithAddedOperation : public UIWPMerlin
{
public:
    using UIWPMerlin::UIWPMerlin;
    virtual void added() { }
};

/** The place among the virtual operations that the next one would get. */
template <typename Page> quintptr nextVirtualPlace()
{
    // A pointer to a virtual member begins with its place in the table, whatever the object.
    const auto operation = &OneMore<Page>::oneMore;
    quintptr place = 0;
    std::memcpy(&place, &operation, sizeof(place));
    return place;
}

/** The signatures of the slots that \p meta declares itself, sorted; anything else as "?". */
QStringList ownSlots(const QMetaObject &meta)
{
    QStringList signatures;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        const bool isPublicSlot = method.methodType() == QMetaMethod::Slot
            && method.access() == QMetaMethod::Public && method.returnType() == QMetaType::Void;
        signatures.append(isPublicSlot ? QString::fromLatin1(method.methodSignature())
                                       : QStringLiteral("?"));
    }
    signatures.sort();
    return signatures;
}

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

Q_DECLARE_METATYPE(const QMetaObject *)

/** What the compiler cannot say of the frame's classes: the order of bases and slots. */
class TestFrameShape : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pageBasesStandInTheirOrder();
    void pageHasItsSlotsAndNoSignals_data();
    void pageHasItsSlotsAndNoSignals();
    void pagesAddNoVirtualOperations();
};

void TestFrameShape::pageBasesStandInTheirOrder()
{
    QVERIFY((basesStandInOrder<UIWPClauss, ClaussToSPP, Ui::UIWPClaussClass>()));
    QVERIFY((basesStandInOrder<UIWPGigapan, GigapanToSPP, Ui::UIWPGigapanClass>()));
    QVERIFY((basesStandInOrder<UIWPMerlin, MerlinToSPP, Ui::UIWPMerlinClass>()));
    QVERIFY((basesStandInOrder<UIWPVRDrive2, VRDrive2ToSPP, Ui::UIWPVRDrive2Class>()));
}

void TestFrameShape::pageHasItsSlotsAndNoSignals_data()
{
    QTest::addColumn<const QMetaObject *>("meta");
    QTest::addColumn<QString>("slotNames");
    QTest::newRow("Clauss") << &UIWPClauss::staticMetaObject
                            << QStringLiteral(
                                   "SelectImages() SelectConfigFile() SetConfigFFilename() Reset() "
                                   "UpdateUI() UpdatePreview() BrowserWeb(QString) "
                                   "OnInverseCoordinates()");
    QTest::newRow("Gigapan") << &UIWPGigapan::staticMetaObject
                             << QStringLiteral(
                                    "SelectImages() Reset() UpdateUI() UpdatePreview() "
                                    "BrowserWeb(QString) SetRow(int) IgnoreNImages(int) "
                                    "OnChangeBracket(int) OnMode0Toggled(bool) "
                                    "OnMode1Toggled(bool) OnMode2Toggled(bool) "
                                    "OnMode3Toggled(bool) OnMode4Toggled(bool) "
                                    "OnLevelLinkingClicked(bool) OnStackLinkingClicked(bool)");
    const QString schemaSlots = QStringLiteral(
        "SelectImages() SelectConfigFile() SetConfigFFilename(QString) Reset() UpdateUI() "
        "UpdatePreview() BrowserWeb(QString) OnZoomChanged() OnImageLoaded() "
        "OnInverseCoordinates() OnRotate90() OnRotate270() OnLevelLinkingClicked(bool) "
        "OnStackLinkingClicked(bool) OnFLUseXML() OnFLUseImage()");
    QTest::newRow("Papywizard") << &UIWPMerlin::staticMetaObject << schemaSlots;
    QTest::newRow("VR Drive 2") << &UIWPVRDrive2::staticMetaObject << schemaSlots;
}

void TestFrameShape::pageHasItsSlotsAndNoSignals()
{
    QFETCH(const QMetaObject *, meta);
    QFETCH(QString, slotNames);
    QStringList expected = slotNames.split(QLatin1Char(' '));
    expected.sort();
    QCOMPARE(ownSlots(*meta), expected);
    QCOMPARE(meta->propertyCount(), meta->propertyOffset());
    QCOMPARE(meta->superClass(), &QWizardPage::staticMetaObject);
}

void TestFrameShape::pagesAddNoVirtualOperations()
{
    const quintptr wizardPages = nextVirtualPlace<QWizardPage>();
    QCOMPARE(nextVirtualPlace<UIWPClauss>(), wizardPages);
    QCOMPARE(nextVirtualPlace<UIWPGigapan>(), wizardPages);
    QCOMPARE(nextVirtualPlace<UIWPMerlin>(), wizardPages);
    QCOMPARE(nextVirtualPlace<UIWPVRDrive2>(), wizardPages);
    QVERIFY(nextVirtualPlace<PageWithAddedOperation>() != wizardPages);
}

TEST_CLASS(TestFrameShape, QApplication)
#include "tst_frameshape.moc"
