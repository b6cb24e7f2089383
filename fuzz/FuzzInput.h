// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

/// A fuzzer's bytes, read from the front. Past the end, all bytes are zero.
class FuzzInput {
public:
    FuzzInput(const std::uint8_t *data, std::size_t size)
        : m_data(data)
        , m_size(size)
    {
    }

    bool isEmpty() const { return m_size == 0; }

    template<typename Number>
    Number number()
    {
        Number value{};
        const std::size_t count = std::min(sizeof value, m_size);
        if (count > 0)
            std::memcpy(&value, m_data, count);
        skip(count);
        return value;
    }

    std::uint8_t byte() { return number<std::uint8_t>(); }

    QByteArray bytes(std::size_t count)
    {
        count = std::min(count, m_size);
        const QByteArray taken(reinterpret_cast<const char *>(m_data), static_cast<qsizetype>(count));
        skip(count);
        return taken;
    }

    /// Up to count UTF-16 units, valid or not.
    QString utf16(std::size_t count)
    {
        QString text(static_cast<qsizetype>(std::min(count, m_size / 2)), Qt::Uninitialized);
        for (QChar &character : text)
            character = QChar(number<char16_t>());
        return text;
    }

private:
    void skip(std::size_t count)
    {
        m_data += count;
        m_size -= count;
    }

    const std::uint8_t *m_data;
    std::size_t m_size;
};
