// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PpdCounts.h"
#include "PpdPaperSizes.h"
#include "PpdTranslations.h"

#include <string>
#include <string_view>

namespace host {

/// Follows the text of a PPD, piece by piece, for what libcups does not tell.
///
/// It reports whether the text may end where it does: libcups takes a file that ends inside a value for a
/// whole one, so a half-downloaded PPD would open with options missing. It collects the translations: libcups
/// keeps those of one language only, the one of the process's locale, which need not be the one that the
/// dialog is shown in. It collects the sizes of papers by their exact names, which libcups does not keep
/// apart. And it counts the statements that libcups takes long for.
class PpdText {
public:
    /// The next piece; pieces may break anywhere.
    void add(std::string_view piece);
    /// There is nothing more.
    void finish();

    /// The line reached, counted from 1.
    int line() const { return m_line; }
    /// Inside a quoted value.
    bool isInsideValue() const { return m_quoted; }
    /// The statements met so far.
    const PpdCounts &counts() const { return m_counts; }
    /// The translations met so far.
    const PpdTranslations &translations() const { return m_translations; }
    /// The sizes of papers met so far.
    const PpdPaperSizes &paperSizes() const { return m_paperSizes; }

private:
    void addCharacter(char character);
    void addToValue(char character);
    void endLine();

    int m_line = 1;
    char m_previous = 0;
    bool m_colon = false;
    bool m_quoted = false;
    /// The line up to its colon, as far as libcups would read it.
    std::string m_head;
    /// What follows the colon, without quotes, as far as any value that is looked into.
    std::string m_value;
    PpdCounts m_counts;
    PpdTranslations m_translations;
    PpdPaperSizes m_paperSizes;
};

} // namespace host
