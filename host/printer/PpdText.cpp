// SPDX-License-Identifier: Apache-2.0
#include "PpdText.h"

namespace host {
inline namespace printer {

namespace {

/// libcups rejects lines whose part before the value is longer than this.
constexpr std::size_t maxHeadLength = 255;
/// Sufficient for four numbers, the longest value that is parsed.
constexpr std::size_t maxValueLength = 255;

} // namespace

void PpdText::add(std::string_view piece)
{
    for (const char character : piece)
        addCharacter(character);
}

void PpdText::finish()
{
    if (!m_quoted)
        endLine();
}

void PpdText::addCharacter(char character)
{
    // Lines end with LF, CR or CR LF, depending on the system on which the file was written.
    const bool secondHalf = character == '\n' && m_previous == '\r';
    m_previous = character;
    if (secondHalf)
        return;
    if (character == '\n' || character == '\r') {
        ++m_line;
        // A quoted value may span several lines.
        if (!m_quoted)
            endLine();
        return;
    }
    if (m_colon)
        addToValue(character);
    else if (character == ':' && !m_head.starts_with("*%"))
        m_colon = true;
    else if (m_head.size() < maxHeadLength)
        m_head += character;
}

void PpdText::addToValue(char character)
{
    if (character == '"')
        m_quoted = !m_quoted;
    else if (m_value.size() < maxValueLength)
        m_value += character;
}

void PpdText::endLine()
{
    if (m_head.starts_with('*') && !m_head.starts_with("*%"))
        m_counts.addStatement(m_head);
    // Statements beyond the maximum are counted, but not stored.
    if (m_colon && !m_counts.isFull()) {
        m_translations.addStatement(m_head);
        m_paperSizes.addStatement(m_head, m_value);
    }
    m_head.clear();
    m_value.clear();
    m_colon = false;
}

} // namespace printer
} // namespace host
