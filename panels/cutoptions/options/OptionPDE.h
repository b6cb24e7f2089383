// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "OptionTable.h"

#include <plugin/BasePDE.h>
#include <preview/OptionView.h>
#include <protocol/PDEUserChoices.h>

#include <QCheckBox>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QTabWidget>

#include <platform/PopUpButton.h>
#include <platform/Stepper.h>

#include <array>
#include <memory>

/// The cut-options panel: how labels are cut and finished.
///
/// Nine options of the printer's PPD stand in nine rows, each with a check box; a row is there exactly when
/// the PPD defines its keyword. The PPD's markings are the panel's state: a click hands the choice to
/// the dialog, which marks it, and the row is refreshed from what is then marked. A pop-up offers ready-made
/// combinations, a picture shows the one that is set, and rules grey what the paper or another option
/// excludes.
///
/// All rows work through one table (OptionRow), so that a new option is a new row. Controls that are not
/// loaded yet read as visible, disabled and off, and are left alone when written, since a dialog may
/// save or ask for the summary before it ever shows the panel.
class OptionPDE13_v400_ : public BasePDE13_v400_, public PDEUserChoices_v1, public PDEChoiceSummary_v1 {
public:
    using ChoicesField = std::unique_ptr<PDEChoiceList>;

    /// A panel for the dialog that the callback object stands for; null without a dialog or a bundle. Reads
    /// the PPD's options, and on heat-shrink tube, which the cutter cannot cut, marks automatic cutting off.
    static std::shared_ptr<OptionPDE13_v400_>
    initWithCallback(std::shared_ptr<PDEPluginCallback13_v400_> callback,
                     std::shared_ptr<const platform::Bundle> bundle);
    ~OptionPDE13_v400_() override;

    // What this panel answers differently from the base; see PDEPanel and BasePDE13_v400_.
    std::optional<QStringList> supportedPPDOptionKeys() override;
    void printWindowWillClose(QWidget *window) override;
    bool shouldPrint() override;
    bool shouldShowHelp() const override { return false; }
    void PPDOptionKeyValueDidChange(const std::optional<QString> &key,
                                    const std::optional<QString> &choice) override;
    std::optional<QVariantMap> summaryInfo() override { return summaryInfoFor({}); }
    void initSetTitleTexts() override {}
    void initUI() override;
    void getValuesFromKey() override {}
    void setValuesToKey() override;
    void setPDEItems() override;
    void setPDEItems2() override;
    void updateUIItem(ItemTypes items) override;
    void updateMarkedSelections(ItemTypes items) override;

    /// Special tape is applied first, since it enables and disables others, and the rest in table order. A
    /// count whose field only the automatic cut enables follows it. A choice that a check box cannot show,
    /// the third of a list, is skipped, and so is a count that typing its number would not choose.
    PDEChoices shownChoices() const override;
    int combinationsChosen() const override { return mCombinationsChosen; }
    void applyUserChoices(const PDEChoices &choices) override;
    std::optional<QVariantMap> summaryInfoFor(const PDEChoices &given) const override;

    /// The layout is loaded and its controls are connected: shows the rows that the PPD defines, closes the
    /// gaps, takes the presets out that this printer cannot do, and puts the preview in its place.
    void awakeFromNib() override;

    // CUTOPTION_initialize: each row as the PPD's defaults have it, and what may be touched.
    void initializeUI_CutLabel();
    void initializeUI_CutAtEnd() { initializeRow(OptionKind::CutAtEnd); }
    void initializeUI_Mirror() { initializeRow(OptionKind::Mirror); }
    void initializeUI_AutoCut();
    void initializeUI_HalfCut() { initializeRow(OptionKind::HalfCut); }
    void initializeUI_ChainPrint() { initializeRow(OptionKind::ChainPrint); }
    void initializeUI_SpecialTape() { initializeRow(OptionKind::SpecialTape); }
    void initializeUI_RemoveBlkSpace();
    void initializeUI_CutMark() { initializeRow(OptionKind::CutMark); }
    void initializeUI_OtherStr() {}

    /// Greys and ungreys the controls by paper and by each other; touches only those that change.
    void enabledCheck_OP();

    /// The tape kind (TapeKind) of the paper, as last read.
    void setTapeState(std::int32_t state) { mTapeState = state; }
    std::int32_t getTapeState() const { return mTapeState; }

    // CUTOPTION_IBAction: what the user does.

    /// A check box was clicked.
    void changeOption(const QWidget *sender);
    /// The stepper stepped or the count was typed: clamps it to the counts that the printer knows, shows
    /// the result in both controls and chooses it.
    void changeCutEveryValue(const QWidget *sender);
    /// A text changed: the count, when it is the count's field.
    void controlTextDidChange(const QWidget *object);
    /// A ready-made combination was chosen.
    void changeOptionPopUpButton(const QWidget *sender);
    /// Whether the preset with the tag can be chosen on the present paper.
    bool validateMenuItem(int tag) const;

    // CUTOPTION_Save: each row's setting handed to the dialog.
    void saveSetting_CutLabel();
    void saveSetting_CutAtEnd() { saveSetting(OptionKind::CutAtEnd); }
    void saveSetting_Mirror() { saveSetting(OptionKind::Mirror); }
    void saveSetting_AutoCut();
    void saveSetting_HalfCut() { saveSetting(OptionKind::HalfCut); }
    void saveSetting_ChainPrint() { saveSetting(OptionKind::ChainPrint); }
    void saveSetting_SpecialTape() { saveSetting(OptionKind::SpecialTape); }
    void saveSetting_RemoveBlkSpace();
    void saveSetting_CutMark() { saveSetting(OptionKind::CutMark); }

    /// The choice index that a box stands for when special tape overrules it: 0 while special tape is
    /// visible and on, or without a control; else the control's state.
    std::int32_t indexForSaveAutoChain(const QWidget *control) const;

    /// The tag of the preset that describes the boxes as they are.
    int targetPopUpButtonTag() const;
    /// The paper changed in the dialog.
    void checkChangeSettingWhenPageSizeChanged(const platform::Notification &notification);
    void tabView(QTabWidget *, int) {}

    // Looking in, for tools and tests.

    const ppd_option_t *option(OptionKind kind) const { return this->*row(kind).option; }
    const PDEChoiceList *choices(OptionKind kind) const { return (this->*row(kind).choices).get(); }
    const PDEChoice *selection(OptionKind kind) const { return this->*row(kind).selection; }
    const PDEChoice *cutEveryAutoCutSelection() const { return mAutoCut_CutEvery_Selection; }
    /// The row's check box; null while the view is not loaded.
    QCheckBox *checkBox(OptionKind kind) const { return this->*row(kind).box; }
    QLineEdit *countField() const { return mCutEveryTxBx; }
    platform::Stepper *countStepper() const { return mCutEveryStpr; }
    QLabel *countWord() const { return mCutEveryStr; }
    platform::PopUpButton *popUp() const { return mOptionPopUpButton; }
    OptionView13_v400_ *preview() const { return mOptionView; }
    /// Everything that can be read back, as JSON; empty while the view is not loaded.
    QJsonObject inspection() const;

protected:
    OptionPDE13_v400_() = default;
    bool init(std::shared_ptr<PDEPluginCallback13_v400_> callback,
              std::shared_ptr<const platform::Bundle> bundle) override;
    bool connectOutlets(QWidget *view, QString *error) override;

private:
    /// What a row's saved choice index is taken from.
    enum class SaveIndex : std::uint8_t { State, AutoChain };

    /// One option: its names, and where the panel keeps what belongs to it.
    struct OptionRow {
        OptionKind kind;
        const char *keyword;
        std::uint32_t item;
        const char *titleKey;
        const char *summaryKey;
        /// The default choice that switches the box on when the panel is first shown.
        const char *onDefault;
        SaveIndex saveIndex;
        /// The box's name in the layout file is the field's name.
        const char *boxName;
        QPointer<QCheckBox> OptionPDE13_v400_::*box;
        ppd_option_t *OptionPDE13_v400_::*option;
        ChoicesField OptionPDE13_v400_::*choices;
        const PDEChoice *OptionPDE13_v400_::*selection;
        /// What the box itself edits: the row's own option, but for the cut-every row the automatic cut,
        /// which two boxes share so that printers with and without a separate box behave alike.
        const char *boxKeyword;
        ChoicesField OptionPDE13_v400_::*boxChoices;
        const PDEChoice *OptionPDE13_v400_::*boxSelection;
        void (OptionView13_v400_::*handToPreview)(const QAbstractButton *);
        void (OptionPDE13_v400_::*initialize)();
        void (OptionPDE13_v400_::*save)();
    };
    static const std::array<OptionRow, OptionCount> optionTable;
    static const OptionRow &row(OptionKind kind) { return optionTable[static_cast<std::size_t>(kind)]; }

    struct LayoutRow;

    void layOutRows(double viewHeight, double *hiddenHeight);
    void placeRow(const LayoutRow &row, double viewHeight, double *y);
    bool isRowShown(OptionKind kind) const;
    void prunePopUpByFamily();
    void dressPopUp();
    void makePreview();
    void connectActions();
    void initializeRow(OptionKind kind);
    void initializeTitleAndState(OptionKind kind);
    void fillReplacedControls();
    QString titleFor(const char *keyword, const char *fallbackKey) const;

    void readTapeState();
    void enableRemoveBlankSpaceByTape();
    void applySpecialTapeRules(bool flagPaper);
    void applyCutEveryRules();
    QByteArray currentPaperName() const;

    /// The counts that the printer knows, without gaps: the index of a count is its distance from the
    /// smallest.
    struct CountRange {
        int low;
        int high;
        int clamped(int count) const;
        /// -1 for an index that no list can have.
        int indexOf(int count) const;
    };
    CountRange countRange() const;
    void showCount(const QString &text);
    const OptionRow *rowOfBox(const QWidget *box) const;
    void chooseBoxState(const OptionRow &edited);
    void applyToBox(OptionKind kind, int index);
    void applyToCount(int index);
    int boxIndexGiven(OptionKind kind, const PDEChoices &choices) const;
    void applyPreset(int tag);
    void updateRow(const OptionRow &row);
    bool isBoxOn(OptionKind kind) const;

    void saveSetting(OptionKind kind);
    /// What saving writes for an option that it writes; absent for a list without choices.
    std::optional<QString> choiceToSave(OptionKind kind) const;
    /// The choice that the option's control stands for, whatever special tape makes of it.
    std::optional<QString> choiceShown(OptionKind kind) const;
    int boxIndexToSave(const OptionRow &row) const;
    int countIndexToSave() const;
    QString chainedAutoCutToSave() const;
    int markedElseDefault(const PDEChoiceList *list, const char *keyword) const;
    void sendChoice(const ppd_option_t *option, const std::optional<QString> &choice);

    static std::optional<QString> choiceGiven(OptionKind kind, const PDEChoices &given);
    /// The place of the choice that is given for the option in its list; -1 when none is given or the list
    /// lacks it.
    int indexGiven(OptionKind kind, const PDEChoices &given) const;
    /// The choice that counts for the option: the given one, else the selection. May be null.
    const PDEChoice *heldChoice(OptionKind kind, const PDEChoices &given) const;
    bool isInSummary(OptionKind kind, const PDEChoices &given) const;
    QString summaryValue(OptionKind kind, const PDEChoices &given) const;

    ppd_option_t *mCutEvery_Option = nullptr;
    ppd_option_t *mCutEnd_Option = nullptr;
    ppd_option_t *mMirror_Option = nullptr;
    ppd_option_t *mAutoCut_Option = nullptr;
    ppd_option_t *mHalfCut_Option = nullptr;
    ppd_option_t *mChainPrint_Option = nullptr;
    ppd_option_t *mSpecialTape_Option = nullptr;
    ppd_option_t *mRemoveBlkSpace_Option = nullptr;
    ppd_option_t *mCutMark_Option = nullptr;

    ChoicesField mCutEvery_Choices;
    ChoicesField mCutEnd_Choices;
    ChoicesField mMirror_Choices;
    ChoicesField mAutoCut_Choices;
    ChoicesField mHalfCut_Choices;
    ChoicesField mChainPrint_Choices;
    ChoicesField mSpecialTape_Choices;
    ChoicesField mRemoveBlkSpace_Choices;
    ChoicesField mCutMark_Choices;

    // Each points into its option's list.
    const PDEChoice *mCutEvery_Selection = nullptr;
    const PDEChoice *mCutEnd_Selection = nullptr;
    const PDEChoice *mMirror_Selection = nullptr;
    const PDEChoice *mAutoCut_Selection = nullptr;
    const PDEChoice *mHalfCut_Selection = nullptr;
    const PDEChoice *mChainPrint_Selection = nullptr;
    const PDEChoice *mSpecialTape_Selection = nullptr;
    const PDEChoice *mRemoveBlkSpace_Selection = nullptr;
    const PDEChoice *mCutMark_Selection = nullptr;
    /// The automatic-cut choice as the cut-every row's box has it.
    const PDEChoice *mAutoCut_CutEvery_Selection = nullptr;

    // Controls of the layout file, owned by the view. Each reads as absent again when it goes, with its view
    // or without.
    QPointer<QCheckBox> mCutEveryChkBx;
    QPointer<QCheckBox> mCutAndEndChkBx;
    QPointer<QCheckBox> mMirrorPrintChkBx;
    QPointer<QCheckBox> mAutoCutChkBx;
    QPointer<QCheckBox> mHalfCutChkBx;
    QPointer<QCheckBox> mChainPrintChkBx;
    QPointer<QCheckBox> mSpecialTapeChkBx;
    QPointer<QCheckBox> mRemoveBlkSpaceChkBx;
    QPointer<QCheckBox> mCutMarkChkBx;
    QPointer<QLineEdit> mCutEveryTxBx;
    QPointer<platform::Stepper> mCutEveryStpr;
    QPointer<QLabel> mCutEveryStr;
    QPointer<platform::PopUpButton> mOptionPopUpButton;
    QPointer<QWidget> mOptionDummyView;
    QPointer<OptionView13_v400_> mOptionView;

    std::int32_t mTapeState = 0;
    /// The PPD gives automatic cutting a check box of its own.
    bool mAutoCutHideKey_dec = false;
    int mCombinationsChosen = 0;
    /// The controls have been filled for the first time.
    bool set_formatSetting = false;
    // Part of the panel's state that other tools read; nothing here does.
    [[maybe_unused]] bool usb_dec = false;
    [[maybe_unused]] bool column_dec = false;
    [[maybe_unused]] bool checkValues_dec = false;
    [[maybe_unused]] const void *choice_PaperSize = nullptr;
};
