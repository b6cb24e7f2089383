// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <plugin/BasePDE.h>
#include <preview/OptionView.h>
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
class OptionPDE13_v400_ : public BasePDE13_v400_, public PDEUserChoices_v1, public PDEChoiceSummary_v1 {
public:
    using ChoicesField = std::unique_ptr<PDEChoiceList>;

    /// Makes a panel for the dialog that the callback object represents; null without a dialog or a bundle.
    /// Reads the options of the PPD. For heat-shrink tube, which the cutter cannot cut, marks the automatic
    /// cut as off.
    static std::shared_ptr<OptionPDE13_v400_>
    initWithCallback(std::shared_ptr<PDEPluginCallback13_v400_> callback,
                     std::shared_ptr<const platform::Bundle> bundle);
    ~OptionPDE13_v400_() override;

    // Overrides of the base class; see PDEPanel and BasePDE13_v400_.
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

    /// Optional interfaces for choices; see PDEUserChoices_v1 and PDEChoiceSummary_v1. applyUserChoices()
    /// applies special tape first, since it enables and disables other controls, and then the other options
    /// in table order. A count whose field is enabled only by the automatic cut is applied after it. A choice
    /// that a check box cannot show, for instance the third of a list, is skipped, and so is a count that
    /// cannot be selected by typing its number.
    PDEChoices shownChoices() const override;
    int combinationsChosen() const override { return mCombinationsChosen; }
    void applyUserChoices(const PDEChoices &choices) override;
    std::optional<QVariantMap> summaryInfoFor(const PDEChoices &given) const override;

    /// Called when the layout is loaded and its controls are connected. Shows the rows that the PPD defines,
    /// closes the gaps between them, removes the presets that the printer does not support, and inserts the
    /// preview.
    void awakeFromNib() override;

    /// CUTOPTION_initialize: each function sets the controls of one row to the defaults of the PPD and
    /// enables or disables them.
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

    /// Enables and disables the controls according to the paper and the other options. Changes only controls
    /// whose state differs.
    void enabledCheck_OP();

    /// The tape kind (TapeKind) of the paper when it was last read.
    void setTapeState(std::int32_t state) { mTapeState = state; }
    std::int32_t getTapeState() const { return mTapeState; }

    // CUTOPTION_IBAction: handlers of user actions.

    /// Called when a check box was clicked. Passes its choice to the dialog and updates the panel.
    void changeOption(const QWidget *sender);
    /// Called when the stepper was used or a count was typed. Limits the count to the range of the printer,
    /// shows it in both controls and selects its choice.
    void changeCutEveryValue(const QWidget *sender);
    /// Called when a text was edited. Handles the count's field and ignores other objects.
    void controlTextDidChange(const QWidget *object);
    /// Called when a predefined combination was selected.
    void changeOptionPopUpButton(const QWidget *sender);
    /// Whether the preset with this tag can be selected on the current paper.
    bool validateMenuItem(int tag) const;

    /// CUTOPTION_Save: each function passes the setting of one row to the dialog.
    void saveSetting_CutLabel();
    void saveSetting_CutAtEnd() { saveSetting(OptionKind::CutAtEnd); }
    void saveSetting_Mirror() { saveSetting(OptionKind::Mirror); }
    void saveSetting_AutoCut();
    void saveSetting_HalfCut() { saveSetting(OptionKind::HalfCut); }
    void saveSetting_ChainPrint() { saveSetting(OptionKind::ChainPrint); }
    void saveSetting_SpecialTape() { saveSetting(OptionKind::SpecialTape); }
    void saveSetting_RemoveBlkSpace();
    void saveSetting_CutMark() { saveSetting(OptionKind::CutMark); }

    /// The choice index of a box that special tape overrides: 0 without a control or while special tape is
    /// visible and on, otherwise the state of the control.
    std::int32_t indexForSaveAutoChain(const QWidget *control) const;

    /// The tag of the preset that matches the current states of the boxes.
    int targetPopUpButtonTag() const;
    /// Called when the paper was changed in the dialog.
    void checkChangeSettingWhenPageSizeChanged(const platform::Notification &notification);
    void tabView(QTabWidget *, int) {}

    // The state of the panel, for tools and tests. The caller does not own any of the pointers. They are null
    // if the PPD does not define the option, no choice is selected or the view is not loaded.

    const ppd_option_t *option(OptionKind kind) const { return fields(kind).record; }
    const PDEChoiceList *choices(OptionKind kind) const { return fields(kind).choices.get(); }
    const PDEChoice *selection(OptionKind kind) const { return fields(kind).selection; }
    const PDEChoice *cutEveryAutoCutSelection() const { return mAutoCut_CutEvery_Selection; }
    /// The check box of the row; null while the view is not loaded.
    QCheckBox *checkBox(OptionKind kind) const { return fields(kind).box; }
    QLineEdit *countField() const { return mCutEveryTxBx; }
    platform::Stepper *countStepper() const { return mCutEveryStpr; }
    QLabel *countWord() const { return mCutEveryStr; }
    platform::PopUpButton *popUp() const { return mOptionPopUpButton; }
    OptionView13_v400_ *preview() const { return mOptionView; }
    /// The state of all controls, selections and flags as JSON; empty while the view is not loaded.
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
