// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <platform/Bundle.h>
#include <platform/NotificationCenter.h>
#include <ppd/PDEChoice.h>
#include <protocol/PDEPanel.h>
#include <protocol/PDEPluginCallback.h>

#include <QPointer>
#include <QStringList>
#include <QWidget>

#include <array>
#include <cstdint>
#include <memory>

/// The base of the bundle's panels. It answers the dialog's panel protocol with sensible defaults, takes
/// what the dialog offers (session, settings, page format, printer, PPD) once when it is made, and
/// turns the dialog's calls into hooks that a concrete panel overrides. Beside these stand the helpers that
/// every control action ends in: choosing a choice and telling the dialog, finding the marked and the default
/// choice.
///
/// Absence is never an error: a printer without a PPD, an option that the PPD lacks, a choice that
/// is not marked are answered with null, false, 0 or -1 as each operation says.
class BasePDE13_v400_ : public PDEPanel {
public:
    /// The bits that name a panel's controls; which bit is which control is the concrete panel's matter.
    using ItemTypes = std::uint32_t;

    ~BasePDE13_v400_() override;

    BasePDE13_v400_(const BasePDE13_v400_ &) = delete;
    BasePDE13_v400_ &operator=(const BasePDE13_v400_ &) = delete;

    // The panel protocol; see PDEPanel.
    QWidget *panelView() override;
    QString panelName() override;
    QString panelKind() const override;
    std::optional<QStringList> supportedPPDOptionKeys() override;
    void printWindowWillClose(QWidget *window) override;
    void willShow() override;
    bool shouldHide() const override { return true; }
    bool shouldPrint() override { return true; }
    bool shouldShowHelp() const override { return false; }
    void PPDOptionKeyValueDidChange(const std::optional<QString> &key,
                                    const std::optional<QString> &choice) override;
    bool restoreValuesAndReturnError(QString *error) override;
    bool saveValuesAndReturnError(QString *error) override;
    std::optional<QVariantMap> summaryInfo() override { return std::nullopt; }

    /// Refreshes every control; by default setPDEItems().
    virtual void updateUI();

    // Hooks for the concrete panel. The base's do nothing.

    /// Titles, before the controls are filled.
    virtual void initSetTitleTexts() {}
    /// Fills the controls the first time the panel is shown.
    virtual void initUI() {}
    virtual void getValuesFromKey() {}
    /// Hands every control's value to the dialog.
    virtual void setValuesToKey() {}
    /// Refreshes every control from the panel's selections.
    virtual void setPDEItems() {}
    /// Reads every selection from the PPD's markings.
    virtual void setPDEItems2() {}
    /// Refreshes the named controls from the panel's selections.
    virtual void updateUIItem(ItemTypes) {}
    /// Reads the named controls' selections from the PPD's markings.
    virtual void updateMarkedSelections(ItemTypes) {}
    /// A panel's place in the dialog's summary.
    virtual int indexForSummary(const QString &) { return 0; }

    // Helpers.

    /// The value of the PPD's "FileVersion"; nothing without one, or without a PPD.
    std::optional<QString> fileVerString() const;

    /// Whether the printer prints on paper labels rather than on tape: its PPD's "KvTapeType" is exactly
    /// "DZ".
    bool isDZPrinter() const;

    /// Whether the chosen paper is heat-shrink tube: its name begins with "HS". Asks the dialog for its
    /// settings and paper as they are now.
    bool isHSTapePage() const;

    /// Picks the choice at the index, tells the dialog, and refreshes the selections of the item types. Null,
    /// telling the dialog nothing, without a list or when no choice has the index.
    const PDEChoice *selectionForItem(int index, const QString &key, const PDEChoiceList *choices,
                                      ItemTypes itemType);

    /// The place of the option's marked choice in the list. -1 when nothing is marked, so that callers turn
    /// to the default; 0 when the marked choice is not in the list, or there is no list.
    int indexOfMarkedOption(const PDEChoiceList *choices, const QString &key) const;

    /// The place of the PPD file's default in the list; 0 for a list without entries (or none), -1 when no
    /// entry is the default.
    static int indexOfDefaultOption(const PDEChoiceList *choices);

    /// Has the dialog mark the option's default when nothing is marked: a marking made by the user or the
    /// dialog is never overridden. Answers a fresh list of the option's choices, or null when there
    /// was nothing to do: no option, already marked, no default among the choices, or one whose keyword is
    /// not valid UTF-8.
    std::unique_ptr<PDEChoiceList> setDefaultChoices(const ppd_option_t *option, const PDEChoiceList *choices,
                                                     const char *cStrKey, const QString &nStrKey);

    /// The PPD keywords that the panel handles; absent until the panel has determined them.
    void setSupportedOptions(std::optional<QStringList> options) { mSupportedOptions = std::move(options); }
    const std::optional<QStringList> &supportedOptions() const { return mSupportedOptions; }

    /// Gives the panel's view a new size in points and has the dialog lay itself out: at once when its
    /// window is already taller than the panel needs (by more than the 96 points of the dialog's own
    /// rows), otherwise when the view has been laid out. Does nothing when the dialog does not follow its
    /// panels' sizes.
    void setViewFrameSize(double width, double height);

    /// The view has been laid out after setViewFrameSize(): tells the dialog, once.
    void dialogDidExpand(const platform::Notification &notification);

    /// The printer's device URI in the system encoding, NUL-terminated; empty when it has none.
    const char *deviceURIString() const { return deviceURI.data(); }

protected:
    /// Creation is in two steps, since it may fail: a concrete panel's factory makes the object and calls
    /// init().
    BasePDE13_v400_() = default;

    /// Takes what the dialog offers. False, and the panel cannot be used, without a dialog or a bundle.
    virtual bool init(std::shared_ptr<PDEPluginCallback13_v400_> callback,
                      std::shared_ptr<const platform::Bundle> bundle);

    /// Connects the controls of the loaded view with the panel's fields. False, with the reason, when the
    /// layout lacks one.
    virtual bool connectOutlets(QWidget *view, QString *error) = 0;
    /// The controls are connected: lay them out.
    virtual void awakeFromNib() {}

    /// The text of the bundle's table for the key, or the key.
    QString localized(const QString &key) const { return nsPDEBundle->localizedStringForKey(key); }

    // Destroyed from the last to the first, after the view: supported options, name, callback object, bundle.
    // The callback object may come from code that needs the bundle, so the bundle goes last.
    std::shared_ptr<const platform::Bundle> nsPDEBundle;
    std::shared_ptr<PDEPluginCallback13_v400_> pdePluginCallbackObject;
    std::optional<QString> thePDEName;
    std::optional<QStringList> mSupportedOptions;
    /// Owned, though watched: a dialog that ends in disorder may take the view along with its window.
    QPointer<QWidget> kPDEView;
    // Borrowed from the dialog, as they were when the panel was made.
    ppd_file_t *ppd = nullptr;
    PMPrintSession printSession = nullptr;
    PMPrintSettings pmPrintSettings = nullptr;
    PMPrintSettings printSettings = nullptr;
    PMPageFormat formatSettings = nullptr;
    PMPrinter printer = nullptr;

    std::array<char, 256> deviceURI{};
    // For concrete panels; nothing here sets or reads them.
    std::int32_t mLoadedNibFlg = 0;
    std::int32_t mFormattedItemFlg = 0;
};
