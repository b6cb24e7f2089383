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

/// One choice as the PPD spells it. Without a text of its own it shows its keyword.
struct PpdChoiceLine {
    QByteArray keyword;
    QByteArray text;
};

/// One option as the PPD spells it. Texts are bytes: a PPD may hold any, UTF-8 or not.
struct PpdOptionLines {
    QByteArray keyword;
    QByteArray text;
    std::vector<PpdChoiceLine> choices;
    /// The choice of the default line; no line at all when absent.
    std::optional<QByteArray> defaultChoice;
    QByteArray uiType = "PickOne";
};

/// A PPD as libcups has parsed it, closed when the pointer goes.
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

    /// A tape printer: no "KvTapeType" at all. This is what a fresh builder describes.
    PpdBuilder &tape();
    /// A printer of paper labels: "KvTapeType" is "DZ".
    PpdBuilder &paperLabels();
    /// "KvAutoCutObjHidden" with the value; "False" gives automatic tape cut a check box of its own.
    PpdBuilder &autoCutObjHidden(const QByteArray &value = "False");

    // The nine options of the panel. Off/on options have the choices OFF and ON and the default OFF,
    // "KvCutLabel" the counts 1 to 99 and the default 1; texts are in English.

    /// Adds one option in its usual form, whatever form it had before. A keyword that is none of the
    /// nine becomes an off/on option with the keyword as its text.
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
    /// Gives the option a text that libcups reads as empty. Simply leaving it out does not: libcups then
    /// shows the keyword. The PPD is said to be in a character set in which the text's only byte is no
    /// character, so texts beyond ASCII should not be mixed with this.
    PpdBuilder &emptyText(const QByteArray &keyword);
    PpdBuilder &choices(const QByteArray &keyword, std::vector<PpdChoiceLine> choices);
    PpdBuilder &noChoices(const QByteArray &keyword) { return choices(keyword, {}); }
    PpdBuilder &defaultChoice(const QByteArray &keyword, const QByteArray &choice);
    /// Leaves out the option's default line.
    PpdBuilder &noDefault(const QByteArray &keyword);
    /// "KvCutLabel" with one choice for each count from first to last; the default is the first.
    PpdBuilder &counts(int first, int last);
    /// So many options that the panel knows nothing of, "Foreign1", "Foreign2" and so on, each with so
    /// many choices.
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
    /// Two choices that exclude each other; an empty choice stands for every choice but the off one.
    PpdBuilder &constraint(const QByteArray &option, const QByteArray &choice, const QByteArray &otherOption,
                           const QByteArray &otherChoice);
    /// What "LanguageEncoding" says; "UTF-8" at first.
    PpdBuilder &languageEncoding(const QByteArray &encoding);
    /// Lines put in as they are, after all options. They must end in a line feed.
    PpdBuilder &raw(const QByteArray &lines);

    // The outcome.

    /// The PPD file's bytes.
    QByteArray ppd() const;
    /// Writes the PPD to the path. False, and nothing left there, when that fails.
    bool writeTo(const QString &path) const;
    /// The PPD as libcups reads it, without any choice marked. Fails the test and answers null when
    /// libcups refuses it.
    PpdPointer open() const;
    /// As open(), with the PPD's defaults marked as a print dialog marks them.
    PpdPointer openMarked() const;

    /// The papers of a fresh builder: "24mm" (24 mm x 60 mm), "36mm" (36 mm x 100 mm), "62mm" (62 mm
    /// x 62 mm), "DC29x90", "AV20x50", "FL21x45" and "HS11mm".
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
