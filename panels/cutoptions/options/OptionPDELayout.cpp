// SPDX-License-Identifier: Apache-2.0
// The panel's view: connects its controls, lays out its rows and inserts the preview.
#include "OptionPDE.h"

#include <platform/Geometry.h>
#include <platform/ImageIcon.h>

#include <algorithm>
#include <initializer_list>

namespace {

constexpr double lineHeight = 26.0;
constexpr double firstRowFromTop = 38.0;
constexpr double previewFromTop = 130.0;
constexpr double minPanelHeight = 150.0;

constexpr PresetSet tapeFamilyLacks = {PresetLabelsUncut, PresetLabelsCutAtEnd, PresetLabelsCutEvery};
constexpr PresetSet labelFamilyLacks = {PresetTapeUncut};

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

bool OptionPDE13_v400_::connectOutlets(QWidget *view, QString *error)
{
    for (const OptionRow &row : optionTable) {
        if (!connectOutlet(view, row.boxName, fields(row.kind).box, error))
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

    const double panelHeight = std::max(minPanelHeight, height - hiddenHeight);
    makePreview();
    setViewFrameSize(width, panelHeight);
    if (mOptionView)
        platform::setBottomEdge(mOptionView, panelHeight - previewFromTop, kPDEView->height());
    fillReplacedControls();
}

void OptionPDE13_v400_::connectActions()
{
    for (const OptionRow &row : optionTable) {
        QCheckBox *const box = checkBox(row.kind);
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
    removePresets(isDZPrinter() ? labelFamilyLacks : tapeFamilyLacks);
}

bool OptionPDE13_v400_::isRowShown(OptionKind kind) const
{
    return choices(kind) && (kind != OptionKind::AutoCut || mAutoCutHideKey_dec);
}

void OptionPDE13_v400_::layOutRows(double viewHeight, double *hiddenHeight)
{
    for (const OptionRow &row : optionTable)
        checkBox(row.kind)->hide();
    for (QWidget *const control :
         std::initializer_list<QWidget *>{mCutEveryTxBx, mCutEveryStpr, mCutEveryStr})
        control->hide();

    double y = viewHeight - firstRowFromTop;
    for (const OptionKind kind : panelOrder) {
        const OptionRow &row = optionRow(kind);
        if (isRowShown(kind)) {
            removePresets(row.removedWith);
            placeRow(row, viewHeight, &y);
            continue;
        }
        *hiddenHeight += row.lines * lineHeight;
        // If the cut-every row is visible, its box replaces the missing auto-cut box.
        if (kind != OptionKind::AutoCut || !choices(OptionKind::CutLabel))
            removePresets(row.removedWithout);
    }
}

void OptionPDE13_v400_::removePresets(const PresetSet &removed)
{
    for (const Preset &preset : presets) {
        if (removed.contains(preset.tag))
            mOptionPopUpButton->removeItemWithTitle(
                QLatin1String(preset.picture.data(), static_cast<qsizetype>(preset.picture.size())));
    }
}

void OptionPDE13_v400_::placeRow(const OptionRow &row, double viewHeight, double *y)
{
    QCheckBox *const box = checkBox(row.kind);
    platform::setBottomEdge(box, *y, viewHeight);
    box->show();
    if (row.kind == OptionKind::CutLabel) {
        const int countLine = static_cast<int>(*y - lineHeight);
        // The three controls differ in height; the offsets align their middle lines.
        platform::setBottomEdge(mCutEveryTxBx, countLine - 4, viewHeight);
        platform::setBottomEdge(mCutEveryStpr, countLine - 5, viewHeight);
        platform::setBottomEdge(mCutEveryStr, countLine + 2, viewHeight);
        mCutEveryTxBx->show();
        mCutEveryStpr->show();
        mCutEveryStr->show();
    }
    *y -= row.lines * lineHeight;
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
        mOptionView->setBox(row.kind, checkBox(row.kind));
    mOptionView->show();
}
