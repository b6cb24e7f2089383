// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Dialog.h"
#include "LayoutFile.h"

#include <QJsonObject>
#include <QList>

#include <array>
#include <functional>
#include <optional>

namespace model {

/// The nine rows in the order in which everything but the screen and the summary visits them.
enum class Row {
    CutEvery,
    CutAtEnd,
    Mirror,
    AutoCut,
    HalfCut,
    ChainPrint,
    SpecialTape,
    RemoveBlkSpace,
    CutMark
};
inline constexpr std::array<Row, 9> rows = {
    Row::CutEvery,   Row::CutAtEnd,    Row::Mirror,         Row::AutoCut, Row::HalfCut,
    Row::ChainPrint, Row::SpecialTape, Row::RemoveBlkSpace, Row::CutMark,
};

/// What the row is called in the PPD, in the layout file and in the catalogue.
struct RowNames {
    const char *keyword;
    const char *box;
    const char *titleKey;
    const char *summaryKey;
};
const RowNames &namesOf(Row row);

/// The number that a text begins with, as in a number field: blanks, a sign, digits; 0 without one, and
/// the nearest 32-bit number beyond those.
int leadingNumber(const QString &text);

/// Any control of the panel: what can be seen of it. y is the bottom edge, upwards from the bottom of the
/// view as the layout file has it.
struct Control {
    bool hidden = false;
    bool enabled = true;
    int y = 0;
    /// Of a check box 0 or 1; of the stepper the count.
    int value = 0;
    /// Title of a check box or of the word; the count field's text.
    QString text;

    bool isOn() const { return !hidden && value == 1; }
};

/// A model of the cut-options panel, written from the behavior that users and dialogs may rely on: plain
/// data, and one function for each event. Tests compare the real panel with it.
class Panel {
public:
    /// Returns the text for a key in the panel's catalogue.
    using Localizer = std::function<QString(const QString &key)>;

    /// The controls once they are loaded.
    struct View {
        int height = 0;
        std::array<Control, 9> boxes;
        Control countField;
        Control countStepper;
        Control countWord;
        bool isWordGrey = false;
        QList<int> presets;
        int selectedPreset = 0;
        int previewY = 0;
        /// The dialog is notified of the new size once the view's tracking areas have been updated.
        bool owesResize = false;

        Control &operator[](Row row) { return boxes[static_cast<std::size_t>(row)]; }
        const Control &operator[](Row row) const { return boxes[static_cast<std::size_t>(row)]; }
        void removePresets(const QList<int> &tags);
        bool isOn(Row row) const { return (*this)[row].isOn(); }
    };

    Panel(Dialog &dialog, Localizer localize, const LayoutFile &layout);

    // What the dialog calls.
    void loadView();
    void willShow();
    void restore();
    void save();
    void shouldPrint();
    QStringList supportedKeys();
    QJsonObject summary() const;
    void keywordChanged(const std::optional<QString> &keyword, const std::optional<QString> &choice);
    void paperChanged();
    void trackingAreasUpdated();

    // What the user does; each needs the view.
    void click(Row row);
    void type(const QString &text);
    void step(int value);
    void choosePreset(int tag);

    // Rules that can be asked by themselves; each needs the view.
    void applyRules();
    int presetTag() const;
    bool isPresetAllowed(int tag) const;
    QString picture() const;

    /// Everything that can be read back.
    QJsonObject state() const;

    std::optional<View> view;
    bool isShownBefore = false;
    bool hasOwnAutoCutBox = false;
    int tapeState = 0;

private:
    const OptionDescription *option(Row row) const;
    int choiceCount(Row row) const;
    int selection(Row row) const { return m_selections[static_cast<std::size_t>(row)]; }
    int defaultIndex(Row row) const;
    int markedElseDefault(Row row) const;
    int withinList(Row row, int index) const;
    bool hasSettings() const { return m_dialog.hasSettings; }

    void layOut();
    bool isRowShown(Row row) const;
    void showRow(Row row, int &y);
    QList<int> presetsLostWithout(Row row) const;
    void resize(int height);

    void initialize(Row row);
    QString title(Row row, const char *fallback) const;
    void readTape();

    void saveRow(Row row);
    void saveCutEvery();
    void write(const OptionDescription &option, int index);
    int savedState(Row row) const;

    void choose(Row row, const QString &keyword, Row changed, int index);
    void changeCount(int count);
    void rereadMarks(Row row);
    void refresh(Row row);
    void refreshAll();
    void pull(Row row);
    void pullCutEvery();
    void applyPreset();
    void setCountEnabled(bool enabled);
    QString summaryValue(Row row) const;
    QJsonObject controlsState() const;

    Dialog &m_dialog;
    Localizer m_localize;
    const LayoutFile &m_layout;
    /// The positions of the held choices in their lists; -1 where none is held.
    std::array<int, 9> m_selections;
    int m_cutEveryBoxSelection = -1;
    std::optional<QStringList> m_supportedKeys;
};

} // namespace model
