// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PpdCounts.h"
#include "PpdPaperSizes.h"
#include "PpdTranslations.h"

#include <string>
#include <string_view>

namespace host {
inline namespace printer {

/// Scans the text of a PPD, piece by piece, for what libcups does not provide.
///
/// It reports whether the text ends inside a value: libcups accepts such a file as complete, so a partially
/// downloaded PPD would open with options missing. It collects the translations: libcups keeps those of one
/// language only, that of the locale of the process, which may differ from the language of the dialog. It
/// collects the sizes of papers by their exact names, which libcups does not distinguish. And it counts the
/// statements that take libcups long to read.
class PpdText {
public:
    /// Scans the next piece of the text. Pieces may be divided at any byte.
    void add(std::string_view piece);
    /// Must be called after the last piece.
    void finish();

    /// The number of the current line, counted from 1.
    int line() const { return m_line; }
    /// Whether the current position is inside a quoted value.
    bool isInsideValue() const { return m_quoted; }
    /// The numbers of statements scanned so far.
    const PpdCounts &counts() const { return m_counts; }
    /// The translations scanned so far.
    const PpdTranslations &translations() const { return m_translations; }
    /// The paper sizes scanned so far.
    const PpdPaperSizes &paperSizes() const { return m_paperSizes; }

private:
    void addCharacter(char character);
    void addToValue(char character);
    void endLine();

    int m_line = 1;
    char m_previous = 0;
    bool m_colon = false;
    bool m_quoted = false;
    /// The line up to its colon, up to the length that libcups reads.
    std::string m_head;
    /// The value after the colon, without quotes, up to the length that is parsed.
    std::string m_value;
    PpdCounts m_counts;
    PpdTranslations m_translations;
    PpdPaperSizes m_paperSizes;
};

} // namespace printer
} // namespace host
