// SPDX-License-Identifier: Apache-2.0
#include "IntervalBox.h"

#include <algorithm>
#include <cstdlib>

namespace rollcutter {

IntervalBox::IntervalBox(std::vector<int> numbers, QWidget *parent)
    : QSpinBox(parent)
    , m_numbers(std::move(numbers))
{
    setRange(m_numbers.front(), m_numbers.back());
}

void IntervalBox::stepBy(int steps)
{
    const auto current = std::ranges::lower_bound(m_numbers, value());
    const auto target = std::clamp<std::ptrdiff_t>(current - m_numbers.begin() + steps, 0,
                                                   static_cast<std::ptrdiff_t>(m_numbers.size()) - 1);
    setValue(m_numbers[static_cast<std::size_t>(target)]);
    selectAll();
}

QValidator::State IntervalBox::validate(QString &input, int &position) const
{
    const QValidator::State state = QSpinBox::validate(input, position);
    if (state != QValidator::Acceptable)
        return state;
    return std::ranges::binary_search(m_numbers, valueFromText(input)) ? QValidator::Acceptable
                                                                       : QValidator::Intermediate;
}

void IntervalBox::fixup(QString &input) const
{
    const int entered = valueFromText(input);
    const int nearest = *std::ranges::min_element(
        m_numbers, {}, [entered](int number) { return std::abs(number - entered); });
    input = prefix() + textFromValue(nearest) + suffix();
}

} // namespace rollcutter
