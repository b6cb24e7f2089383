// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <plugin/BasePDE.h>
#include <preview/OptionView.h>
#include <protocol/PDELabelStrip.h>
#include <protocol/PDEUserChoices.h>
#include <table/OptionTable.h>
#include <table/Preset.h>

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

/// The cut-options panel: it sets how labels are cut and finished.
///
/// It has a row with a check box for each of nine options of the printer's PPD (OptionKind). A row is visible
/// only if the PPD defines its keyword. The marks of the PPD are the panel's state: on a click the panel
/// passes the choice to the dialog, which marks it, and the row is updated from the marked choice. A pop-up
/// button offers predefined combinations, a picture shows the current one, and rules disable the controls
/// that conflict with the paper or with another option.
///
/// All rows are driven by one table (optionTable), so that a new option is a new row. Controls that are not
/// loaded yet read as visible, disabled and off, and writing to them does nothing, since a dialog may save or
/// request the summary before it shows the panel.
class OptionPDE13_v400_ : public BasePDE13_v400_,
                          public PDEUserChoices_v1,
                          public PDEChoiceSummary_v1,
                          public PDELabelStrip_v1 {
public:
    /// The choices of an option in the order of the PPD; null without the option.
    using ChoicesField = std::unique_ptr<PDEChoiceList>;

    /// Makes a panel for the dialog that the callback object represents; null without a dialog or a bundle.
    /// Reads the options of the PPD. For heat-shrink tube, which the cutter cannot cut, marks the automatic
    /// cut as off.
    static std::shared_ptr<OptionPDE13_v400_>
    initWithCallback(std::shared_ptr<PDEPluginCallback13_v400_> callback,
                     std::shared_ptr<const platform::Bundle> bundle);
    /// Deletes the view with its controls and the preview.
    ~OptionPDE13_v400_() override;

    // Overrides of the base class; see PDEPanel and BasePDE13_v400_.

    /// The keywords of the options that the PPD defines, in table order, and of the automatic cut if only the
    /// cut-every box edits it. The first call saves the settings; later calls return the same list.
    std::optional<QStringList> supportedPPDOptionKeys() override;
    /// Does nothing: the panel ends with its last reference.
    void printWindowWillClose(QWidget *window) override;
    /// Has the dialog mark the default of each option that has no marked choice. Always true.
    bool shouldPrint() override;
    /// Always false: the panel has no help.
    bool shouldShowHelp() const override { return false; }
    /// Selects the choice of the option. The controls follow when they are refreshed. A choice that the PPD
    /// does not list selects none.
    void PPDOptionKeyValueDidChange(const std::optional<QString> &key,
                                    const std::optional<QString> &choice) override;
    /// The summary of the marked choices.
    std::optional<QVariantMap> summaryInfo() override { return summaryInfoFor({}); }
    /// Does nothing: each row sets its title when it is initialized.
    void initSetTitleTexts() override {}
    /// Initializes all rows and saves them; does so only the first time.
    void initUI() override;
    /// Does nothing: the marks are read by setPDEItems2().
    void getValuesFromKey() override {}
    /// Passes the settings of all rows to the dialog. Options without a record, or without print settings to
    /// write to, are skipped.
    void setValuesToKey() override;
    /// Updates all controls from the selections, and applies the selected preset.
    void setPDEItems() override;
    /// Reads all selections from the marks of the PPD.
    void setPDEItems2() override;
    /// Updates the controls whose bits (ItemType) are set, and applies the rules. With the bit of the pop-up
    /// button, applies the selected preset instead.
    void updateUIItem(ItemTypes items) override;
    /// Reads the selections of the controls whose bits are set. Without a mark, the default is selected.
    void updateMarkedSelections(ItemTypes items) override;

    // Optional interfaces for choices; see PDEUserChoices_v1 and PDEChoiceSummary_v1.

    /// The choices that the controls show, in table order; of a control that is hidden or not loaded, the
    /// choice that would be saved.
    PDEChoices shownChoices() const override;
    /// The number of times that the user selected a preset.
    int combinationsChosen() const override { return mCombinationsChosen; }
    /// Applies special tape first, since it enables and disables other controls, and then the other options
    /// in table order. A count whose field is enabled only by the automatic cut is applied after it. A choice
    /// that a check box cannot show, for instance the third of a list, is skipped, and so is a count that
    /// cannot be selected by typing its number.
    void applyUserChoices(const PDEChoices &choices) override;
    /// The lines in the order of OptionRow::summaryPlace. Options without a given or selected choice have
    /// none.
    std::optional<QVariantMap> summaryInfoFor(const PDEChoices &given) const override;
    /// The effects of the cut options; see PDELabelStrip_v1. Special tape has a text of its own.
    PDEStripEffects stripEffects(const PDEChoices &choices, std::span<const PDELabel> labels) const override;

    /// Called when the layout is loaded and its controls are connected. Shows the rows that the PPD defines,
    /// closes the gaps between them, removes the presets that the printer does not support, and inserts the
    /// preview.
    void awakeFromNib() override;

    // CUTOPTION_initialize: each function sets the controls of one row to the defaults of the PPD and enables
    // them if the PPD defines the option. Controls that are not loaded are skipped.

    /// The cut-every row: the box, the count's field and stepper, and the word behind them.
    void initializeUI_CutLabel();
    /// The cut-at-end row.
    void initializeUI_CutAtEnd() { initializeRow(OptionKind::CutAtEnd); }
    /// The mirror-printing row.
    void initializeUI_Mirror() { initializeRow(OptionKind::Mirror); }
    /// The auto-cut row. Its box keeps its title and state if the PPD requests no separate box.
    void initializeUI_AutoCut();
    /// The half-cut row.
    void initializeUI_HalfCut() { initializeRow(OptionKind::HalfCut); }
    /// The chain-printing row.
    void initializeUI_ChainPrint() { initializeRow(OptionKind::ChainPrint); }
    /// The special-tape row.
    void initializeUI_SpecialTape() { initializeRow(OptionKind::SpecialTape); }
    /// The remove-blank-space row. Reads the paper first: the box is enabled only on tape of free length.
    void initializeUI_RemoveBlkSpace();
    /// The cut-mark row.
    void initializeUI_CutMark() { initializeRow(OptionKind::CutMark); }
    /// Does nothing: no text is left that belongs to no row.
    void initializeUI_OtherStr() {}

    /// Enables and disables the controls according to the paper and the other options. Changes only controls
    /// whose state differs.
    void enabledCheck_OP();

    /// Sets the tape kind (TapeKind) of the paper. It decides whether the summary has a line for blank space.
    void setTapeState(std::int32_t state) { mTapeState = state; }
    /// The tape kind (TapeKind) of the paper when it was last read; 0 before.
    std::int32_t getTapeState() const { return mTapeState; }

    // CUTOPTION_IBAction: handlers of user actions.

    /// Called when a check box was clicked. Passes its choice to the dialog and updates the panel. For any
    /// other sender, only applies the rules.
    void changeOption(const QWidget *sender);
    /// Called when the stepper was used or a count was typed. Limits the count to the range of the printer,
    /// shows it in both controls and selects its choice.
    void changeCutEveryValue(const QWidget *sender);
    /// Called when a text was edited. Handles the count's field and ignores other objects.
    void controlTextDidChange(const QWidget *object);
    /// Called when a predefined combination was selected. Sets the boxes; the dialog receives the choices
    /// when the panel saves.
    void changeOptionPopUpButton(const QWidget *sender);
    /// Whether the preset with this tag can be selected on the current paper.
    bool validateMenuItem(int tag) const;

    // CUTOPTION_Save: each function passes the setting of one row to the dialog. It passes nothing if the PPD
    // does not define the option or lists no choices, and nothing without print settings.

    /// Passes the count. Passes the automatic cut before it if that has no box of its own.
    void saveSetting_CutLabel();
    /// Passes the choice of the cut-at-end box.
    void saveSetting_CutAtEnd() { saveSetting(OptionKind::CutAtEnd); }
    /// Passes the choice of the mirror-printing box.
    void saveSetting_Mirror() { saveSetting(OptionKind::Mirror); }
    /// Passes the automatic cut if it has a box of its own.
    void saveSetting_AutoCut();
    /// Passes the choice of the half-cut box.
    void saveSetting_HalfCut() { saveSetting(OptionKind::HalfCut); }
    /// Passes the choice of the chain-printing box.
    void saveSetting_ChainPrint() { saveSetting(OptionKind::ChainPrint); }
    /// Passes the choice of the special-tape box.
    void saveSetting_SpecialTape() { saveSetting(OptionKind::SpecialTape); }
    /// Reads the paper, enables the box only on tape of free length, and passes its choice.
    void saveSetting_RemoveBlkSpace();
    /// Passes the choice of the cut-mark box.
    void saveSetting_CutMark() { saveSetting(OptionKind::CutMark); }

    /// The choice index of a box that special tape overrides: 0 without a control or while special tape is
    /// visible and on, otherwise the state of the control.
    std::int32_t indexForSaveAutoChain(const QWidget *control) const;

    /// The tag of the preset that matches the current states of the boxes.
    int targetPopUpButtonTag() const;
    /// Called when the paper was changed in the dialog. Marks the automatic cut as off on heat-shrink tube,
    /// and updates all controls.
    void checkChangeSettingWhenPageSizeChanged(const platform::Notification &notification);
    /// Does nothing: the panel has no tabs.
    void tabView(QTabWidget *, int) {}

    // The state of the panel, for tools and tests. The caller does not own any of the pointers.

    /// The option in the PPD; null if the PPD does not define it.
    const ppd_option_t *option(OptionKind kind) const { return fields(kind).record; }
    /// The choices of the option; null if the PPD does not define it.
    const PDEChoiceList *choices(OptionKind kind) const { return fields(kind).choices.get(); }
    /// The selected choice of the option; null without a selection.
    const PDEChoice *selection(OptionKind kind) const { return fields(kind).selection; }
    /// The choice of the automatic cut that the box of the cut-every row shows; null without a selection.
    const PDEChoice *cutEveryAutoCutSelection() const { return mAutoCut_CutEvery_Selection; }
    /// The check box of the row; null while the view is not loaded.
    QCheckBox *checkBox(OptionKind kind) const { return fields(kind).box; }
    /// The field of the count in the cut-every row; null while the view is not loaded.
    QLineEdit *countField() const { return mCutEveryTxBx; }
    /// The stepper of the count; null while the view is not loaded.
    platform::Stepper *countStepper() const { return mCutEveryStpr; }
    /// The word behind the count; null while the view is not loaded.
    QLabel *countWord() const { return mCutEveryStr; }
    /// The pop-up button with the presets; null while the view is not loaded.
    platform::PopUpButton *popUp() const { return mOptionPopUpButton; }
    /// The picture of the current settings; null while the view is not loaded.
    OptionView13_v400_ *preview() const { return mOptionView; }
    /// The state of all controls, selections, marks and flags as JSON; empty while the view is not loaded.
    QJsonObject inspection() const;

protected:
    OptionPDE13_v400_() = default;
    bool init(std::shared_ptr<PDEPluginCallback13_v400_> callback,
              std::shared_ptr<const platform::Bundle> bundle) override;
    bool connectOutlets(QWidget *view, QString *error) override;

private:
    /// What the panel keeps for each option.
    struct OptionFields {
        /// The option in the PPD, owned by the dialog; null if the PPD does not define it.
        ppd_option_t *record = nullptr;
        /// The choices of the option; null without a record.
        ChoicesField choices;
        /// The selected choice, which points into the choices; may be null.
        const PDEChoice *selection = nullptr;
        /// The check box, owned by the view. Becomes null when the box is deleted, even if the view still
        /// exists.
        QPointer<QCheckBox> box;
    };
    OptionFields &fields(OptionKind kind) { return mFields[static_cast<std::size_t>(kind)]; }
    const OptionFields &fields(OptionKind kind) const { return mFields[static_cast<std::size_t>(kind)]; }

    void layOutRows(double viewHeight, double *hiddenHeight);
    void placeRow(const OptionRow &row, double viewHeight, double *y);
    void removePresets(const PresetSet &removed);
    bool isRowShown(OptionKind kind) const;
    void prunePopUpByFamily();
    void dressPopUp();
    void makePreview();
    void connectActions();
    /// Initializes the row by the function that stands for it above.
    void initializeUI(OptionKind kind);
    void initializeRow(OptionKind kind);
    void initializeTitleAndState(OptionKind kind);
    void fillReplacedControls();
    QString titleFor(const char *keyword, const char *fallbackKey) const;

    void readTapeState();
    void enableRemoveBlankSpaceByTape();
    void applySpecialTapeRules(bool flagPaper);
    void applyCutEveryRules();
    QByteArray currentPaperName() const;

    /// The counts that the printer supports, assumed to be without gaps: the index of a count is its distance
    /// from the minimum.
    struct CountRange {
        int low;
        int high;
        int clamped(int count) const;
        /// The index of the count; -1 if it is negative or exceeds the range of int.
        int indexOf(int count) const;
    };
    CountRange countRange() const;
    void showCount(const QString &text);
    /// The row of the check box; null for any other object.
    const OptionRow *rowOfBox(const QWidget *box) const;
    void chooseBoxState(const OptionRow &edited);
    void applyUserChoice(OptionKind kind, const PDEChoices &choices);
    void applyToBox(OptionKind kind, int index);
    void applyToCount(int index);
    int boxIndexGiven(OptionKind kind, const PDEChoices &choices) const;
    void applyPreset(int tag);
    void updateRow(const OptionRow &row);
    /// The selection that the box of the row shows: of the option that the box edits.
    const PDEChoice *boxSelection(const OptionRow &row) const;
    bool isBoxOn(OptionKind kind) const;

    /// Saves the row by the function that stands for it above.
    void saveRow(OptionKind kind);
    void saveSetting(OptionKind kind);
    /// The choice that is saved for an option; absent for a list without choices.
    std::optional<QString> choiceToSave(OptionKind kind) const;
    /// The choice that the option's control shows, without the override by special tape.
    std::optional<QString> choiceShown(OptionKind kind) const;
    int boxIndexToSave(const OptionRow &row) const;
    int countIndexToSave() const;
    QString chainedAutoCutToSave() const;
    /// The index of the marked choice; without a mark, of the default; -1 without either.
    int markedElseDefault(const PDEChoiceList *list, const char *keyword) const;
    /// The marked choice of the option; without a mark, its default; null without either.
    const PDEChoice *markedElseDefaultChoice(OptionKind kind) const;
    void sendChoice(const ppd_option_t *option, const std::optional<QString> &choice);

    static std::optional<QString> choiceGiven(OptionKind kind, const PDEChoices &given);
    /// The index of the option's given choice in its list; -1 if no choice is given or the list does not
    /// contain it.
    int indexGiven(OptionKind kind, const PDEChoices &given) const;
    /// The effective choice of the option: the given one, otherwise the selection. May be null.
    const PDEChoice *heldChoice(OptionKind kind, const PDEChoices &given) const;
    bool isInSummary(OptionKind kind, const PDEChoices &given) const;
    QString summaryValue(OptionKind kind, const PDEChoices &given) const;

    std::array<OptionFields, OptionCount> mFields;
    /// The choice of the automatic cut that the box of the cut-every row edits.
    const PDEChoice *mAutoCut_CutEvery_Selection = nullptr;

    // Controls of the layout file, owned by the view. Each pointer becomes null when its control is deleted,
    // even if the view still exists.
    QPointer<QLineEdit> mCutEveryTxBx;
    QPointer<platform::Stepper> mCutEveryStpr;
    QPointer<QLabel> mCutEveryStr;
    QPointer<platform::PopUpButton> mOptionPopUpButton;
    QPointer<QWidget> mOptionDummyView;
    QPointer<OptionView13_v400_> mOptionView;

    std::int32_t mTapeState = 0;
    /// Whether the automatic cut has its own check box, as the PPD requests.
    bool mAutoCutHideKey_dec = false;
    int mCombinationsChosen = 0;
    /// Whether the controls have been filled for the first time.
    bool set_formatSetting = false;
    // Part of the panel's state for other tools; not used by the panel itself.
    [[maybe_unused]] bool usb_dec = false;
    [[maybe_unused]] bool column_dec = false;
    [[maybe_unused]] bool checkValues_dec = false;
    [[maybe_unused]] const void *choice_PaperSize = nullptr;
};
