// SPDX-License-Identifier: Apache-2.0
// The panel's view: connects its controls, lays out its rows and inserts the preview.
#include "OptionPDE.h"

#include <platform/Geometry.h>
#include <platform/ImageIcon.h>

#include <initializer_list>
#include <iterator>

namespace {

constexpr double rowHeight = 26.0;
constexpr double firstRowFromTop = 38.0;
constexpr double previewFromTop = 130.0;
constexpr double smallestPanelHeight = 150.0;

using Titles = std::initializer_list<const char *>;

constexpr Titles none = {};
constexpr Titles withoutCutMark = {"CTMROnOffOff", "CTMROffOnOff", "CTMROnOnOff", "CTMROffOffOff"};
constexpr Titles withCutMark = {"AHCMOffOffOffOff", "AHCMOffOffOnOff", "AHCMOffOnOnOff", "AHCMOnOffOnOff",
                                "AHCMOnOnOnOff"};
constexpr Titles withoutCutEvery = {"EveryEndMirrorOnOffOff"};
constexpr Titles withoutAnyAutoCut = {"AHCMOnOffOffOff", "AHCMOnOffOnOff", "AHCMOnOnOffOff", "AHCMOnOnOnOff"};
constexpr Titles withoutCutAtEnd = {"EveryEndMirrorOffOnOff"};
constexpr Titles withoutHalfCut = {"AHCMOffOnOffOff", "AHCMOffOnOnOff", "AHCMOnOnOffOff", "AHCMOnOnOnOff"};
constexpr Titles withoutSpecialTape = {"SPMROnOff"};
constexpr Titles withoutChain = {"AHCMOffOffOnOff", "AHCMOffOnOnOff", "AHCMOnOffOnOff",
                                 "AHCMOnOnOnOff",   "CTMROffOnOff",   "CTMROnOnOff"};
constexpr Titles tapeFamilyLacks = {"EveryEndMirrorOffOffOff", "EveryEndMirrorOffOnOff",
                                    "EveryEndMirrorOnOffOff"};
constexpr Titles labelFamilyLacks = {"AHCMOffOffOffOff"};

void removeItems(platform::PopUpButton *popUp, Titles titles)
{
    for (const char *title : titles)
        popUp->removeItemWithTitle(QLatin1String(title));
}

/// Finds the control by its name. Returns false and sets the error if the layout does not contain it.
template<typename Control>
bool connectOutlet(QWidget *view, const char *name, QPointer<Control> &field, QString *error)
{
    field = view->findChild<Control *>(QLatin1String(name));
    if (field)
        return true;
    *error = QStringLiteral("OptionPDE.ui: the layout has no %1 named %2")
                 .arg(QLatin1String(Control::staticMetaObject.className()), QLatin1String(name));
    return false;
}

} // namespace

/// One row of the panel, listed from top to bottom. The order follows the processing of a strip: marks and
/// cuts first, print effects last.
struct OptionPDE13_v400_::LayoutRow {
    OptionKind kind;
    double height;
    /// The presets that do not apply to a printer with this option, and those that do not apply to one
    /// without it.
    Titles removedWhenShown;
    Titles removedWhenHidden;
};

bool OptionPDE13_v400_::connectOutlets(QWidget *view, QString *error)
{
    for (const OptionRow &row : optionTable) {
        if (!connectOutlet(view, row.boxName, this->*row.box, error))
            return false;
    }
    return connectOutlet(view, "mCutEveryTxBx", mCutEveryTxBx, error) &&
           connectOutlet(view, "mCutEveryStpr", mCutEveryStpr, error) &&
           connectOutlet(view, "mCutEveryStr", mCutEveryStr, error) &&
           connectOutlet(view, "mOptionPopUpButton", mOptionPopUpButton, error) &&
           connectOutlet(view, "mOptionDummyView", mOptionDummyView, error);
}

void OptionPDE13_v400_::awakeFromNib()
{
    const double width = kPDEView->width();
    const double height = kPDEView->height();
    connectActions();
    prunePopUpByFamily();
    double hiddenHeight = 0.0;
    layOutRows(height, &hiddenHeight);
    dressPopUp();

    const double panelHeight = std::max(smallestPanelHeight, height - hiddenHeight);
    makePreview();
    setViewFrameSize(width, panelHeight);
    if (mOptionView)
        platform::setBottomEdge(mOptionView, panelHeight - previewFromTop, kPDEView->height());
    fillReplacedControls();
}

void OptionPDE13_v400_::connectActions()
{
    for (const OptionRow &row : optionTable) {
        QCheckBox *const box = this->*row.box;
        QObject::connect(box, &QCheckBox::clicked, box, [this, box] { changeOption(box); });
    }
    QObject::connect(mCutEveryStpr, &platform::Stepper::stepped, mCutEveryStpr,
                     [this] { changeCutEveryValue(mCutEveryStpr); });
    QObject::connect(mCutEveryTxBx, &QLineEdit::textEdited, mCutEveryTxBx,
                     [this] { controlTextDidChange(mCutEveryTxBx); });
    QObject::connect(mOptionPopUpButton, &QComboBox::activated, mOptionPopUpButton,
                     [this] { changeOptionPopUpButton(mOptionPopUpButton); });
    mOptionPopUpButton->setValidator([this](int tag) { return validateMenuItem(tag); });
}

void OptionPDE13_v400_::prunePopUpByFamily()
{
    removeItems(mOptionPopUpButton, isDZPrinter() ? labelFamilyLacks : tapeFamilyLacks);
}

bool OptionPDE13_v400_::isRowShown(OptionKind kind) const
{
    return choices(kind) && (kind != OptionKind::AutoCut || mAutoCutHideKey_dec);
}

void OptionPDE13_v400_::layOutRows(double viewHeight, double *hiddenHeight)
{
    static const std::array<LayoutRow, OptionCount> rows = {{
        {OptionKind::CutMark, rowHeight, withCutMark, withoutCutMark},
        {OptionKind::CutLabel, 2 * rowHeight, none, withoutCutEvery},
        {OptionKind::AutoCut, rowHeight, none, withoutAnyAutoCut},
        {OptionKind::CutAtEnd, rowHeight, none, withoutCutAtEnd},
        {OptionKind::HalfCut, rowHeight, none, withoutHalfCut},
        {OptionKind::SpecialTape, rowHeight, none, withoutSpecialTape},
        {OptionKind::ChainPrint, rowHeight, none, withoutChain},
        {OptionKind::Mirror, rowHeight, none, none},
        {OptionKind::RemoveBlkSpace, rowHeight, none, none},
    }};
    for (const OptionRow &row : optionTable)
        (this->*row.box)->hide();
    for (QWidget *const control :
         std::initializer_list<QWidget *>{mCutEveryTxBx, mCutEveryStpr, mCutEveryStr})
        control->hide();

    double y = viewHeight - firstRowFromTop;
    for (const LayoutRow &row : rows) {
        if (isRowShown(row.kind)) {
            removeItems(mOptionPopUpButton, row.removedWhenShown);
            placeRow(row, viewHeight, &y);
            continue;
        }
        *hiddenHeight += row.height;
        // If the cut-every row is visible, its box replaces the missing auto-cut box.
        if (row.kind != OptionKind::AutoCut || !mCutEvery_Choices)
            removeItems(mOptionPopUpButton, row.removedWhenHidden);
    }
}

void OptionPDE13_v400_::placeRow(const LayoutRow &layout, double viewHeight, double *y)
{
    QCheckBox *const box = checkBox(layout.kind);
    platform::setBottomEdge(box, *y, viewHeight);
    box->show();
    if (layout.kind != OptionKind::CutLabel) {
        *y -= layout.height;
        return;
    }
    const int countLine = static_cast<int>(*y - rowHeight);
    // The three controls differ in height; the offsets align their middle lines.
    platform::setBottomEdge(mCutEveryTxBx, countLine - 4, viewHeight);
    platform::setBottomEdge(mCutEveryStpr, countLine - 5, viewHeight);
    platform::setBottomEdge(mCutEveryStr, countLine + 2, viewHeight);
    mCutEveryTxBx->show();
    mCutEveryStpr->show();
    mCutEveryStr->show();
    *y = countLine - rowHeight;
}

void OptionPDE13_v400_::dressPopUp()
{
    for (int position = 0; position < mOptionPopUpButton->count(); ++position) {
        const QString picture = mOptionPopUpButton->itemText(position);
        if (const std::optional<QString> path = nsPDEBundle->pathForImageResource(picture))
            mOptionPopUpButton->setItemIcon(
                position, platform::iconFromImage(platform::Image::initWithContentsOfFile(*path)));
        // The item shows only its picture, so the tool tip and the accessible text describe it.
        const QString spoken = localized(QStringLiteral("OP_PICTURE_") + picture);
        mOptionPopUpButton->setItemData(position, spoken, Qt::ToolTipRole);
        mOptionPopUpButton->setItemData(position, spoken, Qt::AccessibleTextRole);
        mOptionPopUpButton->setItemText(position, QString());
    }
}

void OptionPDE13_v400_::makePreview()
{
    mOptionView = OptionView13_v400_::initWithFrame(mOptionDummyView->geometry(), *nsPDEBundle, isDZPrinter(),
                                                    mOptionDummyView->parentWidget());
    mOptionView->setObjectName(QStringLiteral("mOptionView"));
    delete mOptionDummyView.data();
    for (const OptionRow &row : optionTable)
        (mOptionView->*row.handToPreview)(this->*row.box);
    mOptionView->show();
}
