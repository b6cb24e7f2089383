// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>

#include <cups/ppd.h>

#include <array>
#include <initializer_list>
#include <memory>
#include <optional>
#include <vector>

namespace test_support {

/// The nine keywords of the panel, in the order in which its option table names them. Bit i of a
/// mask of keywords stands for element i.
inline constexpr std::array<const char *, 9> panelKeywords = {
    "KvCutLabel",   "KvCutAtEnd",    "KvMirror",         "KvAutoTapeCut", "KvHalfCut",
    "KvChainPrint", "KvSpecialTape", "KvRemoveBlkSpace", "KvCutMark",
};

/// The mask of all nine keywords.
inline constexpr unsigned allPanelKeywords = 0x1FF;

/// One choice as the PPD spells it. A choice without a text shows its keyword.
struct PpdChoiceLine {
    QByteArray keyword;
    QByteArray text;
};

/// One option as the PPD spells it. Texts are bytes: a PPD may hold any, UTF-8 or not.
struct PpdOptionLines {
    QByteArray keyword;
    QByteArray text;
    std::vector<PpdChoiceLine> choices;
    /// The choice of the default line; when absent, the line is omitted.
    std::optional<QByteArray> defaultChoice;
    QByteArray uiType = "PickOne";
};

/// Closes a PPD parsed by libcups when its pointer is destroyed.
struct PpdCloser {
    void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
};
using PpdPointer = std::unique_ptr<ppd_file_t, PpdCloser>;

/// Puts together the PPD of an invented label printer, for every test that needs a printer of a
/// certain make-up:
///
///     const PpdPointer ppd = PpdBuilder()
///                                .paperLabels()
///                                .options({"KvCutLabel", "KvAutoTapeCut", "KvMirror"})
///                                .counts(5, 8)
///                                .defaultChoice("KvMirror", "ON")
///                                .defaultPaper("DC29x90")
///                                .open();
///
/// A fresh builder describes a tape printer without any panel option and with the papers of
/// usualPapers(). Each step returns the builder itself, a later step wins over an earlier one, and a
/// step about an option that was not added adds it first. What comes out is taken by libcups as it
/// is; it is a well-formed PPD unless a step is used to make it otherwise.
class PpdBuilder {
public:
    PpdBuilder();

    // The family.

    /// A tape printer: the PPD has no "KvTapeType". This is the default of a new builder.
    PpdBuilder &tape();
    /// A printer of paper labels: "KvTapeType" is "DZ".
    PpdBuilder &paperLabels();
    /// Adds "KvAutoCutObjHidden" with the value; "False" shows a separate check box for automatic tape cut.
    PpdBuilder &autoCutObjHidden(const QByteArray &value = "False");

    // The nine options of the panel. Off/on options have the choices OFF and ON and the default OFF,
    // "KvCutLabel" the counts 1 to 99 and the default 1; texts are in English.

    /// Adds one option in its usual form, replacing an earlier form. Any keyword other than the nine becomes
    /// an off/on option with the keyword as its text.
    PpdBuilder &option(const QByteArray &keyword);
    PpdBuilder &options(std::initializer_list<QByteArray> keywords);
    /// Adds the options whose bits are set, in the order of panelKeywords.
    PpdBuilder &options(unsigned mask);
    PpdBuilder &allOptions() { return options(allPanelKeywords); }
    /// Adds an option exactly as given, or replaces the one of the same keyword.
    PpdBuilder &option(const PpdOptionLines &lines);

    // What an option looks like.

    /// The option's text, as bytes; see emptyText() for a text that libcups reads as empty.
    PpdBuilder &text(const QByteArray &keyword, const QByteArray &text);
    /// Gives the option a text that libcups reads as empty. Omitting the text is not enough: libcups then
    /// shows the keyword. The PPD declares a character set in which the text's only byte is not a character,
    /// so do not combine this with texts beyond ASCII.
    PpdBuilder &emptyText(const QByteArray &keyword);
    PpdBuilder &choices(const QByteArray &keyword, std::vector<PpdChoiceLine> choices);
    PpdBuilder &noChoices(const QByteArray &keyword) { return choices(keyword, {}); }
    PpdBuilder &defaultChoice(const QByteArray &keyword, const QByteArray &choice);
    /// Omits the option's default line.
    PpdBuilder &noDefault(const QByteArray &keyword);
    /// "KvCutLabel" with one choice for each count from first to last; the default is the first.
    PpdBuilder &counts(int first, int last);
    /// Adds count options that the panel does not use, "Foreign1", "Foreign2" and so on, with the given
    /// number of choices each.
    PpdBuilder &foreignOptions(int count, int choices);

    // The papers.

    /// A printer without any page size.
    PpdBuilder &noPapers();
    /// Adds a paper; width is across the tape and height along it, in points. The first paper is the default
    /// until defaultPaper() says otherwise.
    PpdBuilder &paper(const QByteArray &name, double width, double height);
    PpdBuilder &defaultPaper(const QByteArray &name);

    // Everything else.

    /// A line of the form *keyword: "value".
    PpdBuilder &attribute(const QByteArray &keyword, const QByteArray &value);
    /// Adds a constraint between two choices; an empty choice stands for every choice except the off one.
    PpdBuilder &constraint(const QByteArray &option, const QByteArray &choice, const QByteArray &otherOption,
                           const QByteArray &otherChoice);
    /// Sets "LanguageEncoding"; the default is "UTF-8".
    PpdBuilder &languageEncoding(const QByteArray &encoding);
    /// Inserts the lines unchanged after all options. They must end with a line feed.
    PpdBuilder &raw(const QByteArray &lines);

    // The outcome.

    /// The PPD file's bytes.
    QByteArray ppd() const;
    /// Writes the PPD to the path. On failure, returns false and leaves no file there.
    bool writeTo(const QString &path) const;
    /// The PPD as libcups reads it, without any choice marked. Fails the test and returns null when libcups
    /// rejects it.
    PpdPointer open() const;
    /// As open(), with the PPD's defaults marked as a print dialog marks them.
    PpdPointer openMarked() const;

    /// The papers of a new builder: "24mm" (24 mm x 60 mm), "36mm" (36 mm x 100 mm), "62mm" (62 mm x 62 mm),
    /// "DC29x90", "AV20x50", "FL21x45" and "HS11mm".
    struct Paper {
        QByteArray name;
        double width = 0.0;
        double height = 0.0;
    };
    static const std::vector<Paper> &usualPapers();

private:
    PpdOptionLines &lines(const QByteArray &keyword);

    std::vector<PpdOptionLines> m_options;
    std::vector<Paper> m_papers;
    std::optional<QByteArray> m_defaultPaper;
    QByteArray m_attributes;
    QByteArray m_constraints;
    QByteArray m_raw;
    QByteArray m_encoding = "UTF-8";
    bool m_paperLabels = false;
    std::optional<QByteArray> m_autoCutObjHidden;
};

} // namespace test_support
