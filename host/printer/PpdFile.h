// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PpdError.h"
#include "PpdHandle.h"
#include "PpdPaperSizes.h"
#include "PpdTranslations.h"

#include <QByteArray>
#include <QMarginsF>
#include <QSizeF>
#include <QString>

#include <optional>
#include <vector>

namespace host {

class PpdText;

/// The keyword of the option that selects the paper, as PPD 4.3 names it.
inline constexpr const char *paperKeyword = "PageSize";
/// The name of the entry that stands for a free choice, as PPD 4.3 names it.
inline constexpr const char *freeChoiceName = "Custom";

/// A paper of the PPD.
struct PpdPaper {
    /// The PPD's name, byte for byte: this is what the job must carry.
    QByteArray name;
    /// The PPD's text for people, in the language of localize().
    QString text;
    /// Width and length in points as the PPD gives them, never taken for a standard size.
    QSizeF size;
    /// What the printer cannot reach at each edge, in points; empty when the PPD does not tell.
    std::optional<QMarginsF> margins;
};

/// The sizes in which the printer takes papers of free length, in points.
struct PpdCustomLimits {
    QSizeF smallest;
    QSizeF largest;

    bool operator==(const PpdCustomLimits &) const = default;
};

/// A printer's PPD, open and marked. All that the host knows of a PPD it knows through this class and
/// PpdOptions, as values; only panels are handed what libcups opened (PpdForPanels), as their protocol says.
///
/// Move-only; the file on disk is not needed any more once it is open.
class PpdFile {
public:
    /// No printer's description comes near this size, in bytes of text.
    static constexpr qint64 largestText = qint64{16} * 1024 * 1024;

    /// Opens a PPD, plain or gzip. Nothing is marked yet. Reads no more than largestText of it, and never
    /// waits on a pipe.
    static Result<PpdFile, PpdError> open(const QString &path);

    const QString &path() const { return m_path; }
    /// The printer's name for people: the PPD's NickName, else its model, else the file's name.
    QString printerName() const;

    /// Turns the texts of groups, options and choices into the language ("de", "pt_BR") where the PPD has
    /// it; others stay as they are. Panels see them too. Does not depend on the process's locale.
    void localize(const QString &language);

    /// Marks the choice that the PPD names as default, for every option.
    void markDefaults();
    /// Marks a choice, as the user's or a panel's, by its exact name or else in any case of letters. An
    /// unknown keyword or choice is no error. For an option that may have several, exactly the choices of a
    /// list with commas are marked; none for an empty one.
    void mark(const QString &keyword, const QString &choice);
    /// Marks what the options of a job ask for, by name and value, as the server's filters read them: "media"
    /// and "sides" too. Others that the PPD lacks are passed over.
    void markJobOptions(const std::vector<std::pair<QByteArray, QByteArray>> &options);
    /// The marked choice; nothing when none is marked or the PPD lacks the keyword.
    std::optional<QString> markedChoice(const QString &keyword) const;
    /// The choice that the PPD names as default; nothing when the PPD lacks the keyword.
    std::optional<QString> defaultChoice(const QString &keyword) const;
    bool hasOption(const QString &keyword) const;
    /// The choice's position among the option's choices, from 0; nothing when the PPD lacks either.
    std::optional<int> choiceIndex(const QString &keyword, const QString &choice) const;
    /// The option's text for people; the keyword itself when the PPD lacks it.
    QString optionText(const QString &keyword) const;
    /// The choice's text for people; the choice itself when the PPD lacks it.
    QString choiceText(const QString &keyword, const QString &choice) const;

    /// The choices of PageSize that the PPD names a usable size for, in its order, without the entry that
    /// stands for free sizes.
    std::vector<PpdPaper> papers() const;
    /// The paper of that name, compared byte for byte. "Custom.WIDTHxLENGTH", as customPaperSize() reads it,
    /// gives a free size, where the PPD has them and within its limits.
    std::optional<PpdPaper> paper(const QByteArray &name) const;
    /// The width and length, in points, for which paper() gives nothing though the PPD has the paper or takes
    /// free sizes: not numbers above 0, or beyond PpdPaperSizes::maxLongSide and maxShortSide. Nothing for
    /// all other names.
    std::optional<QSizeF> unusableSize(const QByteArray &name) const;
    /// The paper that is marked; nothing when none is.
    std::optional<PpdPaper> markedPaper() const;
    /// The limits of free sizes, from 1 point to PpdPaperSizes::maxLongSide at the most; nothing when the PPD
    /// has only fixed sizes, or limits between which there is none.
    std::optional<PpdCustomLimits> customLimits() const;

private:
    friend class PpdForPanels;
    friend class PpdOptions;

    PpdFile(QString path, PpdHandle ppd, const PpdText &text);

    ppd_file_t *handle() const { return m_ppd.get(); }
    std::optional<PpdPaper> fixedPaper(const QByteArray &name, const QString &text) const;
    std::optional<PpdPaper> customPaper(const QByteArray &name) const;

    QString m_path;
    PpdHandle m_ppd;
    PpdTranslations m_translations;
    PpdPaperSizes m_paperSizes;
};

} // namespace host
