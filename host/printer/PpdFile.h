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
inline namespace printer {

class PpdText;

/// The keyword of the option that selects the paper, as PPD 4.3 names it.
inline constexpr const char *paperKeyword = "PageSize";
/// The name of the choice that stands for a custom value, as PPD 4.3 names it.
inline constexpr const char *customChoiceName = "Custom";

/// A paper of the PPD, or a custom size.
struct PpdPaper {
    /// The name in the PPD, byte for byte. The job must contain this name.
    QByteArray name;
    /// The translation string of the PPD, in the language set by PpdFile::localize(), or the name if there is
    /// none.
    QString text;
    /// Width and length in points as the PPD states them, never replaced by a standard size.
    QSizeF size;
    /// The unprintable margins, in points; absent if the PPD does not state them.
    std::optional<QMarginsF> margins;
};

/// The limits of the printer's custom page sizes, in points.
struct PpdCustomLimits {
    /// The minimum and the maximum width and length.
    QSizeF smallest;
    QSizeF largest;

    bool operator==(const PpdCustomLimits &) const = default;
};

/// A printer's PPD, open and with marked choices. The host accesses PPDs only through this class and
/// PpdOptions, as values; only panels receive the ppd_file_t itself (PpdForPanels), as their protocol
/// requires.
///
/// Move-only. The file on disk is not needed after open().
class PpdFile {
public:
    /// The maximum size of the uncompressed text, in bytes; far larger than the PPD of any printer.
    static constexpr qint64 maxTextSize = qint64{16} * 1024 * 1024;

    /// Opens a PPD file, plain or gzip-compressed. No choice is marked yet. Reads at most maxTextSize bytes
    /// of text and never blocks on a pipe.
    static Result<PpdFile, PpdError> open(const QString &path);

    /// The path that the PPD was opened from.
    const QString &path() const { return m_path; }
    /// The printer's name for the user: the NickName of the PPD, otherwise its ModelName or ShortNickName,
    /// otherwise the file name.
    QString printerName() const;

    /// The values of all statements with this main keyword that have no option keyword, such as
    /// "*Manufacturer: "Example"", without their quotation marks; empty if the PPD has none.
    QStringList values(const char *keyword) const;

    /// Sets the texts of groups, options and choices to their translations into the language ("de", "pt_BR").
    /// Texts that the PPD does not translate stay unchanged. Panels see the translations, too. Does not
    /// depend on the locale of the process.
    void localize(const QString &language);

    /// Marks the default choice of every option.
    void markDefaults();
    /// Marks a choice of the user or of a panel, by its exact name, otherwise by its name in any case.
    /// Ignores unknown keywords and choices. For a PickMany option, the argument is a list of choices
    /// separated by commas: exactly these are marked, and none for an empty list.
    void mark(const QString &keyword, const QString &choice);
    /// Marks the choices that the options of a job, pairs of name and value, request. Interprets them as the
    /// filters of the server do, including "media" and "sides". Ignores options that are missing in the PPD.
    void markJobOptions(const std::vector<std::pair<QByteArray, QByteArray>> &options);
    /// The marked choice; absent if none is marked or the PPD does not have the option.
    std::optional<QString> markedChoice(const QString &keyword) const;
    /// The default choice of the PPD; absent if the PPD does not have the option.
    std::optional<QString> defaultChoice(const QString &keyword) const;
    /// Whether the PPD has the option.
    bool hasOption(const QString &keyword) const;
    /// The index of the choice in the option's list of choices, counted from 0; absent if the PPD does not
    /// have the option or the choice.
    std::optional<int> choiceIndex(const QString &keyword, const QString &choice) const;
    /// The text of the option for the user; the keyword if the PPD does not have one.
    QString optionText(const QString &keyword) const;
    /// The text of the choice for the user; the choice's name if the PPD does not have one.
    QString choiceText(const QString &keyword, const QString &choice) const;

    /// The choices of PageSize for which the PPD states a usable size, in the order of the PPD, without the
    /// "Custom" choice. A name that occurs twice is listed once.
    std::vector<PpdPaper> papers() const;
    /// The paper with this name, compared byte for byte; absent if the PPD does not have it or its size is
    /// not usable. "Custom.WIDTHxLENGTH", as parsed by customPaperSize(), is a custom size if the PPD allows
    /// custom sizes and the size is within its limits.
    std::optional<PpdPaper> paper(const QByteArray &name) const;
    /// The size, in points, because of which paper() rejects a paper of the PPD or a custom size: a width or
    /// length that is not a number greater than 0, or that exceeds PpdPaperSizes::maxLongSide or
    /// maxShortSide. Absent for all other names.
    std::optional<QSizeF> unusableSize(const QByteArray &name) const;
    /// The marked paper; absent if none is marked or its size is not usable.
    std::optional<PpdPaper> markedPaper() const;
    /// The limits of custom sizes, restricted to the range from 1 point to PpdPaperSizes::maxLongSide; absent
    /// if the PPD has only fixed sizes or if its limits leave no size.
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

} // namespace printer
} // namespace host
